#include <examples/slab/csv_file.h>

#include <algorithm>
#include <cstdio>
#include <fstream>

namespace slab {

void csv_file::add_column(const std::string& header, const std::vector<std::string>& values) {
    const std::string separator = lines.empty() ? "" : ";";
    lines.resize(values.size() + 1);
    lines[0] += separator + header;
    for (std::size_t i = 0; i < values.size(); ++i) {
        lines[i + 1] += separator + values[i];
    }
}

void csv_file::add_column(const std::string& header, const std::vector<double>& values,
                          int precision) {
    std::vector<std::string> cells;
    for (const double value : values) {
        char cell[64];
        std::snprintf(cell, sizeof cell, "%.*f", precision, value);
        cells.emplace_back(cell);
        std::replace(cells.back().begin(), cells.back().end(), '.', ',');
    }
    add_column(header, cells);
}

bool csv_file::write(const std::string& path) const {
    std::ofstream file(path);
    for (const std::string& line : lines) {
        file << line << '\n';
    }
    file.close();
    return !file.fail();
}

} // namespace slab
