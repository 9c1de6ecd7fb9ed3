#ifndef OX_SOLID_INTERNAL_CSG_EXACT_BOX_PAIRS_H
#define OX_SOLID_INTERNAL_CSG_EXACT_BOX_PAIRS_H

// Which of many boxes overlap.
//
// The method is that of Zomorodian and Edelsbrunner, "Fast software for box intersections" (2000):
// two intervals overlap exactly where one of them holds the lower end of the other, so boxes are
// at once intervals and points. A segment tree over the points, which is walked but never stored,
// hands each interval that spans a whole node to the next dimension; few boxes are compared
// directly, in the order of their lower ends. O(n log^3 n + k) for n boxes of which k pairs
// overlap, whatever their shape; O(n) memory.

#include <array>
#include <functional>
#include <vector>

#include <ox/solid/internal/csg/exact/progress_poll.h>

namespace ox::internal::csg::exact {

/// A closed box.
struct bounds {
    std::array<double, 3> low;
    std::array<double, 3> high;
};

/// The smallest box that holds no point, to be enlarged.
bounds empty_bounds();

/// Enlarges a box to hold a point.
void enlarge(bounds& box, const std::array<double, 3>& point);

/// Takes a pair of boxes that overlap or touch.
using pair_visitor = std::function<void(int, int)>;

/// Visits each pair of boxes that overlap or touch once and counts it as a step, in an order that
/// depends on nothing but the boxes; in each pair either number may come first.
void visit_overlapping_pairs(const std::vector<bounds>& boxes, progress_poll& poll,
                             const pair_visitor& visit);

} // namespace ox::internal::csg::exact

#endif
