// The triangles of a solid as an index buffer with one vertex for each place.
#include <ox/mesh/ox_vertex_optimizer.h>
#include <ox/solid/ox_solid.h>

#include <cstdio>

int main() {
    ox::ox_solid step;
    step.brick(ox::ox_3dvector(0, 0, 0), 1.2f, 0.3f, 0.18f); // metres

    // Faces do not share vertices: each corner is there once for each of its three faces.
    const ox::ox_list<ox::ox_3dvector>& corners = step.get_tesselation_vertices();
    const ox::ox_list<unsigned int>& triangles = step.get_tesselation_triangles();

    ox::ox_vertex_optimizer welder(0.0001f, 0.0f);
    welder.add_vertices(corners);
    ox::ox_list<unsigned int> indices;
    for (const unsigned int corner : triangles) {
        indices.push_right(welder.get_mapping()[static_cast<int>(corner)]);
    }

    std::printf("%d corners, %d vertices, %d triangles\n", corners.size(),
                welder.get_optimized_vertices().size(), indices.size() / 3);
    for (int i = 0; i + 2 < indices.size(); i += 3) {
        std::printf("%u %u %u\n", indices[i], indices[i + 1], indices[i + 2]);
    }
}
