#ifndef OX_GEOMETRY_INTERNAL_TOLERANCES_H
#define OX_GEOMETRY_INTERNAL_TOLERANCES_H

namespace ox {

/// Determinant of two directions (square model units) below which two lines of the plane count
/// as parallel: dividing by less would throw their intersection far away.
constexpr float parallel_lines_determinant = 0.001f;

/// |cosine| of the angle to the z axis from which a direction is completed to a frame with the
/// y axis instead: the cross product with +z would be too short to normalise well.
constexpr double near_z_axis_cosine = 0.99;

/// A point can only be nearer than the tolerance to an end of an edge if its Manhattan distance
/// is below this multiple of the tolerance (sqrt(3) would do): a test without a square root.
constexpr float edge_end_manhattan_factor = 3.f;

/// An edge shorter than this share of the tolerance has no usable direction: it accepts only
/// points near its ends.
constexpr float shortest_edge_factor = 0.5f;

} // namespace ox

#endif
