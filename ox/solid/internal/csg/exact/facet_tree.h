#ifndef OX_SOLID_INTERNAL_CSG_EXACT_FACET_TREE_H
#define OX_SOLID_INTERNAL_CSG_EXACT_FACET_TREE_H

#include <vector>

#include <ox/solid/internal/csg/exact/box_pairs.h>
#include <ox/solid/internal/csg/exact/facets.h>

namespace ox::internal::csg::exact {

/// A grid point that is thought of as moved: along a direction by a step, then along a second one
/// by a step that is smaller than any, then along y by a smaller one yet. The three are
/// independent, so a ray straight down from there meets no vertex, no edge and no upright facet,
/// and what it hits is never in doubt (symbolic perturbation, after Edelsbrunner and Muecke 1990).
struct moved_point {
    grid_point at;
    grid_point along;
    grid_point away;

    /// The sign of the movement in x.
    int x_sign() const;
};

/// The side of an edge's line on which the moved point is, seen from above: 1 on the left of the
/// upward direction. The line is not upright.
int side_from_above(const facet_complex& complex, const edge& e, const moved_point& point);

/// The side on which a point is, not moved; 0 on the line.
int side_from_above(const facet_complex& complex, const edge& e, int point);

/// Finds facets below points: a tree of boxes, each holding the halves of its facets.
class facet_tree {
public:
    explicit facet_tree(const facet_complex& owner);

    /// The facet that the ray down from a point hits first, or -1.
    int first_below(const moved_point& point) const;

private:
    struct node {
        bounds box;
        int first;
        int end;
        /// The second child; the first is the next node; 0 for a leaf.
        int second_child;
    };

    void build(int first, int end);
    bool is_hit(int facet_index, const moved_point& point) const;
    bool is_higher(int facet_index, int other, const moved_point& point) const;
    double height_bound(int facet_index, const moved_point& point) const;

    const facet_complex& complex;
    std::vector<bounds> boxes;
    std::vector<int> order;
    std::vector<node> nodes;
};

} // namespace ox::internal::csg::exact

#endif
