// Reads the bytes as a delimited text, and compares the table with the one that reading character
// by character gives.

#include <cstddef>
#include <cstdint>
#include <string>

#include <fuzz/require.h>
#include <ox/core/ox_log.h>
#include <ox/io/ox_csv.h>
#include <tests/reference/plain_csv.h>

namespace {

/// No table of a few bytes has more cells than this but for its padding, which a text may ask for
/// very much of: wide and high in turn.
constexpr std::size_t most_written_cells = 100000;

std::size_t count_cells(const reference::plain_table& table) {
    std::size_t headers = 0;
    std::size_t values = 0;
    for (const reference::plain_table::column& column : table.columns) {
        headers = column.headers.size() > headers ? column.headers.size() : headers;
        values = column.values.size() > values ? column.values.size() : values;
    }
    return table.columns.size() * (headers + values);
}

void require_same_columns(ox::ox_csv& table, const reference::plain_table& plain) {
    fuzz::require(static_cast<std::size_t>(table.get_nb_columns()) == plain.columns.size());
    for (int i = 0; i < table.get_nb_columns(); ++i) {
        const reference::plain_table::column& column = plain.columns[static_cast<std::size_t>(i)];
        ox::ox_list<std::string> headers;
        ox::ox_list<float> values;
        fuzz::require(table.get_column(i, headers, values));
        fuzz::require(static_cast<std::size_t>(values.size()) == column.values.size());
        fuzz::require(std::vector<std::string>(headers.begin(), headers.end()) == column.headers);
        ox::ox_list<std::string> cells;
        fuzz::require(table.get_column(i, cells));
        fuzz::require(std::vector<std::string>(cells.begin() + headers.size(), cells.end()) ==
                      column.values);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ox_log_set(false);
    const std::string text(data, data + size);
    ox::ox_csv table;
    fuzz::require(table.read_string(text));
    const reference::plain_table plain = reference::plain_read_csv(text);
    fuzz::require(table.get_column_separator() == plain.separator);
    require_same_columns(table, plain);
    const ox::ox_csv copy = table;
    if (count_cells(plain) < most_written_cells) {
        fuzz::require(table.write_string() == reference::plain_write_csv(plain));
    }
    table = copy;
    require_same_columns(table, plain);
    return 0;
}
