#ifndef OX_MESH_INTERNAL_WELDING_VERTEX_OCTREE_H
#define OX_MESH_INTERNAL_WELDING_VERTEX_OCTREE_H

#include <array>
#include <cstdint>
#include <vector>

#include <ox/geometry/ox_3dvector.h>

namespace ox::internal {

/// A cubic cell: the points whose coordinates lie in [origin, origin + edge) on every axis.
struct octree_cell {
    ox_3dvector origin;
    float edge = 0.0f;

    /// True if the cell contains p; no cell contains a NaN or infinite coordinate.
    bool contains(const ox_3dvector& p) const {
        return origin.x <= p.x && p.x < origin.x + edge && //
               origin.y <= p.y && p.y < origin.y + edge && //
               origin.z <= p.z && p.z < origin.z + edge;
    }

    /// The cell of twice the edge that extends this one towards p.
    octree_cell grown_towards(const ox_3dvector& p) const;

    /// The octant that this cell becomes when it is grown towards p: bit 0 for the upper half in x,
    /// bit 1 in y, bit 2 in z.
    unsigned int octant_when_grown_towards(const ox_3dvector& p) const;

    /// The octant of this cell that p falls into.
    unsigned int octant_of(const ox_3dvector& p) const;

    /// The cell of an octant.
    octree_cell child(unsigned int octant) const;
};

/// The octree that decides which vertices the welders compare: those that reach the same leaf.
///
/// The root begins as the cell [0, 1) and is doubled until it holds every vertex; a former root
/// stays below the new one with the origin it had, which after rounding may differ from the origin
/// its parent would give it. So the leaf of a vertex is found by walking, never by computing it
/// from the coordinates, unless nothing was rounded (see leaf_grid). All cells live in one
/// array; a leaf is known by its index in it.
class vertex_octree {
public:
    vertex_octree();

    /// The root.
    const octree_cell& get_root() const { return nodes[root].cell; }

    /// True if the root contains p.
    bool contains(const ox_3dvector& p) const { return get_root().contains(p); }

    /// True if doubling the root, while its edge is finite, ends in a root that contains p.
    bool can_contain(const ox_3dvector& p) const;

    /// Doubles the root once, towards p.
    void grow_towards(const ox_3dvector& p);

    /// The first cell on the way from the root to p whose edge is below `leaf_size`, which is
    /// positive; missing cells are made. O(log(root edge / leaf_size)).
    std::uint32_t leaf_below_size(const ox_3dvector& p, float leaf_size);

private:
    static constexpr std::uint32_t no_node = 0xFFFFFFFFu;

    struct node {
        octree_cell cell;
        std::array<std::uint32_t, 8> children;
    };

    std::uint32_t add_node(const octree_cell& cell);
    std::uint32_t child_towards(std::uint32_t parent, const ox_3dvector& p);

    std::vector<node> nodes;
    std::uint32_t root = 0;
};

} // namespace ox::internal

#endif
