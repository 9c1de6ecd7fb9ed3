#ifndef OX_GEOMETRY_INTERNAL_SPLINE_CURVATURE_H
#define OX_GEOMETRY_INTERNAL_SPLINE_CURVATURE_H

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_2dvector.h>

namespace ox::internal {

/// The damped second derivatives of the spline through `points`, one for each, whose intervals
/// have the given widths. All 0 where the system that defines them counts as singular.
ox_list<float> spline_second_derivatives(const ox_list<ox_2dvector>& points,
                                         const ox_list<float>& widths);

} // namespace ox::internal

#endif
