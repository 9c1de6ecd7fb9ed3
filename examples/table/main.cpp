// Reads a table of delimited text, tells what was found in it, writes it back and reads it again.
#include <examples/support/input_file.h>
#include <examples/support/program.h>

#include <CLI/CLI.hpp>

#include <ox/io/ox_csv.h>

#include <cstdio>
#include <stdexcept>
#include <string>

namespace {

/// What the command line asks for.
struct arguments {
    std::string table;
    std::string copy;
};

void declare(CLI::App& line, arguments& wanted) {
    line.add_option("TABLE", wanted.table, "the table to read")->required()->type_name("");
    line.add_option("COPY", wanted.copy, "the file to write it to")->required()->type_name("");
}

constexpr int shown_rows = 3;

ox::ox_list<std::string> cells_of(ox::ox_csv& table, int column) {
    ox::ox_list<std::string> cells;
    table.get_column(column, cells);
    return cells;
}

int count_headers(ox::ox_csv& table) {
    ox::ox_list<std::string> headers;
    ox::ox_list<float> values;
    table.get_column(0, headers, values);
    return headers.size();
}

const char* name_of(char separator) {
    return separator == '\t' ? "tab" : separator == ',' ? "comma" : "semicolon";
}

/// What was found, and the first cells of every column.
void show(ox::ox_csv& table) {
    std::printf("separator: %s\n", name_of(table.get_column_separator()));
    std::printf("header lines: %d\n", count_headers(table));
    std::printf("columns: %d\n", table.get_nb_columns());
    std::printf("rows: %d\n", cells_of(table, 0).size());
    for (int column = 0; column < table.get_nb_columns(); ++column) {
        const ox::ox_list<std::string> cells = cells_of(table, column);
        std::printf("%4d:", column);
        for (int row = 0; row < cells.size() && row < shown_rows; ++row) {
            std::printf(" [%s]", cells[row].c_str());
        }
        std::printf(cells.size() > shown_rows ? " ...\n" : "\n");
    }
}

bool same_cells(const ox::ox_list<std::string>& a, const ox::ox_list<std::string>& b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (int i = 0; i < a.size(); ++i) {
        if (a[i] != b[i]) {
            return false;
        }
    }
    return true;
}

bool same_tables(ox::ox_csv& a, ox::ox_csv& b) {
    bool same = a.get_nb_columns() == b.get_nb_columns();
    for (int column = 0; same && column < a.get_nb_columns(); ++column) {
        same = same_cells(cells_of(a, column), cells_of(b, column));
    }
    return same;
}

/// Writes the table to a plain file: another one, such as a device, could not be read again.
void write(ox::ox_csv& table, const std::string& path) {
    const bool written = table.write_file(path);
    const std::string obstacle = ox_examples::obstacle_to_reading(path);
    if (!obstacle.empty() || !written) {
        throw std::runtime_error(path + ": cannot be written" +
                                 (obstacle.empty() ? "" : ": " + obstacle));
    }
}

ox_examples::exit_status run(const arguments& wanted) {
    ox_examples::require_readable(wanted.table);
    ox::ox_csv table;
    if (!table.read_file(wanted.table)) {
        throw ox_examples::input_error(wanted.table + ": cannot be read");
    }
    show(table);
    write(table, wanted.copy);
    ox::ox_csv copy;
    copy.read_file(wanted.copy);
    const bool same = same_tables(table, copy);
    std::printf("read again: %s\n", same ? "the same cells" : "DIFFERENT cells");
    return same ? ox_examples::all_well : ox_examples::off;
}

} // namespace

int main(int argc, char** argv) {
    arguments wanted;
    return ox_examples::run_program(
        {"ox_table", "Reads a table of delimited text, writes a copy and compares the two."}, argc,
        argv, [&](CLI::App& line) { declare(line, wanted); }, [&] { return run(wanted); });
}
