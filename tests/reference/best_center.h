#ifndef OX_TESTS_REFERENCE_BEST_CENTER_H
#define OX_TESTS_REFERENCE_BEST_CENTER_H

#include <ox/polygon/ox_polygon.h>
#include <tests/reference/plane_frame.h>

namespace reference {

/// Plain version of `ox_polygon::get_best_center`: scores every candidate of the four grids, in
/// order. `held` is what the polygon held before, which stays when no candidate survives.
ox::ox_3dvector best_center(ox::ox_polygon& polygon,
                            const ox::ox_3dvector& held = ox::ox_3dvector());

/// The same in a given frame, for a polygon whose axes a transformation has changed.
ox::ox_3dvector best_center(ox::ox_polygon& polygon, const plane_frame& frame,
                            const ox::ox_3dvector& held);

} // namespace reference

#endif
