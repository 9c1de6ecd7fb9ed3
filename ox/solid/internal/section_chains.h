#ifndef OX_SOLID_INTERNAL_SECTION_CHAINS_H
#define OX_SOLID_INTERNAL_SECTION_CHAINS_H

#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox {

/// A working contour of a section: a chain of segments. One that was joined to another is empty.
struct ox_solid_contour {
    ox_list<ox_3dvector> points;
    bool closed = false;
};

/// Joins segments end to start into chains. Pass after pass each open chain, in order, takes the
/// later open chain that begins nearest to its end, within `tolerance` (model units, Manhattan
/// distance; of equally near ones the last), until a pass joins nothing. A chain whose end comes
/// within the tolerance of its start by a join is closed. O(n log n) for n segments of which few
/// begin at the same place.
void chain_segments(std::vector<ox_solid_contour>& chains, float tolerance);

} // namespace ox

#endif
