// Grows and shrinks polygons by any distance and with every kind of join.

#include <cmath>

#include <fuzz/shapes.h>

namespace {

/// Longer arcs, and arcs at the corners of arcs, take longer than an input may.
constexpr float longest_round = 4.0f;
constexpr int most_vertices = 200;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::byte_reader bytes(data, size);
    ox::ox_polygon polygon = fuzz::polygon_of(bytes);
    for (int step = 0; step < 3 && bytes.has_more(); ++step) {
        const float distance = bytes.coordinate();
        const int join = bytes.below(4);
        const bool is_round = join == ox::ox_polygon::join_round && std::isfinite(distance);
        if (polygon.get_contour_vertices().size() > most_vertices) {
            break;
        }
        if (!is_round || std::fabs(distance) < longest_round) {
            polygon.offset(distance, join);
        }
        fuzz::require_sound(polygon);
    }
    return 0;
}
