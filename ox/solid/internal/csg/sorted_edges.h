#ifndef OX_SOLID_INTERNAL_CSG_SORTED_EDGES_H
#define OX_SOLID_INTERNAL_CSG_SORTED_EDGES_H

#include <algorithm>
#include <cstddef>
#include <vector>

namespace ox::internal::csg {

/// Sorts edges, the start of each as `start_of` gives it, and gives the place of the first one of
/// each of `point_count` points, with the number of all at the end. Edges are put to their points
/// first, so that only the few of one point are compared. O(n) while points have few edges.
template <typename edge, typename start>
std::vector<std::size_t> sort_by_start(std::vector<edge>& edges, std::size_t point_count,
                                       start start_of) {
    std::vector<std::size_t> first(point_count + 1, 0);
    for (const edge& counted : edges) {
        ++first[static_cast<std::size_t>(start_of(counted))];
    }
    std::size_t sum = 0;
    for (std::size_t& count : first) {
        sum += count;
        count = sum; // behind the last edge of the point
    }
    std::vector<edge> sorted(edges.size());
    for (const edge& placed : edges) {
        sorted[--first[static_cast<std::size_t>(start_of(placed))]] = placed;
    }
    const auto at = [&sorted](std::size_t i) {
        return sorted.begin() + static_cast<std::ptrdiff_t>(i);
    };
    for (std::size_t point = 0; point < point_count; ++point) {
        std::sort(at(first[point]), at(first[point + 1]));
    }
    edges.swap(sorted);
    return first;
}

} // namespace ox::internal::csg

#endif
