// Grows and shrinks polygons by any distance and with every kind of join.

#include <fuzz/shapes.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::byte_reader bytes(data, size);
    ox::ox_polygon polygon = fuzz::polygon_of(bytes);
    for (int step = 0; step < 3 && bytes.has_more(); ++step) {
        fuzz::offset(bytes, polygon);
        fuzz::require_sound(polygon);
    }
    return 0;
}
