#ifndef OX_IO_INTERNAL_OX_CSV_STATE_H
#define OX_IO_INTERNAL_OX_CSV_STATE_H

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include <ox/io/internal/cell_text.h>
#include <ox/io/ox_csv.h>

namespace ox {

/// A column of a table: a column of a text, whose lines from `first_line` on hold its value cells.
/// Texts never change, so that all columns of a text, and the copies of a table, share it. Cells
/// that the text does not have are empty and take no memory: a short file may ask for very many.
struct ox_csv_column {
    std::string_view get_header(std::size_t row) const {
        return row < headers.size() ? headers[row] : std::string_view();
    }

    std::string_view get_value(std::size_t row) const {
        const std::size_t line = first_line + row;
        return place < text->get_cell_count(line) ? text->get_cell(line, place)
                                                  : std::string_view();
    }

    std::shared_ptr<const internal::cell_text> text;
    std::size_t place = 0; ///< of its cells in the lines of the text
    std::size_t first_line = 0;
    std::vector<std::string_view> headers;
    std::size_t header_count = 0; ///< empty ones below the others included
    std::size_t value_count = 0;
};

struct ox_csv_state {
    std::vector<ox_csv_column> columns;
    char column_separator = ';';
    char float_separator = ',';
    ox_csv::encoding encoding = ox_csv::encoding_as_held;
    ox_progress_manager* manager = nullptr;
    double progress_min = 0.0;
    double progress_max = 1.0;
};

} // namespace ox

#endif
