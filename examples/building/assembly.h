#ifndef OX_EXAMPLES_BUILDING_ASSEMBLY_H
#define OX_EXAMPLES_BUILDING_ASSEMBLY_H

#include <examples/building/description.h>
#include <examples/support/progress.h>

#include <ox/solid/ox_solid.h>

#include <string>
#include <vector>

namespace building {

enum class element_kind { walls, slab, roof };

/// A finished part of the building: the walls of one storey, a slab or a roof.
struct element {
    std::string name;
    element_kind kind = element_kind::walls;
    std::size_t storey = 0;     ///< of walls
    double level = 0;           ///< of a slab: the height of its top
    ox::ox_solid solid;         ///< its shape
    double expected_volume = 0; ///< its volume by the formulas of volumes.h, in cubic metres
    double seconds = 0;         ///< time spent on the shape
};

/// How many steps `assemble` reports.
int count_steps(const description& d);

/// Makes the solids of a building, in the order storeys, slabs, roofs.
std::vector<element> assemble(const description& d, ox_examples::progress& steps);

} // namespace building

#endif
