#ifndef OX_POLYGON_INTERNAL_CLIPPING_SEPARATE_CONTOURS_H
#define OX_POLYGON_INTERNAL_CLIPPING_SEPARATE_CONTOURS_H

#include <vector>

#include <clipper.hpp>

#include <ox/polygon/internal/clipping/contour_lists.h>
#include <ox/polygon/internal/clipping/integer_grid.h>

namespace ox::internal {

/// Does what the clipping library would do, to the order of contours and vertices, for contours
/// that keep clear of each other: each climbs and falls once (`monotone_contour`), and any two
/// lie apart or one surrounds the other. No edge then meets another in the library's sweep: every
/// contour is kept whole or dropped, as the number of contours of the other group around it
/// says, and the contours come out in the order in which the sweep reaches them. That takes the
/// library time with the square of the contours on one level; here it is O(n log n) for n
/// vertices.
///
/// False, with `lists` unchanged, for every other input, mostly after a look at the bounds: O(k log
/// k) for k contours.
bool combine_separate_contours(const plane_frame& plane, ClipperLib::ClipType operation,
                               const grid_contours& subjects, const grid_contours& clips,
                               contour_lists& lists);

} // namespace ox::internal

#endif
