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

} // namespace ox::internal

#endif
