#ifndef OX_EXAMPLES_SUPPORT_PNG_FILE_H
#define OX_EXAMPLES_SUPPORT_PNG_FILE_H

#include <examples/support/image.h>

#include <string>

namespace ox_examples {

/// Writes `picture` as a PNG file. The file appears whole or not at all: a temporary file beside it
/// is written first and then renamed. Throws `std::runtime_error`, leaving no temporary file and an
/// earlier file of that name untouched, when the picture is empty or inconsistent or the file
/// cannot be written.
void write_png(const std::string& path, const image& picture);

/// Reads a PNG file of any kind as 8-bit RGBA. Throws `std::runtime_error` when it cannot be opened
/// or is not a sound PNG file.
image read_png(const std::string& path);

} // namespace ox_examples

#endif
