#ifndef OX_EXAMPLES_SUPPORT_UTF8_H
#define OX_EXAMPLES_SUPPORT_UTF8_H

#include <cstddef>
#include <string>
#include <string_view>

namespace ox_examples {

/// How many bytes the character at the begin of `text` takes in UTF-8: 1 to 4; 0 when these bytes
/// are no UTF-8, or there are none.
std::size_t first_character_size(std::string_view text);

/// How many characters a text has; a byte that is no UTF-8 counts as one.
std::size_t count_characters(std::string_view text);

/// The first `count` characters of a text, or all of it when it is shorter.
std::string first_characters(std::string_view text, std::size_t count);

/// A text filled up with blanks to `width` characters; a longer one as it is.
std::string padded(const std::string& text, std::size_t width);

} // namespace ox_examples

#endif
