#ifndef OX_EXAMPLES_VIEW_ARGUMENTS_H
#define OX_EXAMPLES_VIEW_ARGUMENTS_H

#include <string>

namespace view {

/// Pixels of each picture.
constexpr int picture_width = 1200;
constexpr int picture_height = 800;

/// What the command line asks for.
struct arguments {
    std::string description;
    std::string folder = "."; ///< for the pictures
    float pick_x = 792;       ///< beside a window of the house in building/descriptions
    float pick_y = 571;
};

/// Reads `DESCRIPTION [--pick X Y] [--out DIR]`. Throws `std::invalid_argument` with the reason
/// when the command line is something else.
arguments parse(int argc, char** argv);

} // namespace view

#endif
