#ifndef OX_SOLID_INTERNAL_CSG_OPERAND_H
#define OX_SOLID_INTERNAL_CSG_OPERAND_H

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/solid/internal/csg/arrangement.h>

namespace ox::internal::csg {

/// An operand as it was given: the primary storage of a solid, or a half-space.
struct operand {
    operation role = operation::unite;

    // A solid
    ox_list<ox_3dvector> vertices;
    ox_list<unsigned int> contours;
    ox_list<int> contour_sizes;

    // A half-space: the side of the plane that the normal points to
    bool is_half_space = false;
    ox_3dvector point;
    ox_3dvector normal;
};

} // namespace ox::internal::csg

#endif
