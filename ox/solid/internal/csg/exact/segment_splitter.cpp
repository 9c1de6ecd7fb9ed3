#include <ox/solid/internal/csg/exact/segment_splitter.h>

#include <algorithm>
#include <tuple>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

int line_sense(const point_table& points, int first_plane, int second_plane) {
    for (int axis = 0; axis < 3; ++axis) {
        const int sign =
            cross_sign(item(points.planes, first_plane), item(points.planes, second_plane), axis);
        if (sign != 0) {
            return sign;
        }
    }
    return 0;
}

const std::vector<facet_edge>& segment_splitter::split(int facet_number,
                                                       const facet_segment* segments,
                                                       int segment_count, const facet_point* points,
                                                       int point_count) {
    facet_index = facet_number;
    gather(segments, segment_count);
    find_divisions(points, point_count);
    add_edges();
    return result;
}

/// Segments of the same ends, which are in a row, are one.
void segment_splitter::gather(const facet_segment* segments, int segment_count) {
    distinct.assign(segments, segments + segment_count);
    const auto is_same = [](const facet_segment& a, const facet_segment& b) {
        return a.low == b.low && a.high == b.high;
    };
    distinct.erase(std::unique(distinct.begin(), distinct.end(), is_same), distinct.end());
}

void segment_splitter::find_divisions(const facet_point* points, int point_count) {
    boxes.clear();
    divisions.clear();
    for (const facet_segment& segment : distinct) {
        boxes.push_back(empty_bounds());
        complex.frame.enlarge(boxes.back(), complex.points.near(segment.low));
        complex.frame.enlarge(boxes.back(), complex.points.near(segment.high));
    }
    for (int i = 0; i < point_count; ++i) {
        boxes.push_back(empty_bounds());
        complex.frame.enlarge(boxes.back(), complex.points.near(points[i].point));
    }
    visit_overlapping_pairs(boxes, poll,
                            [&](int a, int b) { meet(std::min(a, b), std::max(a, b), points); });
    std::sort(divisions.begin(), divisions.end(), [&](const division& a, const division& b) {
        return a.segment != b.segment ? a.segment < b.segment
                                      : complex.points.compare(a.point, b.point) < 0;
    });
}

/// Boxes are numbered segments first, then points.
void segment_splitter::meet(int a, int b, const facet_point* points) {
    const int segment_count = count_of(distinct);
    if (b < segment_count) {
        meet_segments(a, b);
    } else if (a < segment_count) {
        meet_point(a, points[b - segment_count].point);
    }
}

void segment_splitter::meet_point(int segment, int point) {
    if (side(point, item(distinct, segment)) == 0) {
        divide_if_inside(segment, point);
    }
}

void segment_splitter::meet_segments(int a, int b) {
    const facet_segment& s = item(distinct, a);
    const facet_segment& t = item(distinct, b);
    const int t_low = side(t.low, s);
    const int t_high = side(t.high, s);
    if (t_low == 0 && t_high == 0) {
        meet_on_line(a, b);
        return;
    }
    const int s_low = side(s.low, t);
    const int s_high = side(s.high, t);
    if (t_low * t_high > 0 || s_low * s_high > 0) {
        return;
    }
    if (t_low == 0 || t_high == 0) {
        divide_if_inside(a, t_low == 0 ? t.low : t.high);
    }
    if (s_low == 0 || s_high == 0) {
        divide_if_inside(b, s_low == 0 ? s.low : s.high);
    }
    if (t_low * t_high < 0 && s_low * s_high < 0) {
        const int crossing = complex.points.add_plane_crossing(facet_index, s.plane, t.plane);
        divisions.push_back({a, crossing});
        divisions.push_back({b, crossing});
    }
}

/// Divides two segments of one line at each other's ends.
void segment_splitter::meet_on_line(int a, int b) {
    for (const int end : {item(distinct, b).low, item(distinct, b).high}) {
        divide_if_inside(a, end);
    }
    for (const int end : {item(distinct, a).low, item(distinct, a).high}) {
        divide_if_inside(b, end);
    }
}

/// The side of a segment's line on which a point of the facet lies.
int segment_splitter::side(int point, const facet_segment& segment) const {
    return point == segment.low || point == segment.high
               ? 0
               : complex.points.side(point, segment.plane);
}

/// Divides a segment at a point of its line that is between its ends.
void segment_splitter::divide_if_inside(int segment, int point) {
    const facet_segment& s = item(distinct, segment);
    if (point != s.low && point != s.high && complex.points.compare(s.low, point) < 0 &&
        complex.points.compare(point, s.high) < 0) {
        divisions.push_back({segment, point});
    }
}

void segment_splitter::add_edges() {
    result.clear();
    std::size_t next = 0;
    for (int i = 0; i < count_of(distinct); ++i) {
        const facet_segment& segment = item(distinct, i);
        poll.step();
        const int sense = line_sense(complex.points, facet_index, segment.plane);
        int low = segment.low;
        for (; next < divisions.size() && divisions[next].segment == i; ++next) {
            if (divisions[next].point != low) {
                add_edge(segment, low, divisions[next].point, sense);
                low = divisions[next].point;
            }
        }
        add_edge(segment, low, segment.high, sense);
    }
    const auto is_before = [](const facet_edge& a, const facet_edge& b) {
        return std::tie(a.edge, a.plane) < std::tie(b.edge, b.plane);
    };
    const auto is_same = [](const facet_edge& a, const facet_edge& b) { return a.edge == b.edge; };
    std::sort(result.begin(), result.end(), is_before);
    result.erase(std::unique(result.begin(), result.end(), is_same), result.end());
}

void segment_splitter::add_edge(const facet_segment& segment, int low, int high, int sense) {
    const edge_line line = sense > 0 ? edge_line{true, facet_index, segment.plane}
                                     : edge_line{true, segment.plane, facet_index};
    result.push_back({complex.edges.find_or_add(low, high, line), segment.plane, sense});
}

} // namespace ox::internal::csg::exact
