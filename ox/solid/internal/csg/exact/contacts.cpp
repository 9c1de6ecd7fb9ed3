#include <ox/solid/internal/csg/exact/contacts.h>

#include <algorithm>

#include <ox/solid/internal/csg/exact/box_pairs.h>
#include <ox/solid/internal/csg/exact/coplanar_contact.h>
#include <ox/solid/internal/csg/exact/item.h>
#include <ox/solid/internal/csg/exact/pair_table.h>

namespace ox::internal::csg::exact {

namespace {

/// The sides of another facet's plane on which the vertices of a facet lie.
using vertex_sides = std::array<int, 3>;

/// An end of the interval that a facet cuts out of the common line of two planes.
struct interval_end {
    /// The vertex that it is, or -1 for a crossing of a side.
    int vertex;
    /// The side (0 to 2) that it crosses.
    int side;
    /// A side through it, from the other plane's negative side towards the positive one.
    int below;
    int above;
};

/// The interval of the common line; both ends are the same vertex where the facet only touches it.
struct line_interval {
    interval_end first;
    interval_end last;
    /// The side (0 to 2) that it lies along, or -1.
    int along;
};

/// A point of the contact, and the end that it is of each facet's interval, if any.
struct contact_end {
    int point;
    const interval_end* of_first;
    const interval_end* of_second;
};

/// Where a facet lies beside the plane of another one. Vertices that both have are on it.
struct facet_position {
    vertex_sides sides = {0, 0, 0};
    int shared_count = 0;
    int above_count = 0;
    int below_count = 0;

    void place(std::size_t vertex, int side) {
        sides[vertex] = side;
        above_count += side > 0 ? 1 : 0;
        below_count += side < 0 ? 1 : 0;
    }

    /// True if nothing of the facet but the shared vertices and what is between them lies in the
    /// plane: then the facets meet in a vertex or a side that both have, or not at all.
    bool is_beside() const {
        const int own_count = 3 - shared_count;
        return own_count > 0 && (above_count == own_count || below_count == own_count);
    }

    bool is_in_plane() const { return above_count + below_count == 0; }
};

interval_end end_at_vertex(const facet& f, const vertex_sides& sides, int i) {
    const int vertex = item(f.vertices, i);
    int other = (i + 1) % 3;
    if (item(sides, other) == 0) {
        other = (i + 2) % 3;
    }
    const int far_end = item(f.vertices, other);
    return item(sides, other) > 0 ? interval_end{vertex, -1, vertex, far_end}
                                  : interval_end{vertex, -1, far_end, vertex};
}

interval_end end_at_side(const facet& f, const vertex_sides& sides, int side) {
    const int from = item(f.vertices, side);
    const int to = item(f.vertices, (side + 1) % 3);
    return item(sides, side) < 0 ? interval_end{-1, side, from, to}
                                 : interval_end{-1, side, to, from};
}

/// The interval of a facet, in the direction of its own normal times the other plane's. There the
/// facet is entered where its boundary passes from the negative side to the positive one. At least
/// one vertex is off the plane, and not all are on one side.
line_interval interval_of(const facet& f, const vertex_sides& sides) {
    line_interval result = {{}, {}, -1};
    for (int i = 0; i < 3; ++i) {
        const int here = item(sides, i);
        const int next = item(sides, (i + 1) % 3);
        const int before = item(sides, (i + 2) % 3);
        if (here * next < 0) {
            (here < 0 ? result.first : result.last) = end_at_side(f, sides, i);
        }
        // A vertex on the line is entered upwards, left downwards, both where it is a tip.
        if (here == 0 && next >= before) {
            result.first = end_at_vertex(f, sides, i);
        }
        if (here == 0 && next <= before) {
            result.last = end_at_vertex(f, sides, i);
        }
        if (here == 0 && next == 0) {
            result.along = i;
        }
    }
    return result;
}

/// Finds the contacts of facets whose boxes overlap, pair by pair.
class contact_finder {
public:
    contact_finder(facet_complex& owner, contact_list& list, side_planes& planes)
        : complex(owner), contacts(list), clipper(owner, list, planes) {}

    void meet(int first, int second);

private:
    facet_position position_of(const facet& f, const facet& other, int other_plane) const;
    void cross(int first, int second, const vertex_sides& first_sides,
               const vertex_sides& second_sides);
    int order(const interval_end& a, const interval_end& b) const;
    int point_of(const contact_end& end, int first, int second);
    void impose_point(int facet_index, const line_interval& interval, const interval_end* end,
                      int point, bool is_alone);
    void impose(int first, const line_interval& first_interval, int second,
                const line_interval& second_interval, contact_end low, contact_end high);
    void impose_segment(int facet_index, const line_interval& interval, int plane_index, int a,
                        int b);

    facet_complex& complex;
    contact_list& contacts;
    coplanar_clipper clipper;
    /// The crossing of each side and facet that is made.
    pair_table crossings;
};

facet_position contact_finder::position_of(const facet& f, const facet& other,
                                           int other_plane) const {
    const plane& p = item(complex.points.planes, other_plane);
    facet_position position;
    for (std::size_t i = 0; i < 3; ++i) {
        const int vertex = f.vertices[i];
        if (vertex == other.vertices[0] || vertex == other.vertices[1] ||
            vertex == other.vertices[2]) {
            ++position.shared_count;
        } else {
            position.place(i, side_of(item(complex.grid, vertex), p));
        }
    }
    return position;
}

void contact_finder::meet(int first, int second) {
    const facet& f = item(complex.facets, first);
    const facet& g = item(complex.facets, second);
    const facet_position f_position = position_of(f, g, second);
    if (f_position.is_beside()) {
        return;
    }
    if (f_position.is_in_plane()) {
        clipper.clip(first, second);
        return;
    }
    const facet_position g_position = position_of(g, f, first);
    if (!g_position.is_beside()) {
        cross(first, second, f_position.sides, g_position.sides);
    }
}

/// The order of two ends along the normal of the first facet times that of the second: 1 where b
/// is behind a.
int contact_finder::order(const interval_end& a, const interval_end& b) const {
    const std::vector<grid_point>& grid = complex.grid;
    return orientation(item(grid, a.below), item(grid, a.above), item(grid, b.below),
                       item(grid, b.above));
}

void contact_finder::cross(int first, int second, const vertex_sides& first_sides,
                           const vertex_sides& second_sides) {
    const line_interval a = interval_of(item(complex.facets, first), first_sides);
    line_interval b = interval_of(item(complex.facets, second), second_sides);
    // Seen from the other facet the line runs the other way.
    std::swap(b.first, b.last);
    const int a_end_to_b = order(a.last, b.first);
    const int a_to_b_end = order(a.first, b.last);
    if (a_end_to_b > 0 || a_to_b_end < 0) {
        return;
    }
    if (a_end_to_b == 0 || a_to_b_end == 0) {
        const contact_end touch = a_end_to_b == 0 ? contact_end{-1, &a.last, &b.first}
                                                  : contact_end{-1, &a.first, &b.last};
        impose(first, a, second, b, touch, touch);
        return;
    }
    const int low_order = order(a.first, b.first);
    const int high_order = order(a.last, b.last);
    const contact_end low = {-1, low_order <= 0 ? &a.first : nullptr,
                             low_order >= 0 ? &b.first : nullptr};
    const contact_end high = {-1, high_order >= 0 ? &a.last : nullptr,
                              high_order <= 0 ? &b.last : nullptr};
    impose(first, a, second, b, low, high);
}

/// The index of the point in which a contact ends.
int contact_finder::point_of(const contact_end& end, int first, int second) {
    if (end.of_first != nullptr && end.of_first->vertex >= 0) {
        return end.of_first->vertex;
    }
    if (end.of_second != nullptr && end.of_second->vertex >= 0) {
        return end.of_second->vertex;
    }
    const bool is_of_first = end.of_first != nullptr;
    const interval_end& from = is_of_first ? *end.of_first : *end.of_second;
    const facet& f = item(complex.facets, is_of_first ? first : second);
    const int side = item(f.sides, from.side);
    const int crossed = is_of_first ? second : first;
    int& point = crossings.value_of(side, crossed);
    if (point < 0) {
        const edge& along = complex.edges[side];
        point = complex.points.add_line_crossing(along.low, along.high, crossed);
    }
    return point;
}

void contact_finder::impose(int first, const line_interval& first_interval, int second,
                            const line_interval& second_interval, contact_end low,
                            contact_end high) {
    low.point = point_of(low, first, second);
    high.point = point_of(high, first, second);
    const bool is_touch = low.point == high.point;
    impose_point(first, first_interval, low.of_first, low.point, is_touch);
    impose_point(second, second_interval, low.of_second, low.point, is_touch);
    if (!is_touch) {
        impose_point(first, first_interval, high.of_first, high.point, false);
        impose_point(second, second_interval, high.of_second, high.point, false);
        impose_segment(first, first_interval, second, low.point, high.point);
        impose_segment(second, second_interval, first, low.point, high.point);
    }
}

/// A point of a contact in one of its facets: at a vertex it changes nothing, on a side it divides
/// the side, inside the facet it is kept where it is not the end of a segment.
void contact_finder::impose_point(int facet_index, const line_interval& interval,
                                  const interval_end* end, int point, bool is_alone) {
    const facet& f = item(complex.facets, facet_index);
    if (end != nullptr) {
        if (end->vertex < 0) {
            contacts.side_points.push_back({item(f.sides, end->side), point});
        }
    } else if (interval.along >= 0) {
        contacts.side_points.push_back({item(f.sides, interval.along), point});
    } else if (is_alone) {
        contacts.points.push_back({facet_index, point});
    }
}

void contact_finder::impose_segment(int facet_index, const line_interval& interval, int plane_index,
                                    int a, int b) {
    if (interval.along < 0) {
        const bool is_upwards = complex.points.compare(a, b) < 0;
        contacts.segments.push_back(
            {facet_index, plane_index, is_upwards ? a : b, is_upwards ? b : a});
    }
}

bounds box_of(const facet_complex& complex, const facet& f) {
    bounds box = empty_bounds();
    for (const int vertex : f.vertices) {
        complex.frame.enlarge(box, complex.points.near(vertex));
    }
    return box;
}

} // namespace

contact_list find_contacts(facet_complex& complex, side_planes& planes, progress_poll& poll) {
    contact_list contacts;
    contacts.has_coincidence.assign(complex.facets.size(), false);
    std::vector<int> searched;
    std::vector<bounds> boxes;
    for (int i = 0; i < count_of(complex.facets); ++i) {
        if (!item(complex.facets, i).is_clear) {
            searched.push_back(i);
            boxes.push_back(box_of(complex, item(complex.facets, i)));
        }
    }
    contact_finder finder(complex, contacts, planes);
    visit_overlapping_pairs(boxes, poll, [&](int a, int b) {
        finder.meet(item(searched, std::min(a, b)), item(searched, std::max(a, b)));
    });
    return contacts;
}

} // namespace ox::internal::csg::exact
