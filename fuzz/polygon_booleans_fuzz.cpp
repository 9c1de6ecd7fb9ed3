// Unites, cuts out and intersects polygons, the result each time with the next one.

#include <fuzz/shapes.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::byte_reader bytes(data, size);
    ox::ox_polygon polygon = fuzz::polygon_of(bytes);
    for (int step = 0; step < 6 && bytes.has_more(); ++step) {
        const int operation = bytes.below(4);
        const ox::ox_polygon other = fuzz::polygon_of(bytes);
        if (operation == 0) {
            polygon.substracts(other);
        } else if (operation == 1) {
            polygon.intersects(other);
        } else if (operation == 2) {
            polygon.unites(polygon);
        } else {
            polygon.unites(other);
        }
        fuzz::require_sound(polygon);
    }
    polygon.substracts(polygon);
    fuzz::require_sound(polygon);
    return 0;
}
