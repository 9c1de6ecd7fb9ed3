// Builds the half-edges of any triangles. An opposite runs back, and a mesh is closed where each
// half-edge has one.

#include <fuzz/byte_reader.h>
#include <fuzz/require.h>
#include <ox/mesh/ox_mesh.h>

namespace {

using ox::ox_list;
using ox::ox_mesh;

ox_list<unsigned int> triangles_of(fuzz::byte_reader& bytes, int vertex_count) {
    ox_list<unsigned int> triangles;
    while (bytes.has_more()) {
        const int index = bytes.byte();
        triangles.push_right(index == 255 ? 4294967295u
                                          : static_cast<unsigned int>(index % (vertex_count + 1)));
    }
    return triangles;
}

void require_opposites(const ox_mesh& mesh) {
    bool is_closed = true;
    for (const ox_mesh::ox_half_edge* edge : mesh.get_half_edges()) {
        is_closed = is_closed && edge->opposite != nullptr;
        if (edge->opposite != nullptr) {
            fuzz::require(edge->opposite->start == edge->end);
            fuzz::require(edge->opposite->end == edge->start);
        }
    }
    fuzz::require(mesh.is_closed() == is_closed);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::byte_reader bytes(data, size);
    const int vertex_count = bytes.below(24);
    ox_list<ox::ox_3dvector> vertices;
    vertices.set_size(vertex_count);
    ox_mesh mesh;
    mesh.set_vertices(vertices);
    mesh.set_triangles(triangles_of(bytes, vertex_count));
    mesh.build_half_edges();
    fuzz::require(mesh.get_half_edges().size() == mesh.get_triangles().size() / 3 * 3);
    require_opposites(mesh);
    mesh.set_triangles(ox_list<unsigned int>());
    mesh.build_half_edges();
    fuzz::require(mesh.is_closed());
    return 0;
}
