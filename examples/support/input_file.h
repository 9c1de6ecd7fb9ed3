#ifndef OX_EXAMPLES_SUPPORT_INPUT_FILE_H
#define OX_EXAMPLES_SUPPORT_INPUT_FILE_H

#include <stdexcept>
#include <string>

namespace ox_examples {

/// What is wrong with a file that the command line names.
class input_error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Why there is no plain file to read at `path`: "no such file", "a folder", ...; empty when there
/// is one. A device has no end, so it is no plain file.
std::string obstacle_to_reading(const std::string& path);

/// Throws an `input_error` unless there is a plain file to read at `path`.
void require_readable(const std::string& path);

} // namespace ox_examples

#endif
