#include <ox/solid/internal/csg/edge_register.h>

#include <algorithm>
#include <utility>

#include <ox/solid/internal/csg/segment_distance.h>
#include <ox/solid/internal/csg/sorted_edges.h>

namespace ox::internal::csg {

namespace {

/// A power of two; at most half of the slots are taken.
constexpr std::size_t first_slot_count = 64;

/// Edges of most faces: so many are sorted in place.
constexpr std::size_t usual_count = 32;

/// A number for each directed edge, in the order of its lower point, its higher one, and its start:
/// the lowest bit tells edges of opposite directions apart.
std::uint64_t code_of(const directed_edge& edge) {
    const auto low = static_cast<std::uint64_t>(std::min(edge[0], edge[1]));
    const auto high = static_cast<std::uint64_t>(std::max(edge[0], edge[1]));
    return (low << 32) | (high << 1) | (edge[0] > edge[1] ? 1u : 0u);
}

directed_edge edge_of(std::uint64_t code) {
    const int low = static_cast<int>(code >> 32);
    const int high = static_cast<int>((code & 0xffffffffu) >> 1);
    return (code & 1) != 0 ? directed_edge{high, low} : directed_edge{low, high};
}

/// Makes a boundary of the edges of sorted codes, without those that meet an opposite one.
void keep_unmet(const std::uint64_t* codes, const std::uint64_t* end, face_boundary& boundary) {
    boundary.clear();
    for (; codes != end; ++codes) {
        const directed_edge edge = edge_of(*codes);
        if (!boundary.empty() && boundary.back() == directed_edge{edge[1], edge[0]}) {
            boundary.pop_back();
        } else {
            boundary.push_back(edge);
        }
    }
}

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
    if (boundary.size() > usual_count) {
        std::vector<std::uint64_t> codes(boundary.size());
        std::transform(boundary.begin(), boundary.end(), codes.begin(), code_of);
        std::sort(codes.begin(), codes.end());
        keep_unmet(codes.data(), codes.data() + codes.size(), boundary);
    } else {
        std::array<std::uint64_t, usual_count> codes;
        std::uint64_t* const end =
            std::transform(boundary.begin(), boundary.end(), codes.data(), code_of);
        std::sort(codes.data(), end);
        keep_unmet(codes.data(), end, boundary);
    }
}

void cancel_opposites(face_boundary& boundary, std::size_t point_count) {
    std::vector<std::uint64_t> codes(boundary.size());
    std::transform(boundary.begin(), boundary.end(), codes.begin(), code_of);
    sort_by_start(codes, point_count, [](std::uint64_t code) { return code >> 32; });
    keep_unmet(codes.data(), codes.data() + codes.size(), boundary);
}

} // namespace ox::internal::csg
