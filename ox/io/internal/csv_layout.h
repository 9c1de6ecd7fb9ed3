#ifndef OX_IO_INTERNAL_CSV_LAYOUT_H
#define OX_IO_INTERNAL_CSV_LAYOUT_H

#include <cstddef>
#include <string>
#include <vector>

namespace ox {

/// The separator that occurs most evenly in the lines of `text`. Logs the candidates' scores.
char detect_separator(const std::string& text);

/// What has to be known of a text before its cells can be stored.
struct csv_layout {
    std::size_t nb_header_lines = 0;
    std::vector<std::size_t> nb_cells; ///< for each column, how many cells the text stores in it
};

/// Measures a text with the given separator. Logs the number of header lines.
csv_layout measure_layout(const std::string& text, char separator);

} // namespace ox

#endif
