#include <algorithm>
#include <cmath>

#include <ox/solid/internal/csg/face_groups.h>
#include <ox/solid/internal/csg/segment_distance.h>
#include <ox/solid/internal/csg/sorted_edges.h>

// A point that only two edges meet, whatever faces they belong to, may be left out without any face
// losing its neighbour: all faces there run through it from the one edge to the other. Such points
// make paths between the others. A path is straight where all its points lie close to the line
// between its ends; else it is divided at the farthest one.

namespace ox::internal::csg {

namespace {

/// Part of the tolerance, and spacings of floats, within which a path is straight.
constexpr double straight_share = 0.1;
constexpr double straight_spacings = 4.0;

class path_straightener {
public:
    path_straightener(const std::vector<face_group>& groups, const std::vector<grid_point>& given,
                      double straightness, exact::progress_poll& steps);
    void run();
    void apply(face_boundary& boundary) const;

private:
    bool is_passed(int point) const { return degree[static_cast<std::size_t>(point)] == 2; }
    void follow(int start, int next);
    void simplify(const std::vector<int>& path);
    int other_neighbour(int point, int from) const;

    const std::vector<grid_point>& points;
    exact::progress_poll& poll;
    double reach;
    std::vector<directed_edge> edges; // both directions of each, sorted
    std::vector<std::size_t> first;   // the first edge that leaves each point
    std::vector<int> degree;
    std::vector<bool> is_walked; // points of paths that were followed
    std::vector<bool> is_left_out;
};

path_straightener::path_straightener(const std::vector<face_group>& groups,
                                     const std::vector<grid_point>& given, double straightness,
                                     exact::progress_poll& steps)
    : points(given), poll(steps), reach(straightness), first(given.size(), 0),
      degree(given.size(), 0), is_walked(given.size(), false), is_left_out(given.size(), false) {
    for (const face_group& group : groups) {
        for (const directed_edge& edge : group.boundary) {
            edges.push_back(edge);
            edges.push_back({edge[1], edge[0]});
        }
    }
    sort_by_start(edges, points.size(), [](const directed_edge& edge) { return edge[0]; });
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    for (std::size_t e = edges.size(); e-- > 0;) {
        const auto from = static_cast<std::size_t>(edges[e][0]);
        first[from] = e;
        ++degree[from];
    }
}

int path_straightener::other_neighbour(int point, int from) const {
    const std::size_t e = first[static_cast<std::size_t>(point)];
    return edges[e][1] == from ? edges[e + 1][1] : edges[e][1];
}

void path_straightener::run() {
    for (const directed_edge& edge : edges) {
        poll.step();
        if (!is_passed(edge[0]) && is_passed(edge[1]) &&
            !is_walked[static_cast<std::size_t>(edge[1])]) {
            follow(edge[0], edge[1]);
        }
    }
    for (const directed_edge& edge : edges) { // rings of such points alone
        if (is_passed(edge[0]) && !is_walked[static_cast<std::size_t>(edge[0])]) {
            is_walked[static_cast<std::size_t>(edge[0])] = true;
            follow(edge[0], edge[1]);
        }
    }
}

/// Walks a path to its end and leaves out what it does not need.
void path_straightener::follow(int start, int next) {
    std::vector<int> path = {start, next};
    while (is_passed(path.back()) && path.back() != start) {
        is_walked[static_cast<std::size_t>(path.back())] = true;
        path.push_back(other_neighbour(path.back(), path[path.size() - 2]));
    }
    simplify(path);
}

/// Leaves out the inner points of straight parts, without recursion: the parts still to be looked
/// at are kept by their ends.
void path_straightener::simplify(const std::vector<int>& path) {
    const auto at = [&](std::size_t i) -> const grid_point& {
        return points[static_cast<std::size_t>(path[i])];
    };
    std::vector<std::array<std::size_t, 2>> parts = {{0, path.size() - 1}};
    while (!parts.empty()) {
        const std::array<std::size_t, 2> part = parts.back();
        parts.pop_back();
        std::size_t farthest = 0;
        double square = -1.0;
        for (std::size_t i = part[0] + 1; i < part[1]; ++i) {
            poll.step();
            const std::array<double, 3> way = difference(at(part[0]), at(i));
            const nearest_place foot = find_foot(at(part[0]), at(part[1]), at(i));
            const bool is_beside = foot.parameter > 0.0 && foot.parameter < 1.0;
            const double away = is_beside ? foot.square_distance : dot(way, way);
            if (away > square) {
                square = away;
                farthest = i;
            }
        }
        if (square > reach * reach) {
            parts.push_back({part[0], farthest});
            parts.push_back({farthest, part[1]});
            continue;
        }
        for (std::size_t i = part[0] + 1; i < part[1]; ++i) {
            is_left_out[static_cast<std::size_t>(path[i])] = true;
        }
    }
}

void path_straightener::apply(face_boundary& boundary) const {
    face_boundary kept;
    kept.reserve(boundary.size());
    for (const directed_edge& edge : boundary) {
        poll.step();
        if (is_left_out[static_cast<std::size_t>(edge[0])]) {
            continue;
        }
        int from = edge[0];
        int to = edge[1];
        while (is_left_out[static_cast<std::size_t>(to)]) {
            const int beyond = other_neighbour(to, from);
            from = to;
            to = beyond;
        }
        if (to != edge[0]) {
            kept.push_back({edge[0], to});
        }
    }
    boundary = std::move(kept);
}

} // namespace

void straighten(std::vector<face_group>& groups, const std::vector<grid_point>& points,
                const working_grid& grid, exact::progress_poll& poll) {
    const double spacing = grid.get_float_spacing();
    const double reach =
        grid.get_tolerance() > 0.0
            ? std::min(grid.get_tolerance() * straight_share, straight_spacings * spacing)
            : spacing;
    path_straightener straightener(groups, points, reach, poll);
    straightener.run();
    for (face_group& group : groups) {
        straightener.apply(group.boundary);
    }
}

} // namespace ox::internal::csg
