#ifndef OX_SOLID_INTERNAL_CSG_EXACT_EDGE_FANS_H
#define OX_SOLID_INTERNAL_CSG_EXACT_EDGE_FANS_H

// The pieces about each edge, in their order around it, and the cells of space between them.
//
// Around an edge the pieces are half-planes, and their order is that of the normals of their
// facets, each turned so that the piece is on the left of the upward edge. Two half-planes that
// follow each other share a wedge, so the sides that they turn to it belong to one cell (Zhou,
// Grinspun, Zorin and Jacobson, "Mesh arrangements for solid geometry", 2016). Equal half-planes
// do not occur: coincident pieces are one. Going once around the edge crosses from cell to cell
// and comes back: whatever cells are chosen, the boundary of their union is closed at the edge.

#include <vector>

#include <ox/internal/disjoint_sets.h>
#include <ox/solid/internal/csg/exact/coincidences.h>
#include <ox/solid/internal/csg/exact/facets.h>
#include <ox/solid/internal/csg/exact/pieces.h>
#include <ox/solid/internal/csg/exact/progress_poll.h>

namespace ox::internal::csg::exact {

// A side of a piece is twice the piece's index for the positive side of its facet, plus one for
// the other.

/// The positive side of a piece, towards which the facet's normal points, or the other one.
inline int side_of_piece(int piece, bool is_positive) {
    return 2 * piece + (is_positive ? 0 : 1);
}

/// A piece at an edge.
struct fan_member {
    int piece;
    /// True where the piece is on the left of the upward edge, seen from its positive side.
    bool is_upward;

    /// The side that is turned to what is counter-clockwise next, seen against the upward edge.
    int side_ahead() const { return side_of_piece(piece, is_upward); }

    /// The other side.
    int side_behind() const { return side_of_piece(piece, !is_upward); }
};

/// The pieces at every edge; of coincident ones the representative.
struct edge_fans {
    std::vector<fan_member> members;
    /// The first member of each edge, and the number of all.
    std::vector<int> first_member;
};

/// The order of half-planes about an edge by the angle from a first one, counter-clockwise.
class radial_order {
public:
    /// A half-plane by a plane and by whether it is on the left of the upward edge.
    struct half_plane {
        const plane* supporting;
        bool is_upward;
    };

    radial_order(const facet_complex& owner, const edge& about, half_plane first_one)
        : complex(owner), line(about.line), first(first_one) {}

    /// 0 along the first half-plane, 1 up to half a turn, 2 opposite to it, 3 beyond.
    int quarter(half_plane a) const;

    /// 1 where the second half-plane is ahead of the first by less than half a turn, -1 behind.
    int turn(half_plane a, half_plane b) const;

    /// True if the angle to a is smaller than the angle to b.
    bool operator()(half_plane a, half_plane b) const;

private:
    const facet_complex& complex;
    const edge_line line;
    const half_plane first;
};

/// The half-plane of a piece at an edge.
radial_order::half_plane half_plane_of(const facet_complex& complex, const piece_list& list,
                                       const fan_member& member);

/// Collects the pieces about each edge, and joins the sides of pieces that share a wedge.
edge_fans join_wedges(const facet_complex& complex, const piece_list& list,
                      const coincidence_list& coincidences, disjoint_sets& cells,
                      progress_poll& poll);

} // namespace ox::internal::csg::exact

#endif
