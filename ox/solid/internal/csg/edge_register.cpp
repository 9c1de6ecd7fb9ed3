#include <ox/solid/internal/csg/edge_register.h>

#include <algorithm>
#include <utility>

#include <ox/solid/internal/csg/segment_distance.h>

namespace ox::internal::csg {

namespace {

/// Orders the edges between the same points next to each other.
bool is_lower_edge(const directed_edge& a, const directed_edge& b) {
    const auto key = [](const directed_edge& e) {
        return std::make_pair(std::min(e[0], e[1]), std::max(e[0], e[1]));
    };
    return key(a) < key(b);
}

} // namespace

int edge_register::find_or_add(int a, int b) {
    const directed_edge ends = {std::min(a, b), std::max(a, b)};
    const std::uint64_t key =
        (static_cast<std::uint64_t>(ends[0]) << 32) | static_cast<std::uint32_t>(ends[1]);
    const auto [place, is_new] = numbers.emplace(key, size());
    if (is_new) {
        edges.push_back(ends);
    }
    return place->second;
}

void edge_division::add(int edge, int point) {
    inner[static_cast<std::size_t>(edge)].push_back(point);
    divided = true;
}

void edge_division::sort(const edge_register& edges, const std::vector<grid_point>& points) {
    std::vector<std::pair<double, int>> places;
    for (std::size_t e = 0; e < inner.size(); ++e) {
        std::vector<int>& inside = inner[e];
        if (inside.size() < 2) {
            continue;
        }
        const directed_edge& ends = edges.ends(static_cast<int>(e));
        const grid_point& start = points[static_cast<std::size_t>(ends[0])];
        const std::array<double, 3> along =
            difference(start, points[static_cast<std::size_t>(ends[1])]);
        places.clear();
        for (const int point : inside) {
            places.emplace_back(
                dot(along, difference(start, points[static_cast<std::size_t>(point)])), point);
        }
        std::sort(places.begin(), places.end());
        places.erase(std::unique(places.begin(), places.end()), places.end());
        inside.clear();
        for (const auto& place : places) {
            inside.push_back(place.second);
        }
    }
}

void edge_division::apply(edge_register& edges, face_boundary& face) const {
    face_boundary divided_face;
    divided_face.reserve(face.size());
    for (const directed_edge& edge : face) {
        const auto number = static_cast<std::size_t>(edges.find_or_add(edge[0], edge[1]));
        if (number >= inner.size() || inner[number].empty()) {
            divided_face.push_back(edge);
            continue;
        }
        std::vector<int> path = inner[number];
        if (edge[0] > edge[1]) {
            std::reverse(path.begin(), path.end());
        }
        path.push_back(edge[1]);
        int from = edge[0];
        for (const int to : path) {
            divided_face.push_back({from, to});
            from = to;
        }
    }
    face = std::move(divided_face);
    cancel_opposites(face);
}

void cancel_opposites(face_boundary& boundary) {
    std::sort(boundary.begin(), boundary.end(), [](const directed_edge& a, const directed_edge& b) {
        return is_lower_edge(a, b) || (!is_lower_edge(b, a) && a < b);
    });
    face_boundary kept;
    for (const directed_edge& edge : boundary) {
        if (!kept.empty() && kept.back()[0] == edge[1] && kept.back()[1] == edge[0]) {
            kept.pop_back();
        } else {
            kept.push_back(edge);
        }
    }
    boundary = std::move(kept);
}

} // namespace ox::internal::csg
