#ifndef OX_SOLID_INTERNAL_AREA_LIMITS_H
#define OX_SOLID_INTERNAL_AREA_LIMITS_H

namespace ox::internal {

// Where the bounds of areas are sure: none of these values changes a result. area_bound.cpp and
// facade.cpp explain where they come from.

/// A contour of more vertices has too many triangles for a useful bound of its area.
constexpr unsigned int largest_bounded_contour = 16;

/// A triangle whose area, as a part of its squared longest side, is larger keeps at least a third
/// of it in Heron's formula in single precision: that loses at most 16 roundings of the longest
/// side from each factor, and each factor is twice that long (area / side^2 > sqrt(48 * 6e-8)).
constexpr double flat_triangle_share = 2e-3;

/// So much larger than a limit must an area be for its third to be above the limit.
constexpr double smallest_heron_share = 4.0;

/// Model units: the factors of Heron's formula for triangles within this reach do not overflow.
constexpr double largest_heron_reach = 1e8;

/// Part of a coordinate by which rounding moves a vertex: put back from the grid, it is rounded
/// at most seven times by 6e-8 on each axis, and this is twice as much.
constexpr double overlap_rounding = 1e-6;

/// An axis counts as kept by the tessellator when the normal's component is below this part of the
/// largest one: with two nearly as large it may drop either.
constexpr float kept_axis_share = 0.99f;

/// Model units: smallest distance between any two vertices for which a triangle of them that is
/// not flat has an area above `largest_facade_limit`.
constexpr double smallest_facade_gap = 0.1;

/// Squared model units, see there.
constexpr float largest_facade_limit = 2e-6f;

/// Squared sine of the largest slant of a corner that counts as right: ten degrees.
constexpr double largest_square_slant = 0.03;

/// Radians, the angle that flat triangles at a right corner of a hole must fill with their sharp
/// corners: 90 degrees less ten of slant, and one for roundings.
constexpr double sharp_filled_angle = 1.37;

/// The squared sharp corners of a flat triangle are smaller than this, times its longest side over
/// its shortest (128 * 6e-8, and a tenth more).
constexpr double square_sharp_angle = 8.5e-6;

/// Comparisons for each hole of a facade after which the look for gaps is given up.
constexpr int facade_comparisons = 64;

} // namespace ox::internal

#endif
