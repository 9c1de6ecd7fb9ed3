#ifndef OX_STRUCTURE_INTERNAL_OX_LOADSHARE_STATE_H
#define OX_STRUCTURE_INTERNAL_OX_LOADSHARE_STATE_H

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/geometry/ox_box.h>
#include <ox/structure/internal/share_image.h>

namespace ox {

/// A beam in the frame of the slab.
struct oxp_beam {
    ox_3dvector start;
    ox_3dvector end;
    unsigned int color = 0; ///< 0 until the beam is painted
    float weight = 0.0f;    ///< the area it collected
};

/// The record behind an `ox_loadshare`.
struct ox_loadshare_state {
    ox_list<ox_list<ox_3dvector>> contours; ///< in the frame of the slab, z = 0
    ox_3dvector x_axis = ox_3dvector(1.0f, 0.0f, 0.0f);
    ox_3dvector y_axis = ox_3dvector(0.0f, 1.0f, 0.0f);
    ox_3dvector normal = ox_3dvector(0.0f, 0.0f, 1.0f);
    float slab_weight = 1.0f;
    ox_list<oxp_beam> beams;
    ox_box bounds;               ///< of the contours
    double uncarried_area = 0.0; ///< of the stretches that no beam took
    bool log = false;
    bool paint = false;
    internal::share_image image;

    /// The coordinates of a point in the frame.
    ox_3dvector project(const ox_3dvector& p) const {
        return ox_3dvector(ox_dot(p, x_axis), ox_dot(p, y_axis), 0.0f);
    }
};

} // namespace ox

#endif
