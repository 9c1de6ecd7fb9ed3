#ifndef OX_EXAMPLES_VIEW_TOUR_H
#define OX_EXAMPLES_VIEW_TOUR_H

#include <ox/display/ox_camera.h>
#include <ox/geometry/ox_box.h>

#include <string>
#include <vector>

namespace view {

/// A picture to be taken.
struct station {
    std::string name;
    ox::ox_camera camera;
};

/// A camera that sees the whole box from above its south-western corner.
ox::ox_camera first_camera(const ox::ox_box& box);

/// The stations of the tour: `first`, two quarter turns about its target, and a step from `first`
/// towards `point`, which stays where it is in the picture.
std::vector<station> tour(const ox::ox_camera& first, const ox::ox_3dvector& point);

} // namespace view

#endif
