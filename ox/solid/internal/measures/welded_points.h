#ifndef OX_SOLID_INTERNAL_MEASURES_WELDED_POINTS_H
#define OX_SOLID_INTERNAL_MEASURES_WELDED_POINTS_H

#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox::internal {

/// Makes one of the points that are equal or nearer to each other than `tolerance` (model units, at
/// least 0), in chains: gives for each point the lowest index of those it is one with. A point that
/// is not finite is one with no other. O(n log n) as long as a ball of the size of the tolerance
/// holds few different points.
std::vector<int> weld_points(const ox_list<ox_3dvector>& points, double tolerance);

} // namespace ox::internal

#endif
