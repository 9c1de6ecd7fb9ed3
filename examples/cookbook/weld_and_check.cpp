// A soup of triangles welded, and the sides that have no neighbour found.
#include <ox/mesh/ox_mesh.h>
#include <ox/mesh/ox_triangle_set.h>

#include <cstdio>

int main() {
    // A pyramid without its base: four triangles, each with corners of its own.
    const ox::ox_3dvector ground[] = {
        {0.1f, 0.1f, 0.1f}, {2.1f, 0.1f, 0.1f}, {2.1f, 2.1f, 0.1f}, {0.1f, 2.1f, 0.1f}};
    const ox::ox_3dvector top(1.1f, 1.1f, 1.6f);
    ox::ox_triangle_set soup(12, 4);
    for (unsigned int side = 0; side < 4; ++side) {
        soup.get_vertices()[3 * side] = ground[side];
        soup.get_vertices()[3 * side + 1] = ground[(side + 1) % 4];
        soup.get_vertices()[3 * side + 2] = top;
    }
    for (unsigned int i = 0; i < 12; ++i) {
        soup.get_triangles()[i] = i;
    }

    soup.optimize(0.001f, 10.0f);
    std::printf("12 corners became %u vertices\n", soup.get_nb_vertices());

    ox::ox_mesh mesh;
    mesh.add(soup);
    mesh.build_half_edges();
    for (const ox::ox_mesh::ox_half_edge* side : mesh.get_half_edges()) {
        if (side->opposite == nullptr) {
            std::printf("open: vertex %u to %u, triangle %u\n", side->start, side->end,
                        side->triangle);
        }
    }
}
