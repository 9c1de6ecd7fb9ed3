#ifndef OX_SOLID_INTERNAL_CSG_RINGS_H
#define OX_SOLID_INTERNAL_CSG_RINGS_H

#include <vector>

#include <ox/solid/internal/csg/planar_view.h>
#include <ox/solid/internal/csg/shell.h>

namespace ox::internal::csg {

/// A closed walk along directed edges, by its points.
using point_ring = std::vector<int>;

/// Joins the directed edges of a boundary, which must leave each point as often as they reach it,
/// to rings that meet no point twice, the one with the largest area first. Where several rings
/// meet at a point, they do not cross there. O(n log n) for bounded numbers of rings at a point.
std::vector<point_ring> trace_rings(const face_boundary& boundary,
                                    const std::vector<grid_point>& points, const planar_view& view);

} // namespace ox::internal::csg

#endif
