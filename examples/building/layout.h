#ifndef OX_EXAMPLES_BUILDING_LAYOUT_H
#define OX_EXAMPLES_BUILDING_LAYOUT_H

#include <examples/building/description.h>

namespace building {

/// Metres by which the solid that cuts an opening sticks out of its wall, so that no face of the
/// one lies in a face of the other.
constexpr double cutter_reach = 0.05;

/// The frame of a wall in the plan: unit vectors `along` its axis and `across` it, to the left.
struct wall_frame {
    plan_point along;
    plan_point across;
    double length = 0;
};

/// A plane as a height over the plan: `z + x * dx + y * dy` above the point (x, y).
struct height_plane {
    double dx = 0;
    double dy = 0;
    double z = 0;

    double at(const plan_point& p) const { return z + p.x * dx + p.y * dy; }
};

inline bool operator==(const height_plane& a, const height_plane& b) {
    return a.dx == b.dx && a.dy == b.dy && a.z == b.z;
}

/// `p` moved by `distance` times `direction`.
plan_point moved(const plan_point& p, const plan_point& direction, double distance);

/// The frame of `w`; all zero for a wall without length.
wall_frame frame_of(const wall& w);

/// The rectangle that the wall covers in the plan, counter-clockwise.
plan_contour footprint(const wall& w);

/// The rectangle in the plan of the solid that cuts `o` out of its wall `w`, counter-clockwise.
plan_contour footprint(const opening& o, const wall& w);

/// The outline of `o` as seen from the right of its wall, counter-clockwise: x along the wall, y up
/// from the sill. Upright sides begin at the height `foot`. Curves are made of straight pieces.
plan_contour elevation(const opening& o, double foot);

/// The upper side of a slope.
height_plane upper_side(const slope& s);

/// The lower side of a slope, `thickness` below the upper one, measured at a right angle.
height_plane lower_side(const slope& s, double thickness);

/// The lower sides of all slopes under which the walls of `storey` stand.
std::vector<height_plane> ceilings(const description& d, std::size_t storey);

} // namespace building

#endif
