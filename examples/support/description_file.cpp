#include <examples/support/description_file.h>

#include <cstdint>
#include <filesystem>
#include <fstream>

namespace ox_examples {

namespace {

/// Bytes. A hundred times the largest description we know; larger files are no descriptions.
constexpr std::uintmax_t largest_file = 1 << 20;

const std::string byte_order_mark = "\xEF\xBB\xBF";

} // namespace

std::vector<std::string> read_lines(const std::string& path) {
    const std::string obstacle = obstacle_to_reading(path);
    if (!obstacle.empty()) {
        throw description_error(path, 0, obstacle);
    }
    std::error_code error;
    if (std::filesystem::file_size(path, error) > largest_file) {
        throw description_error(path, 0, "too large for a description");
    }
    std::ifstream file(path);
    std::vector<std::string> lines;
    for (std::string text; std::getline(file, text);) {
        lines.push_back(text);
    }
    if (!file.eof()) {
        throw description_error(path, 0, "the file cannot be read");
    }
    if (!lines.empty() && lines[0].rfind(byte_order_mark, 0) == 0) {
        lines[0].erase(0, byte_order_mark.size());
    }
    return lines;
}

} // namespace ox_examples
