#ifndef OX_EXAMPLES_SUPPORT_DESCRIPTION_FILE_H
#define OX_EXAMPLES_SUPPORT_DESCRIPTION_FILE_H

#include <examples/support/input_file.h>

#include <string>
#include <vector>

namespace ox_examples {

/// What is wrong with a description, as `file:line: reason`; line 0 stands for the file as a whole.
class description_error : public input_error {
public:
    description_error(const std::string& file, int line, const std::string& reason)
        : input_error(file + ":" + std::to_string(line) + ": " + reason) {}
};

/// Refuses a description unless a condition holds.
class requirement {
public:
    explicit requirement(const std::string& file_name) : file(file_name) {}

    /// Throws a `description_error` with the line and the reason unless the condition holds.
    void operator()(bool condition, int line, const std::string& reason) const {
        if (!condition) {
            throw description_error(file, line, reason);
        }
    }

private:
    std::string file;
};

/// The lines of the file at `path`, which must be a plain one of at most a megabyte, without the
/// byte order mark that some editors put before the first. Throws `description_error`.
std::vector<std::string> read_lines(const std::string& path);

} // namespace ox_examples

#endif
