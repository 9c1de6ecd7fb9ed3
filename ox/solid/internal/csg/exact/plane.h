#ifndef OX_SOLID_INTERNAL_CSG_EXACT_PLANE_H
#define OX_SOLID_INTERNAL_CSG_EXACT_PLANE_H

// Planes through grid points, and the exact side of a point.
//
// Every test first evaluates in double and keeps the sign where it exceeds a bound of the rounding
// error (a semi-static filter, after Shewchuk, "Adaptive Precision Floating-Point Arithmetic and
// Fast Robust Geometric Predicates", 1997); what is left is decided on whole numbers. The filter
// only saves time: it never gives an answer that the whole numbers would not.
//
// Widths: coordinates have 37 bits, their differences 38, a normal 77, an offset 116.

#include <array>

#include <ox/solid/internal/csg/arrangement.h>
#include <ox/solid/internal/csg/exact/wide_integer.h>

namespace ox::internal::csg::exact {

/// A plane: the points p with normal . p == offset; the positive side is the one with more.
struct plane {
    std::array<wide<2>, 3> normal;
    wide<2> offset;
    /// The normal and the offset, rounded.
    std::array<double, 3> near_normal;
    double near_offset;
};

/// The plane of three points, which are counter-clockwise seen from its positive side. Its normal
/// is zero where they lie in a line.
plane plane_through(const grid_point& a, const grid_point& b, const grid_point& c);

/// A plane through two points that is parallel to an axis; its normal is zero where they are too.
plane plane_along(const grid_point& a, const grid_point& b, int axis);

/// True if the normal is zero.
bool is_degenerate(const plane& p);

/// 1 on the positive side of the plane, -1 on the other, 0 on it.
int side_of(const grid_point& point, const plane& p);

/// The sign of the determinant of b - a, c - a and d - a.
int orientation(const grid_point& a, const grid_point& b, const grid_point& c, const grid_point& d);

/// The sign of the determinant of b - a and c - a with an axis left out: positive where the three
/// turn counter-clockwise seen from the positive end of that axis.
int turn(const grid_point& a, const grid_point& b, const grid_point& c, int axis);

/// The determinant of three normals: exactly, and its sign.
wide<4> determinant(const plane& a, const plane& b, const plane& c);
int determinant_sign(const plane& a, const plane& b, const plane& c);

/// A coordinate of the cross product of the normals of two planes (155 bits), and its sign.
wide<4> cross_coordinate(const plane& a, const plane& b, int axis);
int cross_sign(const plane& a, const plane& b, int axis);

/// The sign of the scalar product of the normals of two planes.
int normals_dot_sign(const plane& a, const plane& b);

/// The sign of d . (a x b) for the direction d from one point to another and two normals a and b:
/// positive where b is counter-clockwise of a, by less than half a turn, seen against d.
int spin(const grid_point& from, const grid_point& to, const plane& a, const plane& b);

/// The same for the direction of the cross product of the normals of p and q.
int spin(const plane& p, const plane& q, const plane& a, const plane& b);

/// The axis along which the normal is longest, the first of equal ones (of the rounded normal).
int longest_axis(const plane& p);

} // namespace ox::internal::csg::exact

#endif
