#include <ox/io/internal/cell_text.h>

#include <algorithm>
#include <utility>

namespace ox::internal {

cell_text::cell_text(std::string whole_text, char column_separator, std::size_t cell_count,
                     std::size_t line_count)
    : text(std::move(whole_text)), separator(column_separator) {
    ends.reserve(cell_count);
    line_starts.reserve(line_count + 2);
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
    column_count = std::max(column_count, last_column + 1);
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
    column_count = std::max(column_count, ends.size() - line_starts.back());
    line_starts.push_back(ends.size());
}

} // namespace ox::internal
