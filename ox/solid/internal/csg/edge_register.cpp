#include <ox/solid/internal/csg/edge_register.h>

#include <algorithm>
#include <utility>

#include <ox/solid/internal/csg/segment_distance.h>

namespace ox::internal::csg {

namespace {

/// A power of two; at most half of the slots are taken.
constexpr std::size_t first_slot_count = 64;

/// Orders edges by their lower ends, then their higher ones, then their directions.
constexpr auto comes_before = [](const directed_edge& a, const directed_edge& b) {
    const int a_low = std::min(a[0], a[1]);
    const int b_low = std::min(b[0], b[1]);
    if (a_low != b_low) {
        return a_low < b_low;
    }
    const int a_high = std::max(a[0], a[1]);
    const int b_high = std::max(b[0], b[1]);
    return a_high != b_high ? a_high < b_high : a[0] < b[0];
};

} // namespace

edge_register::edge_register() : slots(first_slot_count, -1) {}

/// The slot that holds an edge, or the free one where it belongs.
std::size_t edge_register::slot_of(const directed_edge& ends) const {
    std::uint64_t mixed =
        (static_cast<std::uint64_t>(ends[0]) << 32) | static_cast<std::uint32_t>(ends[1]);
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    const std::size_t mask = slots.size() - 1;
    std::size_t slot = static_cast<std::size_t>(mixed ^ (mixed >> 31)) & mask;
    while (slots[slot] >= 0 && edges[static_cast<std::size_t>(slots[slot])] != ends) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

void edge_register::enlarge() {
    slots.assign(2 * slots.size(), -1);
    for (std::size_t i = 0; i < edges.size(); ++i) {
        slots[slot_of(edges[i])] = static_cast<int>(i);
    }
}

int edge_register::find_or_add(int a, int b) {
    const directed_edge ends = {std::min(a, b), std::max(a, b)};
    const std::size_t slot = slot_of(ends);
    if (slots[slot] >= 0) {
        return slots[slot];
    }
    const int number = size();
    edges.push_back(ends);
    slots[slot] = number;
    if (2 * edges.size() > slots.size()) {
        enlarge();
    }
    return number;
}

void edge_division::add(int edge, int point) {
    inner[static_cast<std::size_t>(edge)].push_back(point);
    ++count;
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
        count -= inside.size() - places.size();
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
    std::sort(boundary.begin(), boundary.end(), comes_before);
    std::size_t kept = 0;
    for (const directed_edge& edge : boundary) {
        if (kept > 0 && boundary[kept - 1][0] == edge[1] && boundary[kept - 1][1] == edge[0]) {
            --kept;
        } else {
            boundary[kept++] = edge;
        }
    }
    boundary.resize(kept);
}

} // namespace ox::internal::csg
