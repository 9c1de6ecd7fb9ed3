#ifndef OX_EXAMPLES_PROGRESS_TOWER_H
#define OX_EXAMPLES_PROGRESS_TOWER_H

#include <ox/geometry/ox_3dvector.h>
#include <ox/solid/ox_solid.h>

#include <vector>

namespace progress_example {

/// An upright block, in metres.
struct block {
    ox::ox_3dvector origin;
    ox::ox_3dvector size;
};

/// A wall panel as it comes from the factory: a plate and the blocks to be cut out of it.
struct panel {
    block plate;
    std::vector<block> openings;
};

/// The panels of a square tower: façades of many small windows, and inner walls with a door each.
/// Joints of 2 cm keep all panels apart.
std::vector<panel> plan_tower(int nb_storeys);

/// The panel with its openings cut. Panels can be cut by several threads at once.
ox::ox_solid cut_panel(const panel& p);

} // namespace progress_example

#endif
