#ifndef OX_SOLID_INTERNAL_TOLERANCES_H
#define OX_SOLID_INTERNAL_TOLERANCES_H

namespace ox::internal {

/// Distance, in model units, below which booleans and sections take a point for lying on a plane,
/// two ends for one and two planes for the same: ten steps of the polygons' integer grid, so the
/// rounding of both operands and of their section stays below it.
constexpr float solid_tolerance = 0.001f;

/// The same, in model units, for the section of a bare list of faces, which has no solid of its
/// own.
constexpr float face_list_section_tolerance = 0.001f;

/// Growth, in model units, of the box of a solid that is united with another: solids that touch
/// or nearly touch must meet, so that their common faces are merged away.
constexpr float union_box_margin = 0.01f;

/// Smallest change of a face's area, as a part of that area, that counts as a change: the integer
/// grid alone moves areas by less.
constexpr double area_change_ratio = 0.001;

/// Smallest cosine between the normal of a face and a direction of projection for which the face
/// is more than a line when seen along that direction.
constexpr float edge_on_cosine = 0.001f;

/// Margin of the brick that clips a solid, in tolerances: the brick begins this far before the
/// solid on each axis of the plane ...
constexpr float clip_margin_before = 10.0f;

/// ... and ends this far behind it, along the normal too.
constexpr float clip_margin_behind = 20.0f;

/// Start, in model units, of the search for the extent of a solid in a plane: beyond any
/// coordinate that single precision resolves to the tolerance.
constexpr float clip_extent_start = 1e8f;

// Search structures: none of these values changes a result

/// Model units: boxes at least this far apart, roundings aside, do not touch for a polygon, which
/// takes boxes 0.0001 apart for touching.
constexpr double box_rejection_margin = 0.0002;

/// Twice the largest relative error of a single-precision operation, rounded up.
constexpr double rounding_allowance = 1.25e-7;

/// Roundings that a rejection allows for, those that grow with the number of vertices aside:
/// generously more than any of the computations it stands in for makes.
constexpr double spare_roundings = 16.0;

/// Model units: added to a margin for products too small for a relative error.
constexpr double smallest_margin = 1e-40;

/// Model units: beyond it single precision may overflow, and nothing is rejected.
constexpr double largest_safe_magnitude = 1e37;

// Bounds of areas (area_bound.cpp explains where the values come from)

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

/// Part of a coordinate by which the rounding to single precision moves a vertex, taken generously.
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

/// Distance within which points are looked up, in tolerances: the distance measured in single
/// precision may be a rounding below the true one.
constexpr float point_grid_reach = 1.01f;

/// Side of a cell of a grid of points, in reaches: wide enough for most look-ups to touch one cell
/// only.
constexpr double point_grid_cell = 8.0;

/// Shift of that grid, in cells, so that round coordinates do not lie on the border of two cells.
constexpr double point_grid_shift = 0.37;

} // namespace ox::internal

#endif
