#ifndef OX_STRUCTURE_INTERNAL_SLAB_CROSSINGS_H
#define OX_STRUCTURE_INTERNAL_SLAB_CROSSINGS_H

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <vector>

namespace ox {

/// Appends the x of every crossing of a closed contour with the horizontal line at y. A contour
/// that only touches the line with a vertex or an edge does not cross it; one that passes through
/// a vertex, or runs along the line between its sides, crosses it once.
void append_crossings(const ox_list<ox_3dvector>& contour, float y, std::vector<float>& crossings);

} // namespace ox

#endif
