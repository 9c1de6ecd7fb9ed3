#ifndef OX_EXAMPLES_SUPPORT_STROKE_FONT_H
#define OX_EXAMPLES_SUPPORT_STROKE_FONT_H

#include <vector>

namespace ox_examples {

/// The letters of the example pictures, as a draughtsman writes them: lines on a grid four units
/// wide, six units from the base line to the top of a capital and two units below the base line.

struct stroke_point {
    int x = 0; ///< units from the left
    int y = 0; ///< units above the base line
};

using stroke = std::vector<stroke_point>;

constexpr double stroke_font_cap_height = 6;
constexpr double stroke_font_gap = 2; ///< between two characters
constexpr double stroke_font_advance = 4 + stroke_font_gap;

/// The lines of a character: none for a blank, a box for one that the font lacks.
std::vector<stroke> strokes_of(char c);

} // namespace ox_examples

#endif
