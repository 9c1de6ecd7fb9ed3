// Makes a table of what the bytes say, writes it and reads it back. Where no cell has a separator
// or a line break in it, the cells are the same ones again.

#include <string>

#include <fuzz/byte_reader.h>
#include <fuzz/require.h>
#include <ox/core/ox_log.h>
#include <ox/io/ox_csv.h>

namespace {

using fuzz::byte_reader;
using ox::ox_csv;
using ox::ox_list;

constexpr char separators[] = {'\t', ',', ';'};

/// Letters, digits and blanks: what no table takes for a separator.
std::string plain_text(byte_reader& bytes) {
    const char characters[] = "abcxyzE0123456789- ";
    std::string text;
    for (int i = bytes.below(6); i > 0; --i) {
        text += characters[bytes.below(static_cast<int>(sizeof characters) - 1)];
    }
    return text;
}

ox_csv plain_table(byte_reader& bytes) {
    const int columns = 2 + bytes.below(6);
    const int rows = 1 + bytes.below(12);
    ox_csv table;
    for (int i = 0; i < columns; ++i) {
        ox_list<std::string> cells;
        for (int row = 0; row < rows; ++row) {
            cells.push_right(plain_text(bytes));
        }
        table.add_column(plain_text(bytes), cells);
    }
    table.set_column_separator(separators[bytes.below(3)]);
    return table;
}

void require_same_cells(ox_csv& a, ox_csv& b) {
    fuzz::require(a.get_nb_columns() == b.get_nb_columns());
    for (int i = 0; i < a.get_nb_columns(); ++i) {
        ox_list<std::string> left;
        ox_list<std::string> right;
        fuzz::require(a.get_column(i, left) && b.get_column(i, right));
        fuzz::require(left.size() == right.size());
        for (int row = 0; row < left.size(); ++row) {
            fuzz::require(left[row] == right[row]);
        }
    }
}

/// Columns of every kind, with any text for a header, under any separators.
void write_mixed_table(byte_reader& bytes) {
    ox_csv table;
    while (bytes.has_more() && table.get_nb_columns() < 12) {
        const std::string header = bytes.text(12);
        ox_list<float> numbers;
        ox_list<bool> flags;
        for (int i = bytes.below(8); i > 0; --i) {
            numbers.push_right(bytes.coordinate());
            flags.push_right(bytes.below(2) == 0);
        }
        table.add_column(header, numbers, bytes.byte() - 8);
        table.add_column(header, flags);
    }
    table.set_float_separator(static_cast<char>(bytes.byte()));
    table.set_column_separator(static_cast<char>(bytes.byte()));
    const std::string written = table.write_string();
    fuzz::require(table.read_string(written));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ox_log_set(false);
    byte_reader bytes(data, size);
    ox_csv table = plain_table(bytes);
    const std::string written = table.write_string();
    ox_csv read;
    fuzz::require(read.read_string(written));
    fuzz::require(read.get_column_separator() == table.get_column_separator());
    require_same_cells(table, read);
    fuzz::require(read.write_string() == written);
    write_mixed_table(bytes);
    return 0;
}
