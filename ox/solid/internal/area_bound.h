#ifndef OX_SOLID_INTERNAL_AREA_BOUND_H
#define OX_SOLID_INTERNAL_AREA_BOUND_H

#include <ox/polygon/ox_polygon.h>

namespace ox {

/// True only if `polygon.get_area()` is above `area` (squared model units), told from the first
/// contour alone, without triangles; false tells nothing. It is false for a first contour of more
/// than a few vertices, for one that has others inside or beside it without a gap, and for a
/// sliver. O(n) for n vertices.
///
/// The area is the sum of the areas of triangles, each rounded by Heron's formula: of a flat
/// triangle nothing may be left. But the triangles of the first contour are so few that one of them
/// is too large to be flat.
bool is_area_surely_above(ox_polygon& polygon, float area);

} // namespace ox

#endif
