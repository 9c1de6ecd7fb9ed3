#include <ox/solid/internal/csg/exact/coplanar_contact.h>

#include <algorithm>

#include <ox/solid/internal/csg/exact/contacts.h>
#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

namespace {

using side_table = std::array<std::array<int, 3>, 3>;

int next_of(int corner) {
    return (corner + 1) % 3;
}

/// True if a vertex lies in the facet or on its boundary.
bool is_within(const side_table& table, int vertex) {
    return item(table[0], vertex) >= 0 && item(table[1], vertex) >= 0 &&
           item(table[2], vertex) >= 0;
}

/// True if some side has every vertex of the other facet outside or on it.
bool has_separating_side(const side_table& table) {
    return std::any_of(table.begin(), table.end(), [](const std::array<int, 3>& row) {
        return row[0] <= 0 && row[1] <= 0 && row[2] <= 0;
    });
}

/// True if the vertex is one of the facet's.
bool is_vertex_of(const facet& f, int vertex) {
    return f.vertices[0] == vertex || f.vertices[1] == vertex || f.vertices[2] == vertex;
}

/// The ends of a set of points in a line.
struct span {
    int low = -1;
    int high = -1;

    void add(const point_table& points, int point) {
        if (low < 0 || points.compare(point, low) < 0) {
            low = point;
        }
        if (high < 0 || points.compare(point, high) > 0) {
            high = point;
        }
    }
};

} // namespace

void coplanar_clipper::clip(int first, int second) {
    const facet f = item(complex.facets, first);
    const facet g = item(complex.facets, second);
    const int axis = longest_axis(item(complex.points.planes, first));
    side_table g_beside_f{};
    side_table f_beside_g{};
    if (!fill(g_beside_f, f, first, g, axis) || !fill(f_beside_g, g, second, f, axis)) {
        return;
    }
    if (!has_separating_side(g_beside_f) && !has_separating_side(f_beside_g)) {
        contacts.has_coincidence[static_cast<std::size_t>(first)] = true;
        contacts.has_coincidence[static_cast<std::size_t>(second)] = true;
    }
    const crossing_table crossings = cross_sides(f, g, g_beside_f, f_beside_g, axis);
    impose_vertices(f, g, g_beside_f);
    impose_vertices(g, f, f_beside_g);
    for (int side = 0; side < 3; ++side) {
        const std::array<int, 3> of_g = {item(crossings[0], side), item(crossings[1], side),
                                         item(crossings[2], side)};
        impose_side(first, g, side, g_beside_f, f_beside_g, of_g, axis);
        impose_side(second, f, side, f_beside_g, g_beside_f, item(crossings, side), axis);
    }
}

/// Fills the table of the vertices of g beside the sides of f. False where a side of f has all of g
/// outside, except vertices that the two share: then they impose nothing on each other.
bool coplanar_clipper::fill(side_table& table, const facet& f, int f_plane, const facet& g,
                            int axis) const {
    const int sense = item(item(complex.points.planes, f_plane).normal, axis).sign();
    for (int side = 0; side < 3; ++side) {
        const int from = item(f.vertices, side);
        const int to = item(f.vertices, next_of(side));
        bool is_apart = true;
        for (int vertex = 0; vertex < 3; ++vertex) {
            const int other = item(g.vertices, vertex);
            const bool is_end = other == from || other == to;
            int& beside = item(item(table, side), vertex);
            beside = is_end ? 0
                            : sense * turn(item(complex.grid, from), item(complex.grid, to),
                                           item(complex.grid, other), axis);
            is_apart = is_apart && (is_end || beside < 0);
        }
        if (is_apart) {
            return false;
        }
    }
    return true;
}

/// The crossings, by the side of f and the side of g; they divide both sides.
coplanar_clipper::crossing_table coplanar_clipper::cross_sides(const facet& f, const facet& g,
                                                               const side_table& g_beside_f,
                                                               const side_table& f_beside_g,
                                                               int axis) {
    crossing_table crossings{};
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j) {
            int& crossing = item(item(crossings, i), j);
            crossing = -1;
            const std::array<int, 3>& by_f = item(g_beside_f, i);
            const std::array<int, 3>& by_g = item(f_beside_g, j);
            if (item(by_f, j) * item(by_f, next_of(j)) < 0 &&
                item(by_g, i) * item(by_g, next_of(i)) < 0) {
                const edge side = complex.edges[item(g.sides, j)];
                crossing = complex.points.add_line_crossing(
                    side.low, side.high, planes.plane_of(item(f.sides, i), axis));
                contacts.side_points.push_back({item(f.sides, i), crossing});
                contacts.side_points.push_back({item(g.sides, j), crossing});
            }
        }
    }
    return crossings;
}

/// Divides the sides of f at the vertices of g on them.
void coplanar_clipper::impose_vertices(const facet& f, const facet& g,
                                       const side_table& g_beside_f) {
    for (int vertex = 0; vertex < 3; ++vertex) {
        const int point = item(g.vertices, vertex);
        if (is_vertex_of(f, point) || !is_within(g_beside_f, vertex)) {
            continue;
        }
        for (int side = 0; side < 3; ++side) {
            if (item(item(g_beside_f, side), vertex) == 0) {
                contacts.side_points.push_back({item(f.sides, side), point});
            }
        }
    }
}

/// Imposes on a facet a side of g, as far as it lies in the facet and not along its boundary.
void coplanar_clipper::impose_side(int facet_index, const facet& g, int side,
                                   const side_table& g_beside_f, const side_table& f_beside_g,
                                   const std::array<int, 3>& crossings, int axis) {
    const facet& f = item(complex.facets, facet_index);
    span inside;
    for (const int end : {side, next_of(side)}) {
        if (is_within(g_beside_f, end)) {
            inside.add(complex.points, item(g.vertices, end));
        }
    }
    for (int i = 0; i < 3; ++i) {
        const std::array<int, 3>& beside_side = item(g_beside_f, i);
        if (item(beside_side, side) == 0 && item(beside_side, next_of(side)) == 0) {
            return;
        }
        if (item(item(f_beside_g, side), i) == 0 && is_within(f_beside_g, i)) {
            inside.add(complex.points, item(f.vertices, i));
        }
        if (item(crossings, i) >= 0) {
            inside.add(complex.points, item(crossings, i));
        }
    }
    if (inside.low != inside.high) {
        const int along = planes.plane_of(item(g.sides, side), axis);
        contacts.segments.push_back({facet_index, along, inside.low, inside.high});
    }
}

} // namespace ox::internal::csg::exact
