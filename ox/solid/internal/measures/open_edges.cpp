#include <ox/solid/internal/measures/open_edges.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <tuple>
#include <utility>
#include <vector>

#include <ox/internal/vectors.h>
#include <ox/internal/wide_vector.h>
#include <ox/solid/internal/csg/box_tree.h>
#include <ox/solid/internal/measures/welded_points.h>
#include <ox/solid/internal/stored_contours.h>

namespace ox::internal {

namespace {

/// The edges between two points, the lower index first: how many more run from `low` to `high` than
/// back.
struct edge_balance {
    int low;
    int high;
    int surplus;

    bool has_same_ends(const edge_balance& other) const {
        return low == other.low && high == other.high;
    }
};

using edge_balances = std::vector<edge_balance>;

edge_balance make_balance(int from, int to, int count) {
    return from < to ? edge_balance{from, to, count} : edge_balance{to, from, -count};
}

void append_edges(const stored_contour& contour, const std::vector<int>& welded,
                  edge_balances& edges) {
    if (contour.size == 0) {
        return;
    }
    int from = welded[contour.indices[contour.size - 1]];
    for (int i = 0; i < contour.size; ++i) {
        const int to = welded[contour.indices[i]];
        if (from != to) {
            edges.push_back(make_balance(from, to, 1));
        }
        from = to;
    }
}

/// Adds up the entries of each pair of points and leaves out those that balance.
edge_balances add_up(edge_balances edges) {
    std::sort(edges.begin(), edges.end(), [](const edge_balance& a, const edge_balance& b) {
        return std::tie(a.low, a.high) < std::tie(b.low, b.high);
    });
    edge_balances sums;
    for (const edge_balance& edge : edges) {
        if (!sums.empty() && sums.back().has_same_ends(edge)) {
            sums.back().surplus += edge.surplus;
            continue;
        }
        sums.push_back(edge);
    }
    sums.erase(std::remove_if(sums.begin(), sums.end(),
                              [](const edge_balance& edge) { return edge.surplus == 0; }),
               sums.end());
    return sums;
}

/// Part of the extents by which boxes are taken larger than they are, so that the roundings of the
/// test with an edge never reject a point that lies along it.
constexpr double box_allowance = 1e-12;

/// The way from one point to another, and a tolerance around it.
struct edge_stretch {
    wide_vector start;
    wide_vector way;
    double tolerance;

    /// False only if no point of the box is within the tolerance of the edge: the part of the edge
    /// within the box, grown by the tolerance, is empty on some axis.
    bool may_reach(const csg::grid_box& box) const {
        double entry = 0.0;
        double exit = 1.0;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const double origin = start.at(axis);
            const double slope = way.at(axis);
            const double extent = std::fabs(origin) + std::fabs(slope) + std::fabs(box.low[axis]) +
                                  std::fabs(box.high[axis]);
            const double margin = tolerance + box_allowance * extent;
            const double to_low = box.low[axis] - margin - origin;
            const double to_high = box.high[axis] + margin - origin;
            if (slope == 0.0) {
                if (to_low > 0.0 || to_high < 0.0) {
                    return false;
                }
                continue;
            }
            entry = std::max(entry, std::min(to_low / slope, to_high / slope));
            exit = std::min(exit, std::max(to_low / slope, to_high / slope));
        }
        return entry <= exit + box_allowance;
    }

    /// Finds how far along the edge a point lies; false when that is not between its ends, or
    /// farther from it than the tolerance.
    bool find_place(const wide_vector& point, double& place) const {
        const wide_vector offset = point - start;
        const wide_vector beside = cross(offset, way);
        const double square_length = dot(way, way);
        place = dot(offset, way);
        return place > 0.0 && place < square_length &&
               dot(beside, beside) <= tolerance * tolerance * square_length;
    }
};

/// Finds the points that lie along an edge, in a tree over the ends of edges.
class edge_divider {
public:
    edge_divider(const ox_list<ox_3dvector>& all_points, const edge_balances& edges,
                 double distance_tolerance)
        : points(all_points), tolerance(distance_tolerance), ends(finite_ends(edges)),
          tree(boxes_of(ends)) {}

    /// The points between the ends of an edge, and no farther from it than the tolerance, in their
    /// order along it; none along an edge that is not finite. O(log n) for each point found.
    std::vector<int> find_along(int from, int to) const {
        std::vector<std::pair<double, int>> stops; // with their places along the edge
        if (is_finite(points[from]) && is_finite(points[to])) {
            const wide_vector start = to_wide(points[from]);
            const edge_stretch edge = {start, to_wide(points[to]) - start, tolerance};
            tree.visit_where([&edge](const csg::grid_box& box) { return edge.may_reach(box); },
                             [&](int index) {
                                 const int point = ends[static_cast<std::size_t>(index)];
                                 double place = 0.0;
                                 if (point != from && point != to &&
                                     edge.find_place(to_wide(points[point]), place)) {
                                     stops.emplace_back(place, point);
                                 }
                             });
        }
        std::sort(stops.begin(), stops.end());
        std::vector<int> found;
        for (const auto& [place, point] : stops) {
            found.push_back(point);
        }
        return found;
    }

private:
    std::vector<int> finite_ends(const edge_balances& edges) const {
        std::vector<int> found;
        for (const edge_balance& edge : edges) {
            for (const int end : {edge.low, edge.high}) {
                if (is_finite(points[end])) {
                    found.push_back(end);
                }
            }
        }
        std::sort(found.begin(), found.end());
        found.erase(std::unique(found.begin(), found.end()), found.end());
        return found;
    }

    std::vector<csg::grid_box> boxes_of(const std::vector<int>& chosen) const {
        std::vector<csg::grid_box> boxes;
        for (const int point : chosen) {
            const wide_vector p = to_wide(points[point]);
            boxes.push_back({{p.x, p.y, p.z}, {p.x, p.y, p.z}});
        }
        return boxes;
    }

    const ox_list<ox_3dvector>& points;
    double tolerance;
    std::vector<int> ends;
    csg::box_tree tree;
};

/// The edges divided at every end of another one that lies along them.
edge_balances divide(const edge_balances& edges, const ox_list<ox_3dvector>& points,
                     double tolerance) {
    const edge_divider divider(points, edges, tolerance);
    edge_balances pieces;
    for (const edge_balance& edge : edges) {
        int from = edge.low;
        for (const int stop : divider.find_along(edge.low, edge.high)) {
            pieces.push_back(make_balance(from, stop, edge.surplus));
            from = stop;
        }
        pieces.push_back(make_balance(from, edge.high, edge.surplus));
    }
    return pieces;
}

ox_list<ox_3dvector> to_pairs(const edge_balances& edges, const ox_list<ox_3dvector>& points) {
    ox_list<ox_3dvector> pairs;
    for (const edge_balance& edge : edges) {
        const bool is_forward = edge.surplus > 0;
        for (int i = 0; i < std::abs(edge.surplus); ++i) {
            pairs.push_right(points[is_forward ? edge.low : edge.high]);
            pairs.push_right(points[is_forward ? edge.high : edge.low]);
        }
    }
    return pairs;
}

} // namespace

ox_list<ox_3dvector> find_open_edges(const ox_solid& solid, double tolerance) {
    const ox_list<ox_3dvector>& points = solid.get_vertices();
    const std::vector<int> welded = weld_points(points, tolerance);
    edge_balances edges;
    visit_contours(solid,
                   [&](const stored_contour& contour) { append_edges(contour, welded, edges); });
    edges = add_up(std::move(edges));
    if (!edges.empty()) {
        edges = add_up(divide(edges, points, tolerance));
    }
    return to_pairs(edges, points);
}

} // namespace ox::internal
