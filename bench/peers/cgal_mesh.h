#ifndef OX_BENCH_PEERS_CGAL_MESH_H
#define OX_BENCH_PEERS_CGAL_MESH_H

#include <vector>

#include <CGAL/Exact_predicates_inexact_constructions_kernel.h>
#include <CGAL/Surface_mesh.h>

#include <bench/peers/triangle_mesh.h>

namespace peers {

using cgal_kernel = CGAL::Exact_predicates_inexact_constructions_kernel;
using cgal_mesh = CGAL::Surface_mesh<cgal_kernel::Point_3>;

/// Converts a mesh to a `CGAL::Surface_mesh` over the points of any kernel.
template <class mesh_type = cgal_mesh>
mesh_type to_cgal(const triangle_mesh& mesh) {
    using point = typename mesh_type::Point;
    using coordinate = decltype(std::declval<point>().x() + 0);
    mesh_type made;
    std::vector<typename mesh_type::Vertex_index> vertices;
    for (const std::array<double, 3>& p : mesh.points) {
        vertices.push_back(
            made.add_vertex(point(static_cast<coordinate>(p[0]), static_cast<coordinate>(p[1]),
                                  static_cast<coordinate>(p[2]))));
    }
    for (const std::array<std::size_t, 3>& t : mesh.triangles) {
        made.add_face(vertices[t[0]], vertices[t[1]], vertices[t[2]]);
    }
    return made;
}

} // namespace peers

#endif
