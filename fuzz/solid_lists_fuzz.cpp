// Makes solids of vertices, indices and sizes that may contradict each other, and asks them
// everything.

#include <fuzz/shapes.h>

namespace {

using fuzz::byte_reader;
using ox::ox_list;
using ox::ox_solid;

ox_solid listed_solid(byte_reader& bytes) {
    ox_list<ox::ox_3dvector> vertices;
    for (int i = bytes.below(16); i > 0; --i) {
        vertices.push_right(bytes.vector());
    }
    ox_list<int> sizes;
    for (int i = bytes.below(12); i > 0; --i) {
        const int size = bytes.byte();
        sizes.push_right(size == 255 ? -2147483647 - 1
                                     : (size == 254 ? 2147483647 : size % 16 - 6));
    }
    ox_list<unsigned int> contours;
    for (int i = bytes.below(64); i > 0; --i) {
        const unsigned int index = bytes.byte();
        contours.push_right(index == 255 ? 4294967295u : index % 17);
    }
    ox_solid solid;
    solid.set_vertices(vertices);
    solid.set_contours(contours);
    solid.set_contour_sizes(sizes);
    return solid;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_reader bytes(data, size);
    ox_solid solid = listed_solid(bytes);
    fuzz::require_sound(solid);
    fuzz::require(solid.get_open_edges(bytes.coordinate()).size() % 2 == 0);
    solid.check_manifold();
    ox_solid built;
    for (ox::ox_polygon* face : solid.get_faces()) {
        built.add_face(*face);
    }
    fuzz::require_sound(built);
    ox_solid copy = solid;
    fuzz::require(copy.get_faces().size() == solid.get_faces().size());
    return 0;
}
