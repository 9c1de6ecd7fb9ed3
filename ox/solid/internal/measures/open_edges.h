#ifndef OX_SOLID_INTERNAL_MEASURES_OPEN_EDGES_H
#define OX_SOLID_INTERNAL_MEASURES_OPEN_EDGES_H

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/solid/ox_solid.h>

namespace ox::internal {

/// The directed edges of the contours of `solid`, or the parts of them, that no edge of the
/// opposite direction covers within `tolerance` (model units, at least 0), as pairs of points.
///
/// Nearly every edge of a closed shell has an opposite between the same two points; sorting finds
/// those. Only what is left is divided at the points that lie along it, and compared once more.
/// O(n log n) for n edges, and O(log n) for each point along an edge that has no opposite.
ox_list<ox_3dvector> find_open_edges(const ox_solid& solid, double tolerance);

} // namespace ox::internal

#endif
