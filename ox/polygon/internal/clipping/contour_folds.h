#ifndef OX_POLYGON_INTERNAL_CLIPPING_CONTOUR_FOLDS_H
#define OX_POLYGON_INTERNAL_CLIPPING_CONTOUR_FOLDS_H

#include <cstddef>
#include <vector>

#include <clipper.hpp>

// Folds: where a side of a contour, on its way up, falls back by one level, as where one of its
// corners was rounded twice and the second time a unit lower.
//
// What the library's sweep does with a fold is certain where `leave_out_folds` accepts it. From
// above it follows the side that ends in the low corner. At the level of the high one it enters the
// fold, whose two sides it puts to the right of that side (or to the left, for a step to the right)
// as its rounded place there is another than the corner's. A level below, the side and the nearer
// one of the fold end together: their vertices are joined in their order along the contour, and the
// farther one goes on as the side. There is no level in between at which they could be taken for
// crossing, and on the low one they are not: a side that leaves the high corner is rounded relative
// to it. So the answer is that for a contour without folds.

namespace ox::internal {

/// Writes the corners of a contour without the outer one of the two of every fold: nothing inside
/// the contour is nearer to its sides than to those that are left. The corners run
/// counter-clockwise, the lowest one last. Returns how many are left, or 0 where a side falls back
/// but not in a fold that the library surely sweeps as said above. O(n) for n corners.
std::size_t leave_out_folds(const std::vector<ClipperLib::IntPoint>& corners,
                            ClipperLib::IntPoint* kept);

/// The levels at which the library's sweep enters a contour with folds, in the order in which it
/// finds them: along the contour, as it was given, from its first corner on. O(n).
std::vector<ClipperLib::cInt> list_entries(const std::vector<ClipperLib::IntPoint>& corners,
                                           const ClipperLib::IntPoint& first, bool was_clockwise,
                                           ClipperLib::cInt highest);

} // namespace ox::internal

#endif
