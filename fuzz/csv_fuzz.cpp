// Reads the bytes as a delimited text, and works with the table that comes of it.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <ox/core/ox_log.h>
#include <ox/io/ox_csv.h>

namespace {

/// No table of a few bytes has more cells than this but for its padding, which a text may ask for
/// very much of: wide and high in turn.
constexpr std::size_t most_written_cells = 1000000;

/// Looks at every cell, and returns how many there are.
std::size_t take_out(ox::ox_csv& table) {
    std::size_t nb_cells = 0;
    for (int column = 0; column < table.get_nb_columns(); ++column) {
        ox::ox_list<std::string> cells;
        ox::ox_list<std::string> headers;
        ox::ox_list<float> values;
        table.get_column(column, cells);
        table.get_column(column, headers, values);
        if (cells.size() != headers.size() + values.size()) {
            std::abort();
        }
        nb_cells += static_cast<std::size_t>(cells.size());
    }
    return nb_cells;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ox_log_set(false);
    const std::string text(data, data + size);
    ox::ox_csv table;
    table.read_string(text);
    const ox::ox_csv copy = table;
    if (take_out(table) < most_written_cells) {
        const std::string written = table.write_string();
        table.set_column_separator('|');
        if (table.write_string().size() != written.size()) {
            std::abort();
        }
    }
    table = copy;
    take_out(table);
    return 0;
}
