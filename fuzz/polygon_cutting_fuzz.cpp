// Cuts polygons by planes, asks where planes meet them, and splits them into pieces.

#include <fuzz/shapes.h>
#include <ox/polygon/ox_polygon_pieces.h>

namespace {

using ox::ox_polygon;
using ox::ox_polygon_pieces;

void require_sound_pieces(const ox_polygon_pieces& pieces) {
    for (ox_polygon* piece : pieces) {
        fuzz::require_sound(*piece);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::byte_reader bytes(data, size);
    ox_polygon polygon = fuzz::polygon_of(bytes);
    for (int step = 0; step < 4 && bytes.has_more(); ++step) {
        const bool both_sides = bytes.below(2) == 0;
        const ox::ox_3dvector point = bytes.vector();
        const ox::ox_3dvector normal = bytes.vector();
        fuzz::require(polygon.intersect_by_plane(point, normal).size() % 2 == 0);
        const ox_polygon_pieces cut(polygon, polygon.cut_by_plane(point, normal, both_sides));
        fuzz::require(cut.size() <= 2);
        require_sound_pieces(cut);
    }
    const ox_polygon_pieces parts(polygon, polygon.split_to_polygons());
    for (ox_polygon* part : parts) {
        fuzz::require(parts.is_receiver() || part->count_outer_contours() == 1);
        fuzz::require(!(part->get_area() < 0.0f));
    }
    fuzz::require(polygon.split_to_convex_polygons().size() <= 1);
    return 0;
}
