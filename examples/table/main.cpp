// Reads a table of delimited text, tells what was found in it, writes it back and reads it again.
#include <ox/core/ox_log.h>
#include <ox/io/ox_csv.h>

#include <cstdio>
#include <string>

namespace {

/// The process's exit status.
enum status { all_well = 0, refused = 1, differs = 2 };

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

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s TABLE COPY\n", argv[0]);
        return refused;
    }
    ox_log_set(false);
    ox::ox_csv table;
    if (!table.read_file(argv[1])) {
        std::fprintf(stderr, "%s: cannot be read\n", argv[1]);
        return refused;
    }
    show(table);
    if (!table.write_file(argv[2])) {
        std::fprintf(stderr, "%s: cannot be written\n", argv[2]);
        return refused;
    }
    ox::ox_csv copy;
    copy.read_file(argv[2]);
    const bool same = same_tables(table, copy);
    std::printf("read again: %s\n", same ? "the same cells" : "DIFFERENT cells");
    return same ? all_well : differs;
}
