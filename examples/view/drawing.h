#ifndef OX_EXAMPLES_VIEW_DRAWING_H
#define OX_EXAMPLES_VIEW_DRAWING_H

#include <examples/view/snapping.h>
#include <examples/view/tour.h>

#include <examples/support/image.h>

namespace view {

/// What the pictures mark.
struct marks {
    ox::ox_3dvector picked;
    ox::ox_3dvector snapped;
    std::vector<snap_step> steps;
};

/// The building as the camera of the station sees it, with a piece of each plane that was snapped
/// to, the picked point and the snapped point. The snapped point's ring is full when the camera
/// sees the point and faint when the building hides it.
ox_examples::image draw_station(std::vector<element>& elements, station& s, const marks& m);

} // namespace view

#endif
