#ifndef OX_POLYGON_INTERNAL_CLIPPING_CONTOUR_COMBINATION_H
#define OX_POLYGON_INTERNAL_CLIPPING_CONTOUR_COMBINATION_H

#include <clipper.hpp>

#include <ox/polygon/internal/clipping/integer_grid.h>
#include <ox/polygon/internal/ox_polygon_data.h>

// The one place that decides how contours are combined. What the clipping library would answer is
// known beforehand for many of them, and remembered for others.

namespace ox::internal {

/// Replaces the normalised contours of `polygon` by the combination of two groups of contours on
/// its grid, both filled even-odd. An allocation failure, with the contours as they were, when the
/// clipping library fails twice.
void combine_contours(ox_polygon_data& polygon, ClipperLib::ClipType operation,
                      const grid_contours& subjects, const grid_contours& clips);

/// The same for the union of a single contour with nothing: it is mostly one that stays as it is.
/// `path` has its points on the grid; the pending lists of `polygon` may be used up.
void unite_single_contour(ox_polygon_data& polygon, const grid_path& path);

/// Replaces the normalised contours of `polygon` by those of the tree: depth first, a contour
/// before those inside it, siblings in the tree's order. O(n), without recursion.
void rebuild_contours(ox_polygon_data& polygon, const ClipperLib::PolyTree& tree);

} // namespace ox::internal

#endif
