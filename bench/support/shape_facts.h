#ifndef OX_BENCH_SUPPORT_SHAPE_FACTS_H
#define OX_BENCH_SUPPORT_SHAPE_FACTS_H

#include <ox/solid/ox_solid.h>

namespace bench {

/// The volume that the triangles of a closed solid bound, summed in double precision.
double volume_of(ox::ox_solid& solid);

/// The area of the triangles of a polygon, summed in double precision.
double area_of(ox::ox_polygon& polygon);

/// The sum of the areas of the faces whose normal is along `axis`, either way.
double area_across(ox::ox_solid& solid, const ox::ox_3dvector& axis);

} // namespace bench

#endif
