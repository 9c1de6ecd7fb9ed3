#ifndef OX_SOLID_INTERNAL_AREA_KEPT_AXES_H
#define OX_SOLID_INTERNAL_AREA_KEPT_AXES_H

#include <algorithm>
#include <cmath>

#include <ox/geometry/ox_3dvector.h>
#include <ox/solid/internal/area/limits.h>
#include <ox/solid/internal/search/face_bounds.h>

namespace ox::internal {

/// The axes that the tessellator surely keeps when it flattens a polygon: it drops the one on
/// which the normal is longest. What lies apart on a kept axis is apart for the tessellator.
class kept_axes {
public:
    explicit kept_axes(const ox_3dvector& normal) {
        const float longest =
            std::max({std::fabs(normal.x), std::fabs(normal.y), std::fabs(normal.z)});
        for (unsigned int axis = 0; axis < 3; ++axis) {
            kept[axis] = std::fabs(normal.at(axis)) < kept_axis_share * longest;
        }
    }

    bool is_kept(unsigned int axis) const { return kept[axis]; }

    /// True if two bounds are more than `gap` (model units) apart on a kept axis.
    bool are_apart(const face_bounds& a, const face_bounds& b, double gap) const {
        for (unsigned int axis = 0; axis < 3; ++axis) {
            if (kept[axis] && (is_before(a, b, axis, gap) || is_before(b, a, axis, gap))) {
                return true;
            }
        }
        return false;
    }

private:
    static bool is_before(const face_bounds& a, const face_bounds& b, unsigned int axis,
                          double gap) {
        return static_cast<double>(b.low.at(axis)) - static_cast<double>(a.high.at(axis)) > gap;
    }

    bool kept[3];
};

} // namespace ox::internal

#endif
