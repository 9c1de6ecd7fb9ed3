#include "mesh_edges.h"

#include <algorithm>
#include <utility>

namespace reference {

namespace {

/// For each smaller vertex index the pairs (larger index, middle).
using edge_lists = std::vector<std::vector<std::pair<unsigned int, unsigned int>>>;

unsigned int middle_of(plain_mesh& mesh, edge_lists& edges, unsigned int a, unsigned int b) {
    const unsigned int low = std::min(a, b);
    const unsigned int high = std::max(a, b);
    for (const auto& [larger, middle] : edges[low]) {
        if (larger == high) {
            return middle;
        }
    }
    const unsigned int added = static_cast<unsigned int>(mesh.vertices.size());
    mesh.vertices.push_back((mesh.vertices[low] + mesh.vertices[high]) * 0.5f);
    edges[low].push_back({high, added});
    return added;
}

} // namespace

void subdivide(plain_mesh& mesh) {
    edge_lists edges(mesh.vertices.size());
    std::vector<unsigned int> refined;
    for (std::size_t first = 0; first + 2 < mesh.triangles.size(); first += 3) {
        const unsigned int a = mesh.triangles[first];
        const unsigned int b = mesh.triangles[first + 1];
        const unsigned int c = mesh.triangles[first + 2];
        const unsigned int m0 = middle_of(mesh, edges, a, b);
        const unsigned int m1 = middle_of(mesh, edges, b, c);
        const unsigned int m2 = middle_of(mesh, edges, c, a);
        const unsigned int parts[] = {a, m0, m2, b, m1, m0, c, m2, m1, m0, m1, m2};
        refined.insert(refined.end(), std::begin(parts), std::end(parts));
    }
    mesh.triangles = refined;
}

std::vector<int> opposites(const plain_mesh& mesh) {
    const std::size_t nb_sides = mesh.triangles.size() / 3 * 3;
    const auto end_of = [&](std::size_t side) {
        return mesh.triangles[side % 3 == 2 ? side - 2 : side + 1];
    };
    std::vector<std::vector<std::size_t>> by_start(mesh.vertices.size());
    for (std::size_t side = 0; side < nb_sides; ++side) {
        by_start[mesh.triangles[side]].push_back(side);
    }
    std::vector<int> found(nb_sides, -1);
    for (std::size_t side = 0; side < nb_sides; ++side) {
        for (const std::size_t candidate : by_start[end_of(side)]) {
            if (end_of(candidate) == mesh.triangles[side]) {
                found[side] = static_cast<int>(candidate);
                break;
            }
        }
    }
    return found;
}

} // namespace reference
