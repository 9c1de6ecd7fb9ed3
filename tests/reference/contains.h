#ifndef OX_TESTS_REFERENCE_CONTAINS_H
#define OX_TESTS_REFERENCE_CONTAINS_H

#include <ox/polygon/ox_polygon.h>
#include <tests/reference/plane_frame.h>

namespace reference {

/// Plain version of `ox_polygon::contains`: crossings left and right of the point, edge by edge.
bool contains(ox::ox_polygon& polygon, const ox::ox_3dvector& p);

/// The same in a given frame, for a polygon whose axes a transformation has changed.
bool contains(ox::ox_polygon& polygon, const plane_frame& frame, const ox::ox_3dvector& p);

} // namespace reference

#endif
