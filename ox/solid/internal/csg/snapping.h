#ifndef OX_SOLID_INTERNAL_CSG_SNAPPING_H
#define OX_SOLID_INTERNAL_CSG_SNAPPING_H

#include <ox/solid/internal/csg/scene.h>

namespace ox::internal::csg {

/// Makes near coincidences of the edges of a clustered scene exact, in the indices of the points:
/// an edge is divided at the points of other operands within the tolerance of it, and edges that
/// pass each other within the tolerance, or cross in the plane of a cluster, get a point in common.
/// False where `report` ended the work. O((n + k) log n).
bool snap_edges(scene& faces, const working_grid& grid, const progress_report& report);

} // namespace ox::internal::csg

#endif
