// Asks the two-dimensional frame of a polygon: what contains a point, and what a ray meets.

#include <fuzz/shapes.h>
#include <ox/polygon/ox_polygon_projection.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::byte_reader bytes(data, size);
    ox::ox_polygon polygon = fuzz::polygon_of(bytes);
    const ox::ox_polygon_projection frame(bytes.below(32) == 0 ? nullptr : &polygon,
                                          bytes.coordinate());
    for (int step = 0; step < 6 && bytes.has_more(); ++step) {
        const ox::ox_2dvector start = frame.world_to_polygon(bytes.vector());
        const ox::ox_2dvector direction = frame.world_vector_to_polygon(bytes.vector());
        ox::ox_2dvector hit;
        ox::ox_2dvector edge;
        float distance = 0.0f;
        frame.raytrace(start, direction, hit, edge, distance);
        fuzz::require(frame.contains(start) == frame.contains(start.x, start.y));
        frame.polygon_to_world(start);
        frame.polygon_vector_to_world(direction);
    }
    return 0;
}
