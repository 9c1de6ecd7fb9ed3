#ifndef OX_SOLID_INTERNAL_CSG_EXACT_PIECES_H
#define OX_SOLID_INTERNAL_CSG_EXACT_PIECES_H

#include <vector>

#include <ox/solid/internal/csg/exact/contacts.h>
#include <ox/solid/internal/csg/exact/facets.h>
#include <ox/solid/internal/csg/exact/progress_poll.h>

namespace ox::internal::csg::exact {

// An arc is an edge in one of its directions: twice its index, plus one downwards.

/// An edge upwards or downwards.
inline int arc_of(int edge, bool is_upwards) {
    return 2 * edge + (is_upwards ? 0 : 1);
}

/// The edge of an arc.
inline int edge_of(int arc) {
    return arc / 2;
}

/// True if the arc runs from the low end of its edge to the high one.
inline bool is_upward(int arc) {
    return arc % 2 == 0;
}

/// The same edge the other way.
inline int opposite(int arc) {
    return arc ^ 1;
}

/// A cell of the subdivision of a facet: what no edge divides.
struct piece {
    int facet;
    /// Its boundary, the piece on the left seen from the positive side of the facet; an edge with
    /// the piece on both sides is there in both directions.
    int first_arc;
    int arc_count;
};

/// The pieces of all facets, those of each facet in a row.
struct piece_list {
    std::vector<piece> pieces;
    std::vector<int> arcs;
    /// The first piece of each facet, and the number of all.
    std::vector<int> first_of_facet;
    /// The edges that each side of a facet is divided into, upwards; the first of each side, and
    /// the number of all.
    std::vector<int> side_edges;
    std::vector<int> first_of_side;
};

/// Divides the facets at what they impose on each other; sorts the contacts, adds edges, points
/// and planes to the complex.
piece_list divide_facets(facet_complex& complex, contact_list& contacts, side_planes& planes,
                         progress_poll& poll);

} // namespace ox::internal::csg::exact

#endif
