#ifndef OX_EXAMPLES_VIEW_SNAPPING_H
#define OX_EXAMPLES_VIEW_SNAPPING_H

#include <examples/building/assembly.h>

#include <ox/geometry/ox_3dvector.h>

#include <string>
#include <vector>

namespace view {

using building::element;

/// A plane that took a degree of freedom from the picked point.
struct snap_step {
    std::string name;       ///< of the element whose face lies in the plane
    ox::ox_3dvector normal; ///< of that face
    ox::ox_3dvector position;
    int freedom = 0; ///< that is left
};

/// Snaps a picked point to the planes of the faces around it, the nearest plane first, until three
/// have been accepted or no face is left.
std::vector<snap_step> snap_to_faces(std::vector<element>& elements, const ox::ox_3dvector& picked);

} // namespace view

#endif
