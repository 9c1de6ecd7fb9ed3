// Unites, cuts out and intersects solids face by face, the result each time with the next one.

#include <fuzz/shapes.h>

namespace {

using ox::ox_solid;

/// Results of more faces are not worked on: the time for one input is limited.
constexpr int most_faces = 60;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::byte_reader bytes(data, size);
    ox_solid solid = fuzz::solid_of(bytes);
    for (int step = 0; step < 4 && bytes.has_more(); ++step) {
        const int operation = bytes.below(3);
        ox_solid other = fuzz::solid_of(bytes);
        const int vertices = other.get_vertices().size();
        if (operation == 0) {
            solid.unites(other);
        } else if (operation == 1) {
            solid.substracts(other);
        } else {
            solid.intersects(other);
        }
        fuzz::require(other.get_vertices().size() == vertices);
        fuzz::require_sound(solid);
        if (solid.get_faces().size() > most_faces) {
            break;
        }
    }
    return 0;
}
