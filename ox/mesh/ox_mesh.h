#ifndef OX_MESH_OX_MESH_H
#define OX_MESH_OX_MESH_H

#include <memory>

#include <ox/core/ox_export.h>
#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox {

class ox_mesh_state;
class ox_triangle_set;

/// An indexed triangle mesh that can derive its half-edges: one for each side of a triangle, linked
/// to the opposite one in the neighbouring triangle.
///
/// Representation: a list of vertices (model units), a flat list of vertex indices, three for each
/// triangle, and the half-edges of the last build. Setting vertices or triangles leaves the
/// half-edges as they are until the next build.
///
/// Degenerate input:
/// - a side shared by more than two triangles: each half-edge is linked to the first that runs the
///   other way, so the opposite of an opposite may be another half-edge;
/// - neighbours of unequal orientation: no link over their common side, and the mesh is not closed;
/// - a side from a vertex to itself: it is its own way back, so it finds an opposite, possibly
///   itself;
/// - an index not below the vertex count: its sides get no opposite, and the mesh is not closed;
/// - a last triangle of fewer than three indices: ignored;
/// - no triangles: the mesh is closed once it is built.
///
/// Ownership: copies share one state, and a change through one is seen through the other. The mesh
/// owns the half-edges; pointers to them live until the next build or the end of the last copy.
///
/// \code
///   ox::ox_mesh mesh;
///   mesh.set_vertices(vertices);
///   mesh.set_triangles(indices);
///   mesh.build_half_edges();
///   const bool closed = mesh.is_closed();
/// \endcode
///
/// Closed is a statement about indices, not about places. A mesh that looks watertight is not
/// closed where vertices of one place are still apart: those on either side of an octree cell of
/// `ox_vertex_optimizer` or `ox_triangle_set::optimize`, whose borders lie at round coordinates,
/// where walls in metres lie too. Nor is it where the corner of one triangle lies along the side of
/// another. And triangles without area, as a tessellation makes them of openings with sills of one
/// height, may close it where they only fold back. `ox_csg::get_triangles` gives indices that are
/// closed.
class OX_EXPORT ox_mesh {
public:
    /// A side of a triangle, run through in the triangle's direction.
    struct ox_half_edge {
        unsigned int start = 0;           ///< index of the vertex it leaves
        unsigned int end = 0;             ///< index of the vertex it reaches
        unsigned int triangle = 0;        ///< index of its triangle
        unsigned int reserved = 0;        ///< not used
        ox_half_edge* opposite = nullptr; ///< one that runs from `end` to `start`, or null
    };

    /// A mesh without vertices, triangles and half-edges.
    ox_mesh();

    /// A mesh that shares the state of `other`. O(1).
    ox_mesh(const ox_mesh& other);

    /// Lets go of the state and shares that of `other`. O(1).
    ox_mesh& operator=(const ox_mesh& other);

    /// Lets go of the state.
    virtual ~ox_mesh();

    /// Replaces the vertices by a copy of `vertices`. O(n).
    void set_vertices(const ox_list<ox_3dvector>& vertices);

    /// Replaces the vertex indices by a copy of `triangles`. O(n).
    void set_triangles(const ox_list<unsigned int>& triangles);

    /// Appends the vertices and triangles of `set`, whose indices then count from the vertices that
    /// were here before; nothing is welded, and the half-edges stay those of the last build. An
    /// allocation that fails leaves the mesh as it was; so does, with one, a sum of more than
    /// 2^31 - 1 vertices or indices. O(n) for all vertices and triangles.
    void add(const ox_triangle_set& set);

    /// The vertices.
    const ox_list<ox_3dvector>& get_vertices() const;

    /// Three vertex indices for each triangle.
    const ox_list<unsigned int>& get_triangles() const;

    /// The half-edges of the last build: for each triangle (a, b, c) in order the sides ab, bc, ca.
    const ox_list<ox_half_edge*>& get_half_edges() const;

    /// Replaces the half-edges by those of the current vertices and triangles. The earlier ones no
    /// longer exist. An allocation that fails leaves them as they were. O(n log k) for n
    /// triangles and vertices, k triangles at a vertex.
    void build_half_edges();

    /// True if every half-edge of the last build has an opposite; false before the first one.
    bool is_closed() const;

private:
    std::shared_ptr<ox_mesh_state> state;
};

} // namespace ox

#endif
