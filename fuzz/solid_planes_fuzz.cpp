// Clips solids, cuts them by planes and projects them on planes.

#include <memory>

#include <fuzz/shapes.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::byte_reader bytes(data, size);
    ox::ox_solid solid = fuzz::solid_of(bytes);
    for (int step = 0; step < 3 && bytes.has_more(); ++step) {
        const ox::ox_3dvector point = bytes.vector();
        const ox::ox_3dvector normal = bytes.vector();
        for (ox::ox_polygon* piece : solid.intersect_by_plane(point, normal)) {
            const std::unique_ptr<ox::ox_polygon> owner(piece);
            fuzz::require_sound(*piece);
        }
        const std::unique_ptr<ox::ox_polygon> outline(solid.project_on_plane(point, normal));
        fuzz::require_sound(*outline);
        solid.clip(point, normal);
        fuzz::require_sound(solid);
    }
    return 0;
}
