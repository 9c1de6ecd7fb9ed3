#ifndef OX_SOLID_INTERNAL_MEASURES_POINT_TREE_H
#define OX_SOLID_INTERNAL_MEASURES_POINT_TREE_H

#include <array>
#include <cstddef>
#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox::internal {

/// Finds the points that lie along an edge: a tree of boxes over some of the points of a list,
/// which must live as long.
class point_tree {
public:
    /// Builds the tree over the points with these indices; those that are not finite are left out.
    /// O(n log n).
    point_tree(const ox_list<ox_3dvector>& points, const std::vector<int>& indices);

    /// The points between the ends of the edge from point `from` to point `to`, and no farther from
    /// it than `tolerance`, in their order along the edge; none along an edge that is not finite.
    /// O(log n) for each point found.
    std::vector<int> find_along(int from, int to, double tolerance) const;

private:
    using position = std::array<double, 3>;

    /// A range of the indices and the box around its points. A leaf has no children.
    struct node {
        position low;
        position high;
        std::size_t first;
        std::size_t end;
        std::size_t second_child; ///< the first one comes right behind its parent; 0 for a leaf
    };

    /// A point along an edge, and how far from the start.
    struct stop {
        double distance;
        int point;
    };

    /// An edge with what the search needs of it again and again.
    struct edge {
        position start;
        position way;
        double square_length;
        double square_tolerance;
        double tolerance;
        int from;
        int to;
    };

    position position_of(int point) const;
    void build_node(std::size_t first, std::size_t end);
    void split(std::size_t parent);
    static bool may_reach(const edge& along, const node& box);
    void find_in_node(const edge& along, std::size_t number, std::vector<stop>& stops) const;
    void find_in_leaf(const edge& along, const node& leaf, std::vector<stop>& stops) const;

    const ox_list<ox_3dvector>& points;
    std::vector<int> indices; ///< sorted so that each node has a range of them
    std::vector<node> nodes;  ///< depth first
};

} // namespace ox::internal

#endif
