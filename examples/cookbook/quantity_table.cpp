// A table of quantities that survives being written, read and written again.
#include <ox/core/ox_log.h>
#include <ox/io/ox_csv.h>

#include <cstdio>

int main() {
    ox_log_set(false); // reading logs the separator that it found otherwise

    ox::ox_csv table;
    table.set_column_separator('\t'); // neither comma nor semicolon: names may hold them
    table.set_float_separator('.');   // numbers are read back with a point, whatever is written
    table.add_column("pieces",
                     ox::ox_make_list<int>({1, 2, 14})); // first a column of numbers, see below
    table.add_column("part",
                     ox::ox_make_list<std::string>({"wall, north", "slab; ground", "roof"}));
    table.add_column("volume (m3)", ox::ox_make_list<float>({12.345f, 18.9f, 7.25f}), 3);
    const std::string text = table.write_string();
    std::printf("%s", text.c_str());

    // A byte order mark belongs to the first cell for whoever reads; some programs write one.
    const std::string mark = "\xEF\xBB\xBF";
    std::string found = mark + text;
    if (found.compare(0, mark.size(), mark) == 0) {
        found.erase(0, mark.size());
    }
    ox::ox_csv read; // takes as header the lines whose first cell is text, if they are few
    read.read_string(found);
    ox::ox_list<std::string> headers;
    ox::ox_list<float> volumes;
    read.get_column(2, headers, volumes);
    std::printf("%s: %d numbers, the first %.3f\n", headers[0].c_str(), volumes.size(),
                static_cast<double>(volumes[0]));
    std::printf("written again: %s\n", read.write_string() == text ? "the same" : "different");
}
