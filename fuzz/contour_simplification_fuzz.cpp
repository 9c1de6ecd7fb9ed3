// Simplifies contours. What is left are vertices of the contour, bit for bit and in their order.

#include <cstring>

#include <fuzz/shapes.h>

namespace {

using ox::ox_3dvector;
using contour_list = ox::ox_list<ox_3dvector>;

bool is_same(const ox_3dvector& a, const ox_3dvector& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

/// True if `some` are elements of `all` in their order.
bool is_part_of(const contour_list& some, const contour_list& all) {
    int found = 0;
    for (const ox_3dvector& vertex : all) {
        found += found < some.size() && is_same(some[found], vertex) ? 1 : 0;
    }
    return found == some.size();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::byte_reader bytes(data, size);
    const float tolerance = bytes.coordinate();
    const ox_3dvector normal = bytes.vector();
    contour_list contour;
    for (int parts = 1 + bytes.below(6); parts > 0; --parts) {
        for (const ox_3dvector& vertex : bytes.contour()) {
            contour.push_right(vertex);
        }
    }
    contour_list by_own_normal = contour;
    ox::ox_polygon::optimize_contour(by_own_normal, tolerance);
    fuzz::require(is_part_of(by_own_normal, contour));
    contour_list by_given_normal = contour;
    ox::ox_polygon::optimize_contour(by_given_normal, normal, tolerance);
    fuzz::require(is_part_of(by_given_normal, contour));
    ox::ox_polygon polygon = fuzz::polygon_of(bytes);
    polygon.optimize_contours(tolerance);
    fuzz::require_sound(polygon);
    return 0;
}
