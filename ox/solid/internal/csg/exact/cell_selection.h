#ifndef OX_SOLID_INTERNAL_CSG_EXACT_CELL_SELECTION_H
#define OX_SOLID_INTERNAL_CSG_EXACT_CELL_SELECTION_H

#include <vector>

#include <ox/solid/internal/csg/exact/edge_fans.h>

namespace ox::internal::csg::exact {

/// For each side of a piece that stands for itself, true where the cell that it is turned to
/// belongs to the result. `outside` is the number in `cells` of the outermost cell.
///
/// A walk along a spanning tree of the cells carries the winding numbers: crossing a piece changes
/// those of the operands that cover it, and going back undoes it. O(log n) for each change.
std::vector<bool> select_cells(const facet_complex& complex, const piece_list& list,
                               const coincidence_list& coincidences,
                               const std::vector<operation>& operations, int outside,
                               disjoint_sets& cells, progress_poll& poll);

} // namespace ox::internal::csg::exact

#endif
