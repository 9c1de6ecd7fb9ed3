#include <ox/solid/internal/csg/exact/edge_fans.h>

#include <algorithm>
#include <numeric>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

namespace {

/// Collects the members of the fans, by edge, in the order of the pieces.
edge_fans collect(const facet_complex& complex, const piece_list& list,
                  const coincidence_list& coincidences) {
    edge_fans fans;
    fans.first_member.assign(static_cast<std::size_t>(complex.edges.count()) + 1, 0);
    const auto visit_arcs = [&](auto visit) {
        for (int i = 0; i < count_of(list.pieces); ++i) {
            const piece& p = item(list.pieces, i);
            for (int k = 0; k < p.arc_count && item(coincidences.representative, i) == i; ++k) {
                visit(i, item(list.arcs, p.first_arc + k));
            }
        }
    };
    visit_arcs([&](int, int arc) { ++item(fans.first_member, edge_of(arc) + 1); });
    std::partial_sum(fans.first_member.begin(), fans.first_member.end(), fans.first_member.begin());
    fans.members.resize(static_cast<std::size_t>(fans.first_member.back()));
    std::vector<int> next = fans.first_member;
    visit_arcs([&](int i, int arc) {
        item(fans.members, item(next, edge_of(arc))++) = {i, is_upward(arc)};
    });
    return fans;
}

/// A member with its place in the order about the edge.
struct placed_member {
    fan_member member;
    radial_order::half_plane half_plane;
    int quarter;
};

/// Sorts the members of one edge by the angle from the first.
void sort_fan(const facet_complex& complex, const piece_list& list, const edge& about,
              fan_member* first, fan_member* end, std::vector<placed_member>& placed) {
    const radial_order order(complex, about, half_plane_of(complex, list, *first));
    placed.clear();
    for (const fan_member* member = first + 1; member != end; ++member) {
        const radial_order::half_plane half_plane = half_plane_of(complex, list, *member);
        placed.push_back({*member, half_plane, order.quarter(half_plane)});
    }
    std::sort(placed.begin(), placed.end(), [&](const placed_member& a, const placed_member& b) {
        if (a.quarter != b.quarter) {
            return a.quarter < b.quarter;
        }
        const int turn = a.quarter % 2 != 0 ? order.turn(a.half_plane, b.half_plane) : 0;
        return turn != 0 ? turn > 0 : a.member.piece < b.member.piece;
    });
    for (const placed_member& member : placed) {
        *++first = member.member;
    }
}

} // namespace

int radial_order::turn(half_plane a, half_plane b) const {
    const std::vector<plane>& planes = complex.points.planes;
    const int sign = line.is_of_planes
                         ? spin(item(planes, line.first), item(planes, line.second), *a.supporting,
                                *b.supporting)
                         : spin(item(complex.grid, line.first), item(complex.grid, line.second),
                                *a.supporting, *b.supporting);
    return a.is_upward == b.is_upward ? sign : -sign;
}

int radial_order::quarter(half_plane a) const {
    const int sign = turn(first, a);
    if (sign != 0) {
        return sign > 0 ? 1 : 3;
    }
    const bool is_alike = normals_dot_sign(*first.supporting, *a.supporting) > 0;
    return is_alike == (first.is_upward == a.is_upward) ? 0 : 2;
}

bool radial_order::operator()(half_plane a, half_plane b) const {
    const int quarter_of_a = quarter(a);
    const int quarter_of_b = quarter(b);
    if (quarter_of_a != quarter_of_b) {
        return quarter_of_a < quarter_of_b;
    }
    return quarter_of_a % 2 != 0 && turn(a, b) > 0;
}

radial_order::half_plane half_plane_of(const facet_complex& complex, const piece_list& list,
                                       const fan_member& member) {
    const int facet_index = item(list.pieces, member.piece).facet;
    return {&item(complex.points.planes, facet_index), member.is_upward};
}

edge_fans join_wedges(const facet_complex& complex, const piece_list& list,
                      const coincidence_list& coincidences, disjoint_sets& cells,
                      progress_poll& poll) {
    edge_fans fans = collect(complex, list, coincidences);
    std::vector<placed_member> placed;
    for (int i = 0; i < complex.edges.count(); ++i) {
        poll.step();
        const int first = item(fans.first_member, i);
        const int end = item(fans.first_member, i + 1);
        if (end - first > 2) {
            sort_fan(complex, list, complex.edges[i], fans.members.data() + first,
                     fans.members.data() + end, placed);
        }
        for (int k = first; k < end; ++k) {
            const int next = k + 1 < end ? k + 1 : first;
            cells.join(item(fans.members, k).side_ahead(), item(fans.members, next).side_behind());
        }
    }
    return fans;
}

} // namespace ox::internal::csg::exact
