#ifndef OX_MESH_INTERNAL_WELDING_WELDED_LEAVES_H
#define OX_MESH_INTERNAL_WELDING_WELDED_LEAVES_H

#include <cstdint>
#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/mesh/internal/welding/leaf_grid.h>
#include <ox/mesh/internal/welding/vertex_octree.h>

namespace ox::internal {

/// Tells which welded vertices lie in the octree leaf that a further vertex reaches.
///
/// While the leaves are a grid, that is computed from the two positions when it is asked. Once the
/// octree has grown so far that origins are rounded, every vertex walks down the tree, and the
/// number of the leaf that it reached is kept with it.
class welded_leaves {
public:
    /// The leaf that a vertex reaches.
    struct leaf {
        std::uint32_t number; ///< 0 while the leaves are a grid
        std::uint64_t key;    ///< of equal leaves equal; 0 where leaves need no telling apart
    };

    /// Leaves below `leaf_size` of an octree that grows with the vertices.
    explicit welded_leaves(float leaf_size);

    /// Leaves below `leaf_size` of an octree that holds all vertices to come. Where leaves are
    /// smaller than `crowding_edge`, they get keys of their own.
    welded_leaves(const vertex_octree& octree, float leaf_size, double crowding_edge);

    /// Grows the octree over p. False, and nothing happens, when it cannot be grown so far.
    /// `welded` are the positions of all welded vertices. O(1), O(number of welded vertices) once.
    bool reach(const ox_3dvector& p, const ox_list<ox_3dvector>& welded) {
        return is_finished || (octree.contains(p) && (!is_grid || grid.covers(p))) ||
               grow_over(p, welded);
    }

    /// The leaf of a vertex that the octree contains. O(1) while the leaves are a grid.
    leaf leaf_of(const ox_3dvector& p) {
        return is_grid && !has_keys ? leaf{0, 0} : keyed_leaf_of(p);
    }

    /// True if welded vertex `number` at `position` lies in the leaf that p reached.
    bool shares(const leaf& reached, const ox_3dvector& p, std::uint32_t number,
                const ox_3dvector& position) const {
        return is_grid ? number >= abandoned_count && (p == position || grid.same_leaf(p, position))
                       : leaf_numbers[number] == reached.number;
    }

    /// The key of the leaf of a welded vertex.
    std::uint64_t key_of(std::uint32_t number, const ox_3dvector& position) const;

    /// Makes room for the leaf of one more welded vertex, so that adding it cannot fail.
    void make_room_for_one() {
        if (!is_grid && leaf_numbers.size() == leaf_numbers.capacity()) {
            leaf_numbers.reserve(2 * leaf_numbers.size() + 1);
        }
    }

    /// Adds the leaf of the next welded vertex.
    void add(const leaf& reached) {
        if (!is_grid) {
            leaf_numbers.push_back(reached.number);
        }
    }

    /// Adds the next welded vertex, which is in no leaf.
    void add_outside() { add({no_leaf, 0}); }

private:
    static constexpr std::uint32_t no_leaf = 0xFFFFFFFFu;

    bool grow_over(const ox_3dvector& p, const ox_list<ox_3dvector>& welded);
    void prepare_growth(const octree_cell& root, const ox_list<ox_3dvector>& welded);
    void number_leaves(const ox_list<ox_3dvector>& welded);
    leaf keyed_leaf_of(const ox_3dvector& p);
    static std::uint64_t key_of_number(std::uint32_t number);

    vertex_octree octree;
    float leaf_size;
    leaf_grid grid;
    bool is_grid;
    bool is_finished = false; ///< the octree contains all vertices to come
    bool has_keys = false;
    std::uint32_t abandoned_count = 0; ///< the first ones, in a leaf that no walk reaches any more
    std::vector<std::uint32_t> leaf_numbers; ///< of each welded vertex, once the leaves are no grid
};

} // namespace ox::internal

#endif
