#ifndef OX_EXAMPLES_SUPPORT_IMAGE_H
#define OX_EXAMPLES_SUPPORT_IMAGE_H

#include <cstddef>
#include <vector>

namespace ox_examples {

/// A picture of 8-bit RGBA pixels: four bytes per pixel, rows without padding, top row first.
struct image {
    int width = 0;
    int height = 0;
    std::vector<unsigned char> rgba;

    /// Address of the four bytes of the pixel in column `x` (from the left) and row `y` (from the
    /// top), which must lie inside the picture.
    const unsigned char* pixel(int x, int y) const {
        const std::size_t row = static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
        return &rgba[(row + static_cast<std::size_t>(x)) * 4];
    }
};

} // namespace ox_examples

#endif
