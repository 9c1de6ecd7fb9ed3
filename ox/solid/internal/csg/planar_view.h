#ifndef OX_SOLID_INTERNAL_CSG_PLANAR_VIEW_H
#define OX_SOLID_INTERNAL_CSG_PLANAR_VIEW_H

#include <array>
#include <cmath>

#include <ox/solid/internal/csg/planar_orientation.h>
#include <ox/solid/internal/csg/working_grid.h>

namespace ox::internal::csg {

/// The view of a plane along the axis that its normal is nearest to, exact on the grid. What runs
/// counter-clockwise about the normal does so in the view.
class planar_view {
public:
    explicit planar_view(const std::array<double, 3>& normal) {
        const double x = std::fabs(normal[0]);
        const double y = std::fabs(normal[1]);
        const double z = std::fabs(normal[2]);
        axis = z >= x && z >= y ? 2 : (y >= x ? 1 : 0);
        is_flipped = normal[static_cast<std::size_t>(axis)] < 0.0;
    }

    planar_point see(const grid_point& p) const {
        const planar_point seen = axis == 2   ? planar_point{p.x, p.y}
                                  : axis == 1 ? planar_point{p.z, p.x}
                                              : planar_point{p.y, p.z};
        return is_flipped ? planar_point{seen.y, seen.x} : seen;
    }

private:
    int axis;
    bool is_flipped;
};

} // namespace ox::internal::csg

#endif
