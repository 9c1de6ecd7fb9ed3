#ifndef OX_EXAMPLES_VIEW_ARGUMENTS_H
#define OX_EXAMPLES_VIEW_ARGUMENTS_H

#include <string>
#include <utility>

namespace CLI {
class App;
}

namespace view {

/// Pixels of each picture.
constexpr int picture_width = 1200;
constexpr int picture_height = 800;

/// What the command line asks for.
struct arguments {
    std::string description;
    std::string folder = "."; ///< for the pictures
    /// A pixel beside a window of the house in building/descriptions.
    std::pair<float, float> pick = {792.0f, 571.0f};
};

/// Declares the command line `DESCRIPTION [--pick X Y] [--out FOLDER]`, which changes `wanted`.
void declare(CLI::App& line, arguments& wanted);

} // namespace view

#endif
