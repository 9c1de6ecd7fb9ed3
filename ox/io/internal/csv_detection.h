#ifndef OX_IO_INTERNAL_CSV_DETECTION_H
#define OX_IO_INTERNAL_CSV_DETECTION_H

#include <cstddef>
#include <string>

#include <ox/io/internal/cell_text.h>

namespace ox::internal {

/// A separator, and what a text then holds.
struct separator_choice {
    char separator;
    std::size_t cell_count; ///< that a separator or a line break follows
    std::size_t line_break_count;
};

/// Chooses the separator that occurs most evenly in the lines of `text`. Logs the candidates'
/// scores.
separator_choice choose_separator(const std::string& text);

/// The number of header lines of a text with that many line breaks. Logs it.
std::size_t count_header_lines(const cell_text& text, std::size_t line_break_count);

} // namespace ox::internal

#endif
