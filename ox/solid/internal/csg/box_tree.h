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
        visit_where([&box](const grid_box& other) { return other.meets(box); }, visit);
    }

    /// The same for every box for which `reaches(box)` holds, which must hold for a box around
    /// one for which it does.
    template <typename test, typename visitor>
    void visit_where(const test& reaches, visitor visit) const {
        if (!nodes.empty()) {
            visit_node(0, reaches, visit);
        }
    }

private:
    /// An inner node has its halves at `first` and `first + 1`; a leaf has `count` boxes.
    struct node {
        grid_box bounds;
        std::size_t first;
        std::size_t count;
    };

    void build(std::size_t place, std::size_t begin, std::size_t end);
    int longest_side(std::size_t begin, std::size_t end) const;

    template <typename test, typename visitor>
    void visit_node(std::size_t place, const test& reaches, visitor& visit) const {
        const node& here = nodes[place];
        if (!reaches(here.bounds)) {
            return;
        }
        if (here.count == 0) {
            visit_node(here.first, reaches, visit);
            visit_node(here.first + 1, reaches, visit);
            return;
        }
        for (std::size_t i = here.first; i < here.first + here.count; ++i) {
            if (reaches(sorted[i].box)) {
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
