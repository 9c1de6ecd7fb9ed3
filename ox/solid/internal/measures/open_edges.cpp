#include <ox/solid/internal/measures/open_edges.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <tuple>
#include <utility>
#include <vector>

#include <ox/solid/internal/measures/point_tree.h>
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

std::vector<int> ends_of(const edge_balances& edges) {
    std::vector<int> ends;
    for (const edge_balance& edge : edges) {
        ends.push_back(edge.low);
        ends.push_back(edge.high);
    }
    std::sort(ends.begin(), ends.end());
    ends.erase(std::unique(ends.begin(), ends.end()), ends.end());
    return ends;
}

/// The edges divided at every end of another one that lies along them.
edge_balances divide(const edge_balances& edges, const ox_list<ox_3dvector>& points,
                     double tolerance) {
    const point_tree ends(points, ends_of(edges));
    edge_balances pieces;
    for (const edge_balance& edge : edges) {
        int from = edge.low;
        for (const int stop : ends.find_along(edge.low, edge.high, tolerance)) {
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
