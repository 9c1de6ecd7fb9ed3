#include <ox/structure/internal/share_image.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <new>

#include <ox/structure/internal/tolerances.h>

namespace ox::internal {

namespace {

constexpr unsigned int white = 0xFFFFFFFFu;

/// The picture's size along one axis; in floating point, since it may be far too large.
double pixel_count(float length, float step) {
    return std::trunc(static_cast<double>(length / step)) + 1.0;
}

} // namespace

bool share_image::start(const ox_box& slab, float step) {
    clear();
    const double columns = pixel_count(slab.size.x, step);
    const double rows = pixel_count(slab.size.y, step);
    if (!(columns >= 1.0 && rows >= 1.0 && columns * rows <= most_pixels)) {
        return false;
    }
    try {
        pixels.assign(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), white);
    } catch (const std::bad_alloc&) {
        return false;
    }
    width = static_cast<int>(columns);
    height = static_cast<int>(rows);
    scale = 1.0f / step;
    min_x = slab.origin.x;
    min_y = slab.origin.y;
    return true;
}

void share_image::clear() {
    std::vector<unsigned int>().swap(pixels);
    width = 0;
    height = 0;
}

int share_image::pixel(float coordinate, float first, int count) const {
    const double place = static_cast<double>((coordinate - first) * scale + 0.5f);
    const double last = static_cast<double>(count - 1);
    return place > 0.0 ? static_cast<int>(std::min(place, last)) : 0;
}

void share_image::paint(float y, float left, float right, float beam, unsigned int color) {
    const std::size_t row = static_cast<std::size_t>(pixel(y, min_y, height));
    unsigned int* const line = pixels.data() + row * static_cast<std::size_t>(width);
    const int last = pixel(right, min_x, width);
    for (int column = pixel(left, min_x, width); column <= last; ++column) {
        line[column] = color;
    }
    line[pixel(beam, min_x, width)] = 0;
}

/// The ninth and the tenth colour are the same.
unsigned int share_color(unsigned int n) {
    static const unsigned int palette[] = {0xFF0000FFu, 0xFF00FF00u, 0xFFFF0000u, 0xFFFFFF00u,
                                           0xFFFF00FFu, 0xFF00FFFFu, 0xFFFFFF64u, 0xFFFF64FFu,
                                           0xFF6464FFu, 0xFF6464FFu, 0xFF64FF64u, 0xFFFF6464u};
    return palette[n % 12];
}

} // namespace ox::internal
