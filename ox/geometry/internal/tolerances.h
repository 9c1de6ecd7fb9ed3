#ifndef OX_GEOMETRY_INTERNAL_TOLERANCES_H
#define OX_GEOMETRY_INTERNAL_TOLERANCES_H

namespace ox::internal {

/// Determinant of two directions (square model units) below which two lines of the plane count
/// as parallel: dividing by less would throw their intersection far away.
constexpr float parallel_lines_determinant = 0.001f;

/// |cosine| of the angle to the z axis from which a direction is completed to a frame with the
/// y axis instead: the cross product with +z would be too short to normalise well.
constexpr double near_z_axis_cosine = 0.99;

/// A point can only be nearer than the tolerance to an end of an edge if its Manhattan distance
/// is below this multiple of the tolerance (sqrt(3) would do): a test without a square root.
constexpr float edge_end_manhattan_factor = 3.0f;

/// An edge shorter than this share of the tolerance has no usable direction: it accepts only
/// points near its ends.
constexpr float shortest_edge_factor = 0.5f;

/// Magnitude (in the units of the matrix) that a pivot must exceed: below it the column counts as
/// zero and the system as singular.
constexpr float smallest_pivot = 1e-4f;

/// Largest error the self-checks of the linear systems accept, in numbers of size 1.
constexpr float linear_check_error = 0.001f;

/// Error from which the self-check of the cubic spline fails, in numbers of size 1.
constexpr double spline_check_error = 0.01;

} // namespace ox::internal

#endif
