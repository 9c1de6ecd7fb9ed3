#ifndef OX_MESH_INTERNAL_WELDING_LEAF_GRID_H
#define OX_MESH_INTERNAL_WELDING_LEAF_GRID_H

#include <cmath>
#include <cstdint>

#include <ox/geometry/ox_3dvector.h>
#include <ox/mesh/internal/welding/vertex_octree.h>

namespace ox::internal {

/// The leaves of a vertex octree as a uniform grid, which needs no walk through the tree.
///
/// They are one as long as no origin of a cell is rounded: then every cell of edge e starts at the
/// root's origin plus a whole multiple of e, a former root where its parent would put it, and the
/// octant tests compare with exact middles. Root edges are powers of two from 1 up, and the root's
/// origin is minus a sum of such edges, hence 0 or a whole number. So the numbers that a walk meets
/// are multiples of `unit`: the leaf's edge when the root's origin is 0, otherwise the smaller one
/// of the leaf's edge and 1. Single precision holds 2^24 of them: all whole numbers of the root,
/// when its edge is at most 2^24, and finer ones, which occur only within 1 of the vertex, near
/// vertices that the grid `covers`. An origin of 0 leaves the multiples of every edge exact.
class leaf_grid {
public:
    /// The leaves of edge `leaf_edge`, a power of two not above the root's edge.
    leaf_grid(const octree_cell& root, float leaf_edge);

    /// True if the leaves are a grid, at least near the origin. The other members may be
    /// used only when they are.
    bool is_exact() const { return exact; }

    /// True if the grid holds at a vertex within the root.
    bool covers(const ox_3dvector& p) const {
        return covers_root ||
               (std::fabs(p.x) <= limit && std::fabs(p.y) <= limit && std::fabs(p.z) <= limit);
    }

    /// True if two vertices that the grid covers lie in the same leaf.
    bool same_leaf(const ox_3dvector& p, const ox_3dvector& q) const;

    /// A hash of the leaf that a vertex lies in which the grid covers.
    std::uint64_t hash_of_leaf(const ox_3dvector& p) const;

    /// The edge of a leaf.
    float leaf_edge() const { return edge; }

private:
    double cell_of(float coordinate, float origin) const;

    ox_3dvector root_origin;
    float edge;
    double unit;
    float limit; ///< of the coordinates, to both sides of 0
    bool exact;
    bool covers_root;
};

} // namespace ox::internal

#endif
