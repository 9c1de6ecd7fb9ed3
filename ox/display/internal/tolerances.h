#ifndef OX_DISPLAY_INTERNAL_TOLERANCES_H
#define OX_DISPLAY_INTERNAL_TOLERANCES_H

namespace ox::internal {

/// Sine of the angle between two planes below which they are too parallel to snap to their line.
constexpr float parallel_planes_sine = 0.01f;

/// Cosine of the angle between a line and a plane's normal below which the line is too parallel to
/// the plane to snap to their common point.
constexpr float parallel_line_cosine = 0.01f;

/// Radians: an orbit stops here, just short of a right angle, so that the view never flips over
/// the pole.
constexpr float largest_elevation = 1.57f;

} // namespace ox::internal

#endif
