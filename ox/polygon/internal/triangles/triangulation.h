#ifndef OX_POLYGON_INTERNAL_TRIANGLES_TRIANGULATION_H
#define OX_POLYGON_INTERNAL_TRIANGLES_TRIANGULATION_H

#include <ox/polygon/internal/ox_polygon_data.h>

// The one place that decides how a region gets its triangles. What the tessellator would answer is
// known beforehand for many contours, and remembered for others.

namespace ox::internal {

/// Replaces the triangles of `polygon` by those of its contours, as the tessellator emits them:
/// some run clockwise. An allocation failure leaves triangles of no meaning.
void triangulate(ox_polygon_data& polygon);

} // namespace ox::internal

#endif
