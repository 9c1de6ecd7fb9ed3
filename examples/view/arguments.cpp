#include <examples/view/arguments.h>

#include <cstdlib>
#include <stdexcept>
#include <vector>

namespace view {

namespace {

/// A pixel coordinate from 0 to `size`.
float pixel(const std::string& text, int size) {
    char* end = nullptr;
    const float value = std::strtof(text.c_str(), &end);
    const bool is_number = !text.empty() && *end == '\0';
    if (!is_number || !(value >= 0.f && value <= static_cast<float>(size))) {
        throw std::invalid_argument("'" + text + "' is no pixel from 0 to " + std::to_string(size));
    }
    return value;
}

} // namespace

arguments parse(int argc, char** argv) {
    const std::vector<std::string> words(argv, argv + argc);
    arguments result;
    for (std::size_t i = 1; i < words.size(); ++i) {
        const std::size_t nb_following = words.size() - i - 1;
        if (words[i] == "--out" && nb_following >= 1) {
            result.folder = words[++i];
        } else if (words[i] == "--pick" && nb_following >= 2) {
            result.pick_x = pixel(words[++i], picture_width);
            result.pick_y = pixel(words[++i], picture_height);
        } else if (words[i].rfind("--", 0) != 0 && result.description.empty()) {
            result.description = words[i];
        } else {
            throw std::invalid_argument("unexpected '" + words[i] + "'");
        }
    }
    if (result.description.empty()) {
        throw std::invalid_argument("a description is needed");
    }
    return result;
}

} // namespace view
