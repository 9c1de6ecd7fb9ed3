#include <ox/solid/internal/csg/exact/pieces.h>

#include <algorithm>
#include <tuple>

#include <ox/solid/internal/csg/exact/facet_division.h>
#include <ox/solid/internal/csg/exact/item.h>
#include <ox/solid/internal/csg/exact/segment_splitter.h>

namespace ox::internal::csg::exact {

namespace {

/// Makes the pieces of all facets, one facet after another.
class facet_divider {
public:
    facet_divider(facet_complex& owner, contact_list& found, side_planes& made_planes,
                  progress_poll& steps)
        : complex(owner), contacts(found), planes(made_planes), poll(steps), splitter(owner, steps),
          division(owner, steps) {}

    piece_list divide();

private:
    void sort_contacts();
    void divide_sides();
    void add_whole(int facet_index);
    void add_divided(int facet_index, const facet_segment* segments, int segment_count,
                     const facet_point* points, int point_count);

    facet_complex& complex;
    contact_list& contacts;
    side_planes& planes;
    progress_poll& poll;
    segment_splitter splitter;
    facet_division division;
    piece_list list;
};

void facet_divider::sort_contacts() {
    std::sort(contacts.segments.begin(), contacts.segments.end(),
              [](const facet_segment& a, const facet_segment& b) {
                  return std::tie(a.facet, a.low, a.high, a.plane) <
                         std::tie(b.facet, b.low, b.high, b.plane);
              });
    std::sort(contacts.points.begin(), contacts.points.end(),
              [](const facet_point& a, const facet_point& b) {
                  return std::tie(a.facet, a.point) < std::tie(b.facet, b.point);
              });
    std::sort(contacts.side_points.begin(), contacts.side_points.end(),
              [&](const side_point& a, const side_point& b) {
                  return a.side != b.side ? a.side < b.side
                                          : complex.points.compare(a.point, b.point) < 0;
              });
}

/// Divides every side at the points on it, for all facets that share it alike.
void facet_divider::divide_sides() {
    const int side_count = complex.edges.count();
    std::size_t next = 0;
    list.first_of_side.reserve(static_cast<std::size_t>(side_count) + 1);
    list.side_edges.reserve(static_cast<std::size_t>(side_count) + contacts.side_points.size());
    for (int side = 0; side < side_count; ++side) {
        poll.step();
        list.first_of_side.push_back(count_of(list.side_edges));
        const edge whole = complex.edges[side];
        int low = whole.low;
        for (; next < contacts.side_points.size() && contacts.side_points[next].side == side;
             ++next) {
            const int point = contacts.side_points[next].point;
            if (point != low) {
                list.side_edges.push_back(complex.edges.find_or_add(low, point, whole.line));
                low = point;
            }
        }
        list.side_edges.push_back(
            low == whole.low ? side : complex.edges.find_or_add(low, whole.high, whole.line));
    }
    list.first_of_side.push_back(count_of(list.side_edges));
}

/// A facet that nothing divides is one piece.
void facet_divider::add_whole(int facet_index) {
    const facet& f = item(complex.facets, facet_index);
    const int first_arc = count_of(list.arcs);
    for (int i = 0; i < 3; ++i) {
        const bool is_upwards = runs_upwards(complex, f, i);
        const int side = item(f.sides, i);
        for (int place = item(list.first_of_side, side); place < item(list.first_of_side, side + 1);
             ++place) {
            list.arcs.push_back(arc_of(item(list.side_edges, place), is_upwards));
        }
    }
    list.pieces.push_back({facet_index, first_arc, count_of(list.arcs) - first_arc});
}

void facet_divider::add_divided(int facet_index, const facet_segment* segments, int segment_count,
                                const facet_point* points, int point_count) {
    const int axis = longest_axis(item(complex.points.planes, facet_index));
    division.begin(facet_index);
    for (const int side : item(complex.facets, facet_index).sides) {
        const int plane_index = planes.plane_of(side, axis);
        const int sense = line_sense(complex.points, facet_index, plane_index);
        for (int place = item(list.first_of_side, side); place < item(list.first_of_side, side + 1);
             ++place) {
            division.add({item(list.side_edges, place), plane_index, sense});
        }
    }
    for (const facet_edge& part :
         splitter.split(facet_index, segments, segment_count, points, point_count)) {
        division.add(part);
    }
    division.append_pieces(list);
}

piece_list facet_divider::divide() {
    sort_contacts();
    divide_sides();
    list.pieces.reserve(complex.facets.size());
    list.arcs.reserve(3 * complex.facets.size());
    const std::vector<facet_segment>& segments = contacts.segments;
    const std::vector<facet_point>& points = contacts.points;
    std::size_t segment = 0;
    std::size_t point = 0;
    for (int i = 0; i < count_of(complex.facets); ++i) {
        poll.step();
        list.first_of_facet.push_back(count_of(list.pieces));
        const std::size_t first_segment = segment;
        const std::size_t first_point = point;
        for (; segment < segments.size() && segments[segment].facet == i; ++segment) {
        }
        for (; point < points.size() && points[point].facet == i; ++point) {
        }
        if (segment == first_segment) {
            add_whole(i);
        } else {
            add_divided(i, segments.data() + first_segment,
                        static_cast<int>(segment - first_segment), points.data() + first_point,
                        static_cast<int>(point - first_point));
        }
    }
    list.first_of_facet.push_back(count_of(list.pieces));
    return std::move(list);
}

} // namespace

piece_list divide_facets(facet_complex& complex, contact_list& contacts, side_planes& planes,
                         progress_poll& poll) {
    return facet_divider(complex, contacts, planes, poll).divide();
}

} // namespace ox::internal::csg::exact
