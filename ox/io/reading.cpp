#include <cstdio>
#include <ox/io/internal/csv_layout.h>
#include <ox/io/internal/open_file.h>
#include <ox/io/internal/ox_csv_state.h>

namespace ox {

namespace {

/// Empty columns with room for the cells of a text. Empty cells need none, and header cells are so
/// few that the room of the values serves for both.
std::vector<ox_csv_column> make_columns(const csv_layout& layout) {
    std::vector<ox_csv_column> columns(layout.nb_cells.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        columns[i].values.reserve(layout.nb_cells[i]);
    }
    return columns;
}

/// Stores one cell of line `line`. Header cells follow each other; value cells keep their row.
void store_cell(ox_csv_column& column, std::size_t line, std::size_t nb_header_lines,
                const char* first, const char* last) {
    if (line < nb_header_lines) {
        column.headers.append(first, last);
        return;
    }
    column.values.pad_to(line - nb_header_lines);
    column.values.append(first, last);
}

std::vector<ox_csv_column> parse(const std::string& text, char separator) {
    const csv_layout layout = measure_layout(text, separator);
    std::vector<ox_csv_column> columns = make_columns(layout);
    std::size_t column = 0;
    std::size_t line = 0;
    const char* cell = text.data();
    const char* const end = text.data() + text.size();
    for (const char* place = cell; place != end; ++place) {
        const bool line_break = *place == '\n' || *place == '\r';
        if (!line_break && *place != separator) {
            continue;
        }
        store_cell(columns[column], line, layout.nb_header_lines, cell, place);
        cell = place + 1;
        column = line_break ? 0 : column + 1;
        line += line_break ? 1 : 0;
    }
    return columns;
}

/// Reads all of a file. False when it cannot be opened or read.
bool read_whole_file(const std::string& path, std::string& text) {
    const open_file file(std::fopen(path.c_str(), "rb"));
    if (file == nullptr) {
        return false;
    }
    char block[65536];
    std::size_t length = 0;
    while ((length = std::fread(block, 1, sizeof block, file.get())) > 0) {
        text.append(block, length);
    }
    return std::ferror(file.get()) == 0;
}

} // namespace

bool ox_csv::read_file(const std::string& path) {
    std::string text;
    return read_whole_file(path, text) && read_string(text);
}

bool ox_csv::read_string(const std::string& text) {
    const char separator = detect_separator(text);
    state->columns = parse(text, separator);
    state->column_separator = separator;
    return true;
}

} // namespace ox
