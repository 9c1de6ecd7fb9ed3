#ifndef OX_SOLID_INTERNAL_AREA_AREA_BOUND_H
#define OX_SOLID_INTERNAL_AREA_AREA_BOUND_H

#include <ox/polygon/ox_polygon.h>

namespace ox::internal {

/// True only if `polygon.get_area()` is above `area` (squared model units), told from the contours
/// without making triangles; false tells nothing. It is true for the common cases: a first
/// contour of a few vertices with nothing inside or close to it, unless it is a sliver, and a
/// facade, that is an outline of a few sides with rectangular holes, all of them some distance
/// apart. O(n log n) for n vertices.
bool is_area_surely_above(ox_polygon& polygon, float area);

} // namespace ox::internal

#endif
