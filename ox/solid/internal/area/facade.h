#ifndef OX_SOLID_INTERNAL_AREA_FACADE_H
#define OX_SOLID_INTERNAL_AREA_FACADE_H

#include <ox/polygon/ox_polygon.h>

namespace ox::internal {

/// True only if the polygon is a facade, one outline of a few sides with rectangular holes, any
/// two vertices and any two contours of which are some distance apart, and the areas of its
/// triangles, each rounded by Heron's formula, sum up to more than `largest_facade_limit`.
/// O(n log n) for n vertices.
bool is_facade_with_area(ox_polygon& polygon);

} // namespace ox::internal

#endif
