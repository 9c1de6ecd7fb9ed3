#ifndef OX_POLYGON_INTERNAL_PLANE_FRAME_H
#define OX_POLYGON_INTERNAL_PLANE_FRAME_H

#include <ox/geometry/ox_3dvector.h>
#include <ox/internal/vectors.h>

namespace ox::internal {

/// A plane with its frame.
struct plane_frame {
    ox_3dvector point;  ///< of the plane, and the origin of the frame
    ox_3dvector normal; ///< unit length unless a transformation scaled it
    ox_3dvector dx;     ///< in-plane axes; (dx, dy, normal) is right-handed
    ox_3dvector dy;

    /// Turns the plane to a normal, which becomes of unit length, and lays the axes anew.
    void turn_to(const ox_3dvector& new_normal) {
        normal = new_normal;
        normal.build_axis(dx, dy);
    }

    /// True if no number is infinite or NaN.
    bool has_finite_numbers() const {
        return is_finite(point) && is_finite(normal) && is_finite(dx) && is_finite(dy);
    }
};

} // namespace ox::internal

#endif
