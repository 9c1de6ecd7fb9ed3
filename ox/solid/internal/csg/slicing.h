#ifndef OX_SOLID_INTERNAL_CSG_SLICING_H
#define OX_SOLID_INTERNAL_CSG_SLICING_H

#include <ox/solid/internal/csg/scene.h>

namespace ox::internal::csg {

/// Divides the long edges of long planes with many points, such as the top of a wall whose bottom
/// is divided at every door: without points to meet there, triangles from all along the bottom
/// would end in the two corners of the top, and whatever crosses the wall would cross most of them.
/// The places are those where a coordinate is a multiple of a power of two, so that planes that
/// meet in an edge agree on them. At most half as many points are added as there are.
/// Faces must have the numbers of their clusters. False where `report` ended the work. O(n log n).
bool slice_long_planes(scene& faces, const progress_report& report);

} // namespace ox::internal::csg

#endif
