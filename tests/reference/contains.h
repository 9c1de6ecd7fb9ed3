#ifndef OX_TESTS_REFERENCE_CONTAINS_H
#define OX_TESTS_REFERENCE_CONTAINS_H

#include <vector>

#include <ox/geometry/ox_2dvector.h>
#include <ox/polygon/ox_polygon.h>
#include <tests/reference/plane_frame.h>

namespace reference {

/// Plain version of the containment test of closed contours: crossings left and right of the
/// point, edge by edge.
bool contains(const std::vector<std::vector<ox::ox_2dvector>>& contours, const ox::ox_2dvector& q);

/// Plain version of `ox_polygon::contains`, which looks at every edge.
bool contains(ox::ox_polygon& polygon, const ox::ox_3dvector& p);

/// The same in a given frame, for a polygon whose axes a transformation has changed.
bool contains(ox::ox_polygon& polygon, const plane_frame& frame, const ox::ox_3dvector& p);

} // namespace reference

#endif
