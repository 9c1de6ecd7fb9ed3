#ifndef OX_MESH_INTERNAL_LEAF_GRID_H
#define OX_MESH_INTERNAL_LEAF_GRID_H

#include <cstdint>

#include <ox/geometry/ox_3dvector.h>
#include <ox/mesh/internal/vertex_octree.h>

namespace ox {

/// The leaves of a vertex octree as a uniform grid, which needs no walk through the tree.
///
/// They are one as long as no origin of a cell is rounded: then every cell of edge e starts at the
/// root's origin plus a whole multiple of e, a former root where its parent would put it, and the
/// octant tests compare with exact middles. Root edges are powers of two from 1 up, and the root's
/// origin is minus a sum of such edges, hence 0 or a whole number. So all origins are multiples of
/// `unit`, the leaf's edge when the root's origin is 0 and otherwise the smaller one of the leaf's
/// edge and 1, and not larger than the root's edge; single precision holds them when the root has
/// at most 2^24 units along its edge.
class oxp_leaf_grid {
public:
    /// The leaves of edge `leaf_edge`, a power of two not above the root's edge.
    oxp_leaf_grid(const oxp_octree_cell& root, float leaf_edge);

    /// Tells whether the leaves are a grid. The other members may be used only when they are.
    bool is_exact() const { return exact; }

    /// Tells whether two vertices within the root lie in the same leaf.
    bool same_leaf(const ox_3dvector& p, const ox_3dvector& q) const;

    /// A hash of the leaf that a vertex within the root lies in.
    std::uint64_t hash_of_leaf(const ox_3dvector& p) const;

    /// The edge of a leaf.
    float leaf_edge() const { return edge; }

private:
    double cell_of(float coordinate, float origin) const;

    ox_3dvector root_origin;
    float edge;
    double unit;
    bool exact;
};

} // namespace ox

#endif
