#include <algorithm>
#include <ox/io/internal/cell_text.h>
#include <utility>

namespace ox {

cell_text::cell_text(std::string whole_text, char column_separator, std::size_t nb_cells,
                     std::size_t nb_lines)
    : text(std::move(whole_text)), separator(column_separator) {
    ends.reserve(nb_cells);
    line_starts.reserve(nb_lines + 2);
    for (std::size_t place = 0; place < text.size(); ++place) {
        const char c = text[place];
        if (c == separator) {
            ends.push_back(place);
        } else if (is_line_break(c)) {
            ends.push_back(place);
            end_line();
        }
    }
    last_column = ends.size() - line_starts.back();
    nb_columns = std::max(nb_columns, last_column + 1);
    if (last_column > 0) {
        end_line();
    }
}

void cell_text::add_line(std::string_view cell) {
    text.append(cell);
    ends.push_back(text.size());
    text.push_back(separator);
    end_line();
}

void cell_text::end_line() {
    nb_columns = std::max(nb_columns, ends.size() - line_starts.back());
    line_starts.push_back(ends.size());
}

} // namespace ox
