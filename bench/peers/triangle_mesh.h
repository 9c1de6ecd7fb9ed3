#ifndef OX_BENCH_PEERS_TRIANGLE_MESH_H
#define OX_BENCH_PEERS_TRIANGLE_MESH_H

#include <array>
#include <cstddef>
#include <vector>

namespace peers {

/// A mesh as every peer can read it: points and outward triangles.
struct triangle_mesh {
    std::vector<std::array<double, 3>> points;
    std::vector<std::array<std::size_t, 3>> triangles;
};

/// An axis-aligned box.
inline triangle_mesh box_mesh(double x, double y, double z, double dx, double dy, double dz) {
    triangle_mesh box;
    for (int corner = 0; corner < 8; ++corner) {
        box.points.push_back({x + ((corner & 1) != 0 ? dx : 0.0),
                              y + ((corner & 2) != 0 ? dy : 0.0),
                              z + ((corner & 4) != 0 ? dz : 0.0)});
    }
    box.triangles = {{0, 3, 1}, {0, 2, 3}, {4, 5, 7}, {4, 7, 6}, {0, 1, 5}, {0, 5, 4},
                     {2, 7, 3}, {2, 6, 7}, {0, 6, 2}, {0, 4, 6}, {1, 3, 7}, {1, 7, 5}};
    return box;
}

} // namespace peers

#endif
