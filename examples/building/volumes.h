#ifndef OX_EXAMPLES_BUILDING_VOLUMES_H
#define OX_EXAMPLES_BUILDING_VOLUMES_H

#include <examples/building/description.h>

namespace building {

/// The volumes that the solids must have, in cubic metres, by school formulas in double precision
/// and straight from the description: no solid is looked at.

/// All walls of a storey: corners counted once, openings cut, ended by the roof.
double walls_volume(const description& d, std::size_t storey);

/// A slab without its holes.
double slab_volume(const slab& s);

/// A roof: what lies under its upper sides less what lies under its lower sides.
double roof_volume(const roof& r);

} // namespace building

#endif
