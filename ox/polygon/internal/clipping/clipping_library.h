#ifndef OX_POLYGON_INTERNAL_CLIPPING_CLIPPING_LIBRARY_H
#define OX_POLYGON_INTERNAL_CLIPPING_CLIPPING_LIBRARY_H

#include <clipper.hpp>

#include <ox/polygon/internal/clipping/integer_grid.h>

// The calls of the clipping library. It catches what is thrown inside it, failed allocations too,
// and tells at most that it gave up: so it is asked twice before its failure is believed.

namespace ox::internal {

/// Combines two groups of contours, both filled even-odd. An allocation failure when the library
/// gives up twice.
void clip_contours(ClipperLib::ClipType operation, const grid_contours& subjects,
                   const grid_contours& clips, ClipperLib::PolyTree& tree);

/// Moves the sides of contours outwards by `delta` grid units and unites what comes of it. False,
/// with an empty tree, where the joins could lead outside the grid or have too many vertices.
bool offset_contours(const grid_contours& contours, ClipperLib::JoinType join, double delta,
                     ClipperLib::PolyTree& tree);

} // namespace ox::internal

#endif
