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

    /// Calls `visit(index, index)` for every pair of boxes that meet, once, in an order that
    /// depends on the boxes only; either index may come first.
    template <typename visitor>
    void visit_pairs(visitor visit) const {
        if (!nodes.empty()) {
            visit_pairs_within(nodes.front(), visit);
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

    template <typename visitor>
    void visit_pairs_within(const node& here, visitor& visit) const {
        if (here.count == 0) {
            visit_pairs_within(nodes[here.first], visit);
            visit_pairs_within(nodes[here.first + 1], visit);
            visit_pairs_between(nodes[here.first], nodes[here.first + 1], visit);
            return;
        }
        for (std::size_t i = here.first; i < here.first + here.count; ++i) {
            for (std::size_t j = here.first; j < i; ++j) {
                if (sorted[i].box.meets(sorted[j].box)) {
                    visit(sorted[j].index, sorted[i].index);
                }
            }
        }
    }

    template <typename visitor>
    void visit_pairs_between(const node& a, const node& b, visitor& visit) const {
        if (!a.bounds.meets(b.bounds)) {
            return;
        }
        if (a.count == 0) {
            visit_pairs_between(nodes[a.first], b, visit);
            visit_pairs_between(nodes[a.first + 1], b, visit);
        } else if (b.count == 0) {
            visit_pairs_between(nodes[b.first], a, visit);
            visit_pairs_between(nodes[b.first + 1], a, visit);
        } else {
            visit_pairs_of_leaves(a, b, visit);
        }
    }

    template <typename visitor>
    void visit_pairs_of_leaves(const node& a, const node& b, visitor& visit) const {
        for (std::size_t i = a.first; i < a.first + a.count; ++i) {
            if (!sorted[i].box.meets(b.bounds)) {
                continue;
            }
            for (std::size_t j = b.first; j < b.first + b.count; ++j) {
                if (sorted[i].box.meets(sorted[j].box)) {
                    visit(sorted[i].index, sorted[j].index);
                }
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

/// For each box those that meet it, in the order of their indices. O((n + k) log n) time and O(n +
/// k) memory for k pairs of boxes that meet.
class box_neighbours {
public:
    explicit box_neighbours(const std::vector<grid_box>& boxes);

    /// The neighbours of a box.
    const int* begin_of(int box) const {
        return listed.data() + first[static_cast<std::size_t>(box)];
    }
    const int* end_of(int box) const {
        return listed.data() + first[static_cast<std::size_t>(box) + 1];
    }

private:
    std::vector<std::size_t> first;
    std::vector<int> listed;
};

} // namespace ox::internal::csg

#endif
