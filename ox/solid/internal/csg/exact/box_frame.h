#ifndef OX_SOLID_INTERNAL_CSG_EXACT_BOX_FRAME_H
#define OX_SOLID_INTERNAL_CSG_EXACT_BOX_FRAME_H

#include <array>
#include <vector>

#include <ox/solid/internal/csg/exact/box_pairs.h>
#include <ox/solid/internal/csg/exact/plane.h>

namespace ox::internal::csg::exact {

/// The directions along which boxes are laid around facets: those of the largest facet and of the
/// largest one that stands on it, so that a building askew to the axes is searched as fast as one
/// along them. Boxes are a little larger than needed, so that rounding loses no contact.
class box_frame {
public:
    /// The frame along the coordinates, for facets with the given points.
    explicit box_frame(const std::vector<grid_point>& points);

    /// The frame for facets with the given planes and points.
    box_frame(const std::vector<plane>& planes, const std::vector<grid_point>& points);

    /// Enlarges a box in the frame to hold a point.
    void enlarge(bounds& box, const std::array<double, 3>& point) const;

private:
    std::array<std::array<double, 3>, 3> axes;
    /// Above the rounding error of a coordinate in the frame.
    double margin = 0.0;
};

} // namespace ox::internal::csg::exact

#endif
