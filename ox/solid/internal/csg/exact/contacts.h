#ifndef OX_SOLID_INTERNAL_CSG_EXACT_CONTACTS_H
#define OX_SOLID_INTERNAL_CSG_EXACT_CONTACTS_H

// What facets impose on each other.
//
// Two facets of different planes meet in an interval of the planes' common line: the intersection
// of the interval that each cuts out of it (Moeller 1997). The order of the ends of the two
// intervals is the orientation of the four ends of the sides that they lie on (Guigue and
// Devillers 2003), so that nothing but orientations of grid points decides. Two facets of one
// plane impose on each other their sides, each clipped to the other.
//
// An end of a contact is a vertex, or the crossing of a side with a plane. One that lies on a side
// is imposed on that side, for all facets that share it.

#include <vector>

#include <ox/solid/internal/csg/exact/facets.h>
#include <ox/solid/internal/csg/exact/progress_poll.h>
#include <ox/solid/internal/csg/exact/side_planes.h>

namespace ox::internal::csg::exact {

/// A segment in a facet, not along its sides: on its common line with another plane.
struct facet_segment {
    int facet;
    int plane;
    /// The ends, the lower one first.
    int low;
    int high;
};

/// A point inside a facet that is the end of none of its segments.
struct facet_point {
    int facet;
    int point;
};

/// A point inside a side.
struct side_point {
    int side;
    int point;
};

/// Everything that facets impose on each other; with repetitions.
struct contact_list {
    std::vector<facet_segment> segments;
    std::vector<facet_point> points;
    std::vector<side_point> side_points;
    /// For each facet: true where it shares an area with another one.
    std::vector<bool> has_coincidence;
};

/// Finds what the facets impose on each other, those aside that are known to be clear; adds
/// crossings and planes to the complex.
contact_list find_contacts(facet_complex& complex, side_planes& planes, progress_poll& poll);

} // namespace ox::internal::csg::exact

#endif
