#ifndef OX_EXAMPLES_BUILDING_SHAPES_H
#define OX_EXAMPLES_BUILDING_SHAPES_H

#include <examples/building/description.h>

#include <ox/geometry/ox_3dvector.h>
#include <ox/polygon/ox_polygon.h>

namespace building {

/// The point of the plan at height `z`, as the library takes it.
ox::ox_3dvector at_height(const plan_point& p, double z);

/// The horizontal polygon at height `z` with that outline and those holes, facing up.
ox::ox_polygon level_polygon(const plan_contour& outline, const std::vector<plan_contour>& holes,
                             double z);

} // namespace building

#endif
