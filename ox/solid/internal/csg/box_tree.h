#ifndef OX_SOLID_INTERNAL_CSG_BOX_TREE_H
#define OX_SOLID_INTERNAL_CSG_BOX_TREE_H

#include <array>
#include <cstddef>
#include <vector>

#include <ox/solid/internal/csg/arrangement.h>

namespace ox::internal::csg {

/// A box in steps of the grid, its borders included.
struct grid_box {
    std::array<double, 3> low = {1e300, 1e300, 1e300};
    std::array<double, 3> high = {-1e300, -1e300, -1e300};

    /// Grows to hold a point.
    void include(const grid_point& point);

    /// Grows to hold another box.
    void include(const grid_box& box);

    /// Grows by `margin` on every side.
    void grow(double margin);

    /// True if the boxes share a point.
    bool meets(const grid_box& other) const {
        return low[0] <= other.high[0] && other.low[0] <= high[0] && low[1] <= other.high[1] &&
               other.low[1] <= high[1] && low[2] <= other.high[2] && other.low[2] <= high[2];
    }
};

/// A balanced tree over boxes, halved at the median of their middles along the longest side; finds
/// the boxes that meet another one. O(n log n) to build.
class box_tree {
public:
    explicit box_tree(const std::vector<grid_box>& boxes);

    /// Calls `visit(index)` for every box that meets `box`, in an order that depends on the boxes
    /// only.
    template <typename visitor>
    void visit_meeting(const grid_box& box, visitor visit) const {
        if (!nodes.empty()) {
            visit_node(0, box, visit);
        }
    }

private:
    /// An inner node has its halves at `first` and `first + 1`; a leaf has `count` boxes.
    struct node {
        grid_box bounds;
        std::size_t first;
        std::size_t count;
    };

    /// Twice the middle of a box.
    struct box_middle {
        std::array<double, 3> place;
        int index;
    };

    void build(std::size_t place, const std::vector<grid_box>& boxes, box_middle* begin,
               box_middle* end);
    void make_leaf(std::size_t place, const std::vector<grid_box>& boxes, box_middle* begin,
                   box_middle* end);
    static std::size_t longest_side(const box_middle* begin, const box_middle* end);

    template <typename visitor>
    void visit_node(std::size_t place, const grid_box& box, visitor& visit) const {
        const node& here = nodes[place];
        if (!here.bounds.meets(box)) {
            return;
        }
        if (here.count == 0) {
            visit_node(here.first, box, visit);
            visit_node(here.first + 1, box, visit);
            return;
        }
        for (std::size_t i = here.first; i < here.first + here.count; ++i) {
            if (sorted[i].box.meets(box)) {
                visit(sorted[i].index);
            }
        }
    }

    struct leaf_box {
        grid_box box;
        int index;
    };
    std::vector<leaf_box> sorted; // in the order of the leaves
    std::vector<node> nodes;
};

} // namespace ox::internal::csg

#endif
