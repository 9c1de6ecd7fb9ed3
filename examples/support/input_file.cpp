#include <examples/support/input_file.h>

#include <filesystem>
#include <fstream>

namespace ox_examples {

namespace fs = std::filesystem;

std::string obstacle_to_reading(const std::string& path) {
    std::error_code error;
    switch (fs::status(path, error).type()) {
    case fs::file_type::regular:
        return std::ifstream(path) ? "" : "the file cannot be opened";
    case fs::file_type::directory:
        return "this is a folder";
    case fs::file_type::not_found:
        return "no such file";
    case fs::file_type::none:
        return error.message();
    default:
        return "this is no plain file";
    }
}

void require_readable(const std::string& path) {
    const std::string obstacle = obstacle_to_reading(path);
    if (!obstacle.empty()) {
        throw input_error(path + ": " + obstacle);
    }
}

} // namespace ox_examples
