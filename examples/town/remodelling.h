#ifndef OX_EXAMPLES_TOWN_REMODELLING_H
#define OX_EXAMPLES_TOWN_REMODELLING_H

#include <ox/solid/ox_csg.h>
#include <ox/solid/ox_solid.h>

namespace town {

/// Metres. Corners of a surveyed building nearer than this are one: its faces are only nearly
/// planar.
constexpr float survey_tolerance = 0.02f;

/// Adds a dormer, digs a cellar and cuts the top off along a sloping plane, all in one pass. False
/// where the building is no closed solid; the problems of `csg` then tell where.
bool remodel(ox::ox_solid& building, ox::ox_csg& csg);

} // namespace town

#endif
