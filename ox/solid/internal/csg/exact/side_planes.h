#ifndef OX_SOLID_INTERNAL_CSG_EXACT_SIDE_PLANES_H
#define OX_SOLID_INTERNAL_CSG_EXACT_SIDE_PLANES_H

#include <array>
#include <vector>

#include <ox/solid/internal/csg/exact/facets.h>

namespace ox::internal::csg::exact {

/// The planes that stand on sides, parallel to an axis: within a facet that is not parallel to the
/// axis, such a plane is the line of the side. Each is made once.
class side_planes {
public:
    explicit side_planes(facet_complex& owner) : complex(owner) {}

    /// The index of the plane through an edge between grid points.
    int plane_of(int side, int axis);

private:
    facet_complex& complex;
    /// For each edge and axis the index of its plane, -1 where it is not made yet.
    std::vector<std::array<int, 3>> made;
};

} // namespace ox::internal::csg::exact

#endif
