// Asks a polygon everything that leaves it as it is.

#include <fuzz/shapes.h>

namespace {

using fuzz::byte_reader;
using ox::ox_3dvector;
using ox::ox_polygon;

void ask(byte_reader& bytes, ox_polygon& polygon) {
    switch (bytes.below(6)) {
    case 0:
        polygon.contains(bytes.vector());
        break;
    case 1:
        polygon.is_convex(static_cast<int>(bytes.byte()) - 1);
        break;
    case 2:
        fuzz::require(!(polygon.get_perimeter() < 0.0f));
        break;
    case 3:
        polygon.get_best_center();
        break;
    case 4:
        fuzz::require(polygon.count_outer_contours() <= polygon.get_contour_sizes().size());
        break;
    default:
        polygon.may_intersect(polygon.get_bounding_box());
        break;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_reader bytes(data, size);
    ox_polygon polygon = fuzz::polygon_of(bytes);
    for (int i = 0; i < 8; ++i) {
        ask(bytes, polygon);
    }
    fuzz::require_sound(polygon);
    const ox_polygon copy = polygon;
    fuzz::require(copy.get_normal() == polygon.get_normal() ||
                  polygon.get_normal() != polygon.get_normal());
    polygon.reverse();
    fuzz::require_sound(polygon);
    return 0;
}
