#ifndef OX_SOLID_INTERNAL_SECTION_SECTION_CHAINS_H
#define OX_SOLID_INTERNAL_SECTION_SECTION_CHAINS_H

#include <cstddef>
#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox::internal {

/// A segment of a section and, unless it was appended to another, the chain that begins with it:
/// segments that follow one another.
struct section_segment {
    static constexpr int none = -1;

    ox_3dvector start;
    ox_3dvector end;
    int next = none; ///< the segment behind it in its chain
    int last = none; ///< the last one of the chain that begins here, none while it is alone
    bool is_appended = false; ///< stands behind another
    bool is_closed = false;

    section_segment(const ox_3dvector& from, const ox_3dvector& to) : start(from), end(to) {}
};

/// Joins segments end to start into chains. Pass after pass each open chain, in order, takes the
/// later open chain that begins nearest to its end, within `tolerance` (model units, Manhattan
/// distance; of equally near ones the last), until a pass joins nothing. A chain whose end comes
/// within the tolerance of its start by a join is closed. O(n log n) for n segments of which few
/// begin at the same place.
void chain_segments(std::vector<section_segment>& segments, float tolerance);

/// The points of the chain that begins with a segment: both of each of its segments. O(n).
ox_list<ox_3dvector> list_points(const std::vector<section_segment>& segments, std::size_t first);

} // namespace ox::internal

#endif
