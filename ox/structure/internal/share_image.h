#ifndef OX_STRUCTURE_INTERNAL_SHARE_IMAGE_H
#define OX_STRUCTURE_INTERNAL_SHARE_IMAGE_H

#include <vector>

#include <ox/geometry/ox_box.h>

namespace ox::internal {

/// The picture of the shares: one pixel for each step along x and y.
class share_image {
public:
    /// A white picture of a slab; none when it would be too large. False for none.
    bool start(const ox_box& slab, float step);

    void clear();
    bool exists() const { return !pixels.empty(); }

    /// Paints the stretch [left, right] of the line y in a colour, and the point `beam` with 0.
    void paint(float y, float left, float right, float beam, unsigned int color);

    int get_width() const { return width; }
    int get_height() const { return height; }
    unsigned int* get_pixels() { return pixels.empty() ? nullptr : pixels.data(); }

private:
    int pixel(float coordinate, float first, int count) const;

    int width = 0;
    int height = 0;
    std::vector<unsigned int> pixels;
    float scale = 0.0f; ///< pixels per unit of length
    float min_x = 0.0f;
    float min_y = 0.0f;
};

/// The colour of the n-th beam that is painted; the palette has 12 and starts again.
unsigned int share_color(unsigned int n);

} // namespace ox::internal

#endif
