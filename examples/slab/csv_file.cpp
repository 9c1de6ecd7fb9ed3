#include <examples/slab/csv_file.h>

#include <algorithm>
#include <cstdio>
#include <fstream>

namespace slab {

void csv_file::add_column(const std::string& header, const ox::ox_list<std::string>& values) {
    const std::string separator = lines.empty() ? "" : ";";
    lines.resize(static_cast<std::size_t>(values.size()) + 1);
    auto line = lines.begin();
    *line++ += separator + header;
    for (const std::string& value : values) {
        *line++ += separator + value;
    }
}

void csv_file::add_column(const std::string& header, const ox::ox_list<float>& values,
                          int precision) {
    ox::ox_list<std::string> cells;
    for (const float value : values) {
        char text[64];
        std::snprintf(text, sizeof text, "%.*f", precision, double{value});
        std::string cell = text;
        std::replace(cell.begin(), cell.end(), '.', ',');
        cells.push_right(cell);
    }
    add_column(header, cells);
}

bool csv_file::write_file(const std::string& path) const {
    std::ofstream file(path);
    for (const std::string& line : lines) {
        file << line << '\n';
    }
    file.close();
    return !file.fail();
}

} // namespace slab
