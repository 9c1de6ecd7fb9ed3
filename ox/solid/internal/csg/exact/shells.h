#ifndef OX_SOLID_INTERNAL_CSG_EXACT_SHELLS_H
#define OX_SOLID_INTERNAL_CSG_EXACT_SHELLS_H

#include <ox/solid/internal/csg/exact/edge_fans.h>

namespace ox::internal::csg::exact {

/// Joins the cells of shells that no edge joins: the outer cell of each shell is the one that the
/// first facet below its lowest point is turned to, or the outside of everything.
///
/// A shell is what hangs together by edges, so it is a union of whole facets, and its lowest point
/// is a vertex. Of the sides there the one that is steepest outwards lies on the shell's hull, so
/// the wedge about it that opens outwards belongs to the outer cell.
void join_shells(const facet_complex& complex, const piece_list& list,
                 const coincidence_list& coincidences, const edge_fans& fans, int outside,
                 disjoint_sets& cells, progress_poll& poll);

} // namespace ox::internal::csg::exact

#endif
