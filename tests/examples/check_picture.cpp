#include <examples/support/png_file.h>

#include <cstdio>
#include <cstring>
#include <exception>
#include <map>

namespace {

/// The share of its pixels that the most frequent colour may take in a picture that shows
/// something.
constexpr double largest_background = 0.99;

/// Colours that a drawing with smooth edges has at least.
constexpr std::size_t fewest_colours = 16;

bool shows_something(const ox_examples::image& picture) {
    std::map<unsigned int, std::size_t> counts;
    for (std::size_t i = 0; i + 3 < picture.rgba.size(); i += 4) {
        unsigned int colour = 0;
        std::memcpy(&colour, &picture.rgba[i], sizeof colour);
        ++counts[colour];
    }
    std::size_t most = 0;
    for (const auto& entry : counts) {
        most = entry.second > most ? entry.second : most;
    }
    const double nb_pixels = static_cast<double>(picture.rgba.size()) / 4;
    return counts.size() >= fewest_colours &&
           static_cast<double>(most) <= largest_background * nb_pixels;
}

} // namespace

/// `check_picture FILE...`: succeeds when every file is a PNG picture that shows something.
int main(int argc, char** argv) {
    try {
        for (int i = 1; i < argc; ++i) {
            if (!shows_something(ox_examples::read_png(argv[i]))) {
                std::fprintf(stderr, "%s: the picture is blank\n", argv[i]);
                return 1;
            }
        }
        return argc > 1 ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
