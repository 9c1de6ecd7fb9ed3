#ifndef OX_EXAMPLES_SLAB_SHAPES_H
#define OX_EXAMPLES_SLAB_SHAPES_H

#include <examples/slab/description.h>

#include <ox/geometry/ox_3dvector.h>
#include <ox/polygon/ox_polygon.h>

namespace slab {

/// The point of the plan, as the library takes it.
ox::ox_3dvector flat(const plan_point& p);

/// A contour of the plan, as the library takes it.
ox::ox_list<ox::ox_3dvector> flat(const plan_contour& contour);

/// The slab without its holes, facing up.
ox::ox_polygon polygon_of(const description& d);

} // namespace slab

#endif
