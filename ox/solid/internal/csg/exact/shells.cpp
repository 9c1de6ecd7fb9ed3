#include <ox/solid/internal/csg/exact/shells.h>

#include <algorithm>
#include <tuple>

#include <ox/solid/internal/csg/exact/facet_tree.h>
#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

namespace {

/// The axis that is left out where directions are compared in the plane of z and x.
constexpr int depth_axis = 1;

/// A side at the foot of a shell.
struct foot_side {
    int side = -1;
    int far_vertex = -1;
};

/// What is lowest of a shell.
struct shell_foot {
    /// The lowest vertex by z, then x, then y.
    int vertex = -1;
    /// Of the sides there, the first and the last one counter-clockwise in the plane of z and x.
    foot_side first;
    foot_side last;
};

/// Finds the shells and joins their cells.
class shell_joiner {
public:
    shell_joiner(const facet_complex& owner, const piece_list& pieces, const coincidence_list& same,
                 const edge_fans& sorted_fans)
        : complex(owner), list(pieces), coincidences(same), fans(sorted_fans),
          shells(count_of(owner.facets)), feet(owner.facets.size()) {
        join_facets();
        find_lowest_vertices();
        find_lowest_sides();
    }

    void join(int outside, disjoint_sets& cells, progress_poll& poll);

private:
    const grid_point& at(int vertex) const { return item(complex.grid, vertex); }
    bool is_lower(int vertex, int other) const;
    void join_facets();
    void find_lowest_vertices();
    void find_lowest_sides();
    void offer_side(shell_foot& foot, const foot_side& offered);
    int outer_side(const shell_foot& foot) const;
    bool leaves_first(const shell_foot& foot) const;
    foot_side outermost_side(const shell_foot& foot) const;
    moved_point beside(const shell_foot& foot) const;
    int side_below(const facet_tree& tree, const shell_foot& foot) const;
    int piece_at(int facet_index, const shell_foot& foot) const;
    int arc_below(int facet_index, const shell_foot& foot) const;
    bool spans(const edge& e, int vertex, const moved_point& point) const;
    bool is_above(const edge& a, const edge& b) const;

    const facet_complex& complex;
    const piece_list& list;
    const coincidence_list& coincidences;
    const edge_fans& fans;
    disjoint_sets shells;
    /// For each shell, at the facet that stands for it.
    std::vector<shell_foot> feet;
};

/// Facets at an edge are of one shell, and so are those of one piece.
void shell_joiner::join_facets() {
    const auto facet_of = [&](int piece_index) { return item(list.pieces, piece_index).facet; };
    for (int i = 0; i < complex.edges.count(); ++i) {
        for (int k = item(fans.first_member, i) + 1; k < item(fans.first_member, i + 1); ++k) {
            shells.join(facet_of(item(fans.members, k - 1).piece),
                        facet_of(item(fans.members, k).piece));
        }
    }
    for (int i = 0; i < count_of(list.pieces); ++i) {
        shells.join(facet_of(i), facet_of(item(coincidences.representative, i)));
    }
}

bool shell_joiner::is_lower(int vertex, int other) const {
    const grid_point& a = at(vertex);
    const grid_point& b = at(other);
    return std::tie(a.z, a.x, a.y) < std::tie(b.z, b.x, b.y);
}

void shell_joiner::find_lowest_vertices() {
    for (int i = 0; i < count_of(complex.facets); ++i) {
        int& lowest = item(feet, shells.find(i)).vertex;
        for (const int vertex : item(complex.facets, i).vertices) {
            if (lowest < 0 || is_lower(vertex, lowest)) {
                lowest = vertex;
            }
        }
    }
}

void shell_joiner::find_lowest_sides() {
    for (int i = 0; i < count_of(complex.facets); ++i) {
        const facet& f = item(complex.facets, i);
        shell_foot& foot = item(feet, shells.find(i));
        for (int corner = 0; corner < 3; ++corner) {
            if (item(f.vertices, corner) == foot.vertex) {
                const int before = (corner + 2) % 3;
                offer_side(foot, {item(f.sides, corner), item(f.vertices, (corner + 1) % 3)});
                offer_side(foot, {item(f.sides, before), item(f.vertices, before)});
            }
        }
    }
}

void shell_joiner::offer_side(shell_foot& foot, const foot_side& offered) {
    const grid_point& from = at(foot.vertex);
    const grid_point& to = at(offered.far_vertex);
    if (from.z == to.z && from.x == to.x) {
        return;
    }
    if (foot.first.side < 0 || turn(from, to, at(foot.first.far_vertex), depth_axis) > 0) {
        foot.first = offered;
    }
    if (foot.last.side < 0 || turn(from, to, at(foot.last.far_vertex), depth_axis) < 0) {
        foot.last = offered;
    }
}

/// True if the first side is upright or leans to lower x.
bool shell_joiner::leaves_first(const shell_foot& foot) const {
    return at(foot.first.far_vertex).x <= at(foot.vertex).x;
}

/// The side from which, straight down, one leaves the shell: the first or the last.
foot_side shell_joiner::outermost_side(const shell_foot& foot) const {
    return leaves_first(foot) ? foot.first : foot.last;
}

/// A place in the outer cell of a shell that touches it: from the foot along the outermost side,
/// and then away from the shell. (A place that is merely near the foot may be in another cell,
/// where another shell touches this one in the foot.)
moved_point shell_joiner::beside(const shell_foot& foot) const {
    const foot_side chosen = outermost_side(foot);
    const grid_point& from = at(foot.vertex);
    const grid_point& to = at(chosen.far_vertex);
    const grid_point along = {to.x - from.x, to.y - from.y, to.z - from.z};
    return {from, along,
            leaves_first(foot) ? grid_point{-along.z, 0, along.x}
                               : grid_point{along.z, 0, -along.x}};
}

/// The side of a piece at a shell's foot that is turned to its outer cell: of the half-planes about
/// the outermost side, the last before the direction that leads away from the shell.
int shell_joiner::outer_side(const shell_foot& foot) const {
    const int side = outermost_side(foot).side;
    const bool is_from_low = complex.edges[side].low == foot.vertex;
    const int at_foot = item(list.side_edges, is_from_low ? item(list.first_of_side, side)
                                                          : item(list.first_of_side, side + 1) - 1);
    const moved_point outer = beside(foot);
    const plane towards_away = plane_through({0, 0, 0}, outer.along, outer.away);
    const radial_order order(complex, complex.edges[at_foot], {&towards_away, is_from_low});
    const fan_member* nearest = nullptr;
    for (int k = item(fans.first_member, at_foot); k < item(fans.first_member, at_foot + 1); ++k) {
        const fan_member& member = item(fans.members, k);
        if (nearest == nullptr ||
            order(half_plane_of(complex, list, *nearest), half_plane_of(complex, list, member))) {
            nearest = &member;
        }
    }
    return nearest->side_ahead();
}

void shell_joiner::join(int outside, disjoint_sets& cells, progress_poll& poll) {
    int shell_count = 0;
    for (int i = 0; i < count_of(complex.facets); ++i) {
        shell_count += shells.find(i) == i ? 1 : 0;
    }
    if (shell_count == 1) {
        cells.join(outer_side(item(feet, shells.find(0))), outside);
        return;
    }
    const facet_tree tree(complex);
    for (int i = 0; i < count_of(complex.facets); ++i) {
        if (shells.find(i) == i) {
            poll.step();
            const shell_foot& foot = item(feet, i);
            const int below = side_below(tree, foot);
            cells.join(outer_side(foot), below >= 0 ? below : outside);
        }
    }
}

/// The side of a piece that the ray down from beside a foot meets first, or -1.
int shell_joiner::side_below(const facet_tree& tree, const shell_foot& foot) const {
    const int hit = tree.first_below(beside(foot));
    if (hit < 0) {
        return -1;
    }
    const int piece_index = item(coincidences.representative, piece_at(hit, foot));
    const plane& p = item(complex.points.planes, item(list.pieces, piece_index).facet);
    return side_of_piece(piece_index, p.normal[2].sign() > 0);
}

/// The piece of a facet that the ray down from beside a foot crosses.
int shell_joiner::piece_at(int facet_index, const shell_foot& foot) const {
    const int first = item(list.first_of_facet, facet_index);
    const int end = item(list.first_of_facet, facet_index + 1);
    if (end - first == 1) {
        return first;
    }
    const int arc = arc_below(facet_index, foot);
    for (int i = first; i < end; ++i) {
        const piece& p = item(list.pieces, i);
        const auto arcs = list.arcs.begin() + p.first_arc;
        if (std::find(arcs, arcs + p.arc_count, arc) != arcs + p.arc_count) {
            return i;
        }
    }
    return first;
}

/// True if the moved vertex is between the ends of an edge in x.
bool shell_joiner::spans(const edge& e, int vertex, const moved_point& point) const {
    const int low = complex.points.compare(e.low, vertex, 0);
    const int high = complex.points.compare(e.high, vertex, 0);
    return point.x_sign() > 0 ? low <= 0 && high > 0 : low < 0 && high >= 0;
}

/// The arc, with its piece above it, that is next below where the ray crosses the facet, seen from
/// above.
int shell_joiner::arc_below(int facet_index, const shell_foot& foot) const {
    const int first = item(list.first_of_facet, facet_index);
    const int end = item(list.first_of_facet, facet_index + 1);
    const moved_point point = beside(foot);
    int nearest = -1;
    for (int i = first; i < end; ++i) {
        const piece& p = item(list.pieces, i);
        for (int k = 0; k < p.arc_count; ++k) {
            const int index = edge_of(item(list.arcs, p.first_arc + k));
            const edge& e = complex.edges[index];
            if (spans(e, foot.vertex, point) && side_from_above(complex, e, point) > 0 &&
                (nearest < 0 || is_above(e, complex.edges[nearest]))) {
                nearest = index;
            }
        }
    }
    const bool is_seen_from_front = item(complex.points.planes, facet_index).normal[2].sign() > 0;
    return arc_of(nearest, is_seen_from_front);
}

/// True if an edge of a facet is above another that spans the same x.
bool shell_joiner::is_above(const edge& a, const edge& b) const {
    if (a.low == b.low) {
        return side_from_above(complex, b, a.high) > 0;
    }
    return complex.points.compare(a.low, b.low) > 0 ? side_from_above(complex, b, a.low) > 0
                                                    : side_from_above(complex, a, b.low) < 0;
}

} // namespace

void join_shells(const facet_complex& complex, const piece_list& list,
                 const coincidence_list& coincidences, const edge_fans& fans, int outside,
                 disjoint_sets& cells, progress_poll& poll) {
    if (!complex.facets.empty()) {
        shell_joiner(complex, list, coincidences, fans).join(outside, cells, poll);
    }
}

} // namespace ox::internal::csg::exact
