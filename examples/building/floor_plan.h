#ifndef OX_EXAMPLES_BUILDING_FLOOR_PLAN_H
#define OX_EXAMPLES_BUILDING_FLOOR_PLAN_H

#include <examples/building/assembly.h>

#include <ox/polygon/ox_polygon.h>

#include <memory>
#include <vector>

namespace building {

using polygons = std::vector<std::unique_ptr<ox::ox_polygon>>;

/// What an architect draws of a storey, as polygons seen from above.
struct floor_plan {
    polygons floor;     ///< the slabs under foot, with their holes
    polygons footprint; ///< everything the walls cover
    polygons foot;      ///< the walls just above the floor: doors are gaps
    polygons cut;       ///< the walls at eye height: doors and windows are gaps
    polygons overhead;  ///< the slabs of the storey above
};

/// Draws up the plan of a storey.
floor_plan plan_of(const description& d, std::vector<element>& elements, std::size_t storey);

} // namespace building

#endif
