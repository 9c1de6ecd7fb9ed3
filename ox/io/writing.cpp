#include <ox/ox_functions.h>

#include <algorithm>
#include <cstddef>
#include <string_view>

#include <ox/core/ox_log.h>
#include <ox/internal/open_path.h>
#include <ox/io/internal/ox_csv_state.h>
#include <ox/progress/ox_progress_manager.h>

namespace ox {

using namespace internal;

namespace {

struct table_height {
    std::size_t headers = 0;
    std::size_t values = 0;
};

/// Fills all columns up with empty cells to the height of the highest.
table_height even_out(std::vector<ox_csv_column>& columns) {
    table_height height;
    for (const ox_csv_column& column : columns) {
        height.headers = std::max(height.headers, column.header_count);
        height.values = std::max(height.values, column.value_count);
    }
    for (ox_csv_column& column : columns) {
        column.header_count = height.headers;
        column.value_count = height.values;
    }
    return height;
}

/// No less than the number of bytes of the table as text. Converting header cells only ever
/// shortens them.
std::size_t largest_text_size(const std::vector<ox_csv_column>& columns,
                              const table_height& height) {
    std::size_t size = (height.headers + height.values) * columns.size();
    const cell_text* counted = nullptr;
    for (const ox_csv_column& column : columns) {
        if (column.text.get() != counted) { // columns of one text follow each other
            counted = column.text.get();
            size += counted->get_text().size();
        }
    }
    return size;
}

void write_headers(const ox_csv_state& state, std::size_t row_count, std::string& text) {
    const bool to_ansi = state.encoding == ox_csv::encoding_ansi;
    for (std::size_t row = 0; row < row_count; ++row) {
        for (std::size_t i = 0; i < state.columns.size(); ++i) {
            if (i > 0) {
                text += state.column_separator;
            }
            const std::string_view cell = state.columns[i].get_header(row);
            text += to_ansi ? ox_to_ansi(std::string(cell)) : std::string(cell);
        }
        text += '\n';
    }
}

/// Writes the rows of the value cells.
class row_writer {
public:
    row_writer(const std::vector<ox_csv_column>& table, char column_separator)
        : columns(table), separator(column_separator), joined(are_joined()) {}

    void write_row(std::string& text, std::size_t row) const {
        const std::size_t written_count = write_joined_cells(text, row);
        for (std::size_t i = written_count; i < columns.size(); ++i) {
            if (i > 0) {
                text += separator;
            }
            text += columns[i].get_value(row);
        }
        text += '\n';
    }

private:
    /// The columns of a table that was read come first, and are all there. With the separator they
    /// were read with, their cells stand in the lines of the text as they are to be written.
    bool are_joined() const {
        return !columns.empty() && columns.front().text->get_separator() == separator;
    }

    /// Writes the cells that a line of the text has, and returns their number.
    std::size_t write_joined_cells(std::string& text, std::size_t row) const {
        if (!joined) {
            return 0;
        }
        const ox_csv_column& first = columns.front();
        const std::size_t line = first.first_line + row;
        const std::size_t cell_count = first.text->get_cell_count(line);
        if (cell_count > 0) {
            text += first.text->get_line(line);
        }
        return cell_count;
    }

    const std::vector<ox_csv_column>& columns;
    char separator;
    bool joined;
};

/// False when the progress manager asks to stop.
bool write_values(const ox_csv_state& state, std::size_t row_count, std::string& text) {
    const row_writer rows(state.columns, state.column_separator);
    const double share = state.progress_max - state.progress_min;
    const double step = row_count > 0 ? share / static_cast<double>(row_count) : 0.0;
    for (std::size_t row = 0; row < row_count; ++row) {
        rows.write_row(text, row);
        const double reached = state.progress_min + static_cast<double>(row) * step;
        if (state.manager != nullptr && !state.manager->set_progress(reached)) {
            return false;
        }
    }
    return true;
}

} // namespace

std::string ox_csv::write_string() {
    const table_height height = even_out(state->columns);
    std::string text;
    text.reserve(largest_text_size(state->columns, height));
    write_headers(*state, height.headers, text);
    if (!write_values(*state, height.values, text)) {
        text.clear();
    }
    return text;
}

bool ox_csv::write_file(const std::string& path) {
    const open_file file = open_path(path, "w");
    if (file == nullptr) {
        return false;
    }
    std::fputs(write_string().c_str(), file.get());
    ox_log_thread_safe("csv file writen with success");
    return true;
}

} // namespace ox
