#ifndef OX_IO_INTERNAL_SPARSE_CELLS_H
#define OX_IO_INTERNAL_SPARSE_CELLS_H

#include <cstddef>
#include <limits>
#include <new>
#include <ox/core/ox_list.h>
#include <string>
#include <vector>

namespace ox {

/// A run of cells from top to bottom that stores only those with text: a short file may ask for
/// very many empty ones.
class sparse_cells {
public:
    /// A cell with text, and its place from the top.
    struct filled_cell {
        std::size_t row;
        std::string text;
    };

    /// The number of cells, empty ones included.
    std::size_t size() const { return count; }

    /// The cells with text, in order.
    const std::vector<filled_cell>& filled() const { return cells; }

    /// Prepares for `n` cells with text.
    void reserve(std::size_t n) { cells.reserve(n); }

    /// Appends the characters from `first` to `last` as one cell.
    void append(const char* first, const char* last) {
        if (first != last) {
            cells.push_back({count, std::string(first, last)});
        }
        ++count;
    }

    /// Appends a cell.
    void append(const std::string& text) { append(text.data(), text.data() + text.size()); }

    /// Appends empty cells up to a size of `n`. O(1).
    void pad_to(std::size_t n) { count = count < n ? n : count; }

    /// The number of cells as lists count them; more fail as their allocation would.
    int list_size() const {
        if (count > static_cast<std::size_t>((std::numeric_limits<int>::max)())) {
            throw std::bad_array_new_length();
        }
        return static_cast<int>(count);
    }

    /// A list of all cells, empty ones included.
    ox_list<std::string> to_list() const {
        ox_list<std::string> list(list_size());
        for (const filled_cell& cell : cells) {
            list[static_cast<int>(cell.row)] = cell.text;
        }
        return list;
    }

private:
    std::vector<filled_cell> cells;
    std::size_t count = 0;
};

} // namespace ox

#endif
