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

} // namespace

/// 1 where the second half-plane is ahead of the first by less than half a turn.
int radial_order::turn(half_plane a, half_plane b) const {
    const std::vector<plane>& planes = complex.points.planes;
    const int sign = line.is_of_planes
                         ? spin(item(planes, line.first), item(planes, line.second), *a.supporting,
                                *b.supporting)
                         : spin(item(complex.grid, line.first), item(complex.grid, line.second),
                                *a.supporting, *b.supporting);
    return a.is_upward == b.is_upward ? sign : -sign;
}

/// 0 along the first half-plane, 1 up to half a turn, 2 opposite to it, 3 beyond.
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
    for (int i = 0; i < complex.edges.count(); ++i) {
        const int first = item(fans.first_member, i);
        const int end = item(fans.first_member, i + 1);
        if (end - first > 2) {
            poll.step();
            const auto plane_at = [&](const fan_member& member) {
                return half_plane_of(complex, list, member);
            };
            const radial_order order(complex, complex.edges[i],
                                     plane_at(item(fans.members, first)));
            std::stable_sort(fans.members.begin() + first + 1, fans.members.begin() + end,
                             [&](const fan_member& a, const fan_member& b) {
                                 return order(plane_at(a), plane_at(b));
                             });
        }
        for (int k = first; k < end; ++k) {
            const int next = k + 1 < end ? k + 1 : first;
            cells.join(item(fans.members, k).side_ahead(), item(fans.members, next).side_behind());
        }
    }
    return fans;
}

} // namespace ox::internal::csg::exact
