#include <algorithm>
#include <cstddef>
#include <ox/core/ox_log.h>
#include <ox/io/internal/open_file.h>
#include <ox/io/internal/ox_csv_state.h>
#include <ox/ox_functions.h>
#include <ox/progress/ox_progress_manager.h>

namespace ox {

namespace {

/// Writes the rows of one part of a table (its header or its values), one after the other.
class row_writer {
public:
    row_writer(const std::vector<ox_csv_column>& table, sparse_cells ox_csv_column::*table_part,
               char column_separator)
        : columns(table), part(table_part), separator(column_separator), next(table.size(), 0) {}

    /// Appends the next row to `text`, each cell as `convert` gives it.
    template <typename Convert>
    void write_row(std::string& text, const Convert& convert) {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (i > 0) {
                text += separator;
            }
            const std::vector<sparse_cells::filled_cell>& cells = (columns[i].*part).filled();
            if (next[i] < cells.size() && cells[next[i]].row == row) {
                text += convert(cells[next[i]++].text);
            }
        }
        text += '\n';
        ++row;
    }

private:
    const std::vector<ox_csv_column>& columns;
    sparse_cells ox_csv_column::*part;
    char separator;
    std::vector<std::size_t> next; // for each column, the filled cell that comes next
    std::size_t row = 0;
};

struct table_height {
    std::size_t headers = 0;
    std::size_t values = 0;
};

/// Fills all columns up with empty cells to the height of the highest.
table_height even_out(std::vector<ox_csv_column>& columns) {
    table_height height;
    for (const ox_csv_column& column : columns) {
        height.headers = std::max(height.headers, column.headers.size());
        height.values = std::max(height.values, column.values.size());
    }
    for (ox_csv_column& column : columns) {
        column.headers.pad_to(height.headers);
        column.values.pad_to(height.values);
    }
    return height;
}

/// The number of bytes of the table as text. Converting header cells only ever shortens them.
std::size_t text_size(const std::vector<ox_csv_column>& columns, const table_height& height) {
    std::size_t size = (height.headers + height.values) * columns.size();
    for (const ox_csv_column& column : columns) {
        for (const sparse_cells::filled_cell& cell : column.headers.filled()) {
            size += cell.text.size();
        }
        for (const sparse_cells::filled_cell& cell : column.values.filled()) {
            size += cell.text.size();
        }
    }
    return size;
}

void write_header(const oxp_csv_state& state, std::size_t nb_rows, std::string& text) {
    row_writer rows(state.columns, &ox_csv_column::headers, state.column_separator);
    const bool to_ansi = state.encoding == ox_csv::encoding_ansi;
    for (std::size_t row = 0; row < nb_rows; ++row) {
        rows.write_row(
            text, [to_ansi](const std::string& cell) { return to_ansi ? ox_to_ansi(cell) : cell; });
    }
}

/// False when the progress manager asks to stop.
bool write_values(const oxp_csv_state& state, std::size_t nb_rows, std::string& text) {
    row_writer rows(state.columns, &ox_csv_column::values, state.column_separator);
    const double share = state.progress_max - state.progress_min;
    const double step = nb_rows > 0 ? share / static_cast<double>(nb_rows) : 0.0;
    for (std::size_t row = 0; row < nb_rows; ++row) {
        rows.write_row(text, [](const std::string& cell) -> const std::string& { return cell; });
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
    text.reserve(text_size(state->columns, height));
    write_header(*state, height.headers, text);
    return write_values(*state, height.values, text) ? text : std::string();
}

bool ox_csv::write_file(const std::string& path) {
    const open_file file(std::fopen(path.c_str(), "w"));
    if (file == nullptr) {
        return false;
    }
    std::fputs(write_string().c_str(), file.get());
    ox_log_thread_safe("csv file writen with success");
    return true;
}

} // namespace ox
