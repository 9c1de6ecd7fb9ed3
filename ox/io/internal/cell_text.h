#ifndef OX_IO_INTERNAL_CELL_TEXT_H
#define OX_IO_INTERNAL_CELL_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ox::internal {

/// True if a character ends a line of a table.
inline bool is_line_break(char c) {
    return c == '\n' || c == '\r';
}

/// A text of lines of cells, each cell followed by one character that is not part of it, and the
/// places of the cells in it. The cells are never taken out of the text: a table of a million rows
/// is its text and one number for each cell and line.
class cell_text {
public:
    /// An empty text, to be filled by `add_line`.
    cell_text() = default;

    /// The cells of `text`. What follows the last separator or line break is no cell.
    cell_text(std::string text, char separator, std::size_t cell_count, std::size_t line_count);

    /// Appends a line of one cell.
    void add_line(std::string_view cell);

    /// The whole text.
    const std::string& get_text() const { return text; }

    /// The character between the cells of a line.
    char get_separator() const { return separator; }

    /// The number of lines, counting a last one without a line break when it has cells.
    std::size_t get_line_count() const { return line_starts.size() - 1; }

    /// The number of cells of a line, 0 below the last one.
    std::size_t get_cell_count(std::size_t line) const {
        return line < get_line_count() ? line_starts[line + 1] - line_starts[line] : 0;
    }

    /// The largest number of columns that a line reaches into; the end of the text counts.
    std::size_t get_column_count() const { return column_count; }

    /// The column that the text ends in.
    std::size_t get_last_column() const { return last_column; }

    /// A cell that there is.
    std::string_view get_cell(std::size_t line, std::size_t column) const {
        const std::size_t number = line_starts[line] + column;
        return between(number, number + 1);
    }

    /// All cells of a line that has any, with the separators between them.
    std::string_view get_line(std::size_t line) const {
        return between(line_starts[line], line_starts[line + 1]);
    }

    /// What follows the last cell.
    std::string_view get_rest() const {
        return std::string_view(text).substr(ends.empty() ? 0 : ends.back() + 1);
    }

private:
    void end_line();

    /// From the start of the cell numbered `first` to the end of the one before `last`.
    std::string_view between(std::size_t first, std::size_t last) const {
        const std::size_t start = first > 0 ? ends[first - 1] + 1 : 0;
        return std::string_view(text.data() + start, ends[last - 1] - start);
    }

    std::string text;
    std::vector<std::size_t> ends;           ///< of the cells, in the order of the text
    std::vector<std::size_t> line_starts{0}; ///< the number of each line's first cell, and of none
    std::size_t column_count = 0;
    std::size_t last_column = 0;
    char separator = '\n';
};

} // namespace ox::internal

#endif
