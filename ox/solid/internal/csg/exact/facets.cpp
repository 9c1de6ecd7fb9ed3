#include <ox/solid/internal/csg/exact/facets.h>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

namespace {

/// The edge between two grid points.
int add_side(facet_complex& complex, int from, int to) {
    const bool is_upwards = complex.points.compare(from, to) < 0;
    const int low = is_upwards ? from : to;
    const int high = is_upwards ? to : from;
    return complex.edges.find_or_add(low, high, {false, low, high});
}

} // namespace

facet_complex::facet_complex(const arrangement_input& input)
    : grid(input.points), points(input.points) {
    facets.reserve(input.triangles.size());
    points.planes.reserve(input.triangles.size());
    for (int i = 0; i < count_of(input.triangles); ++i) {
        const operand_triangle& triangle = item(input.triangles, i);
        const std::array<int, 3>& v = triangle.vertices;
        const plane supporting =
            plane_through(item(grid, v[0]), item(grid, v[1]), item(grid, v[2]));
        if (!is_degenerate(supporting)) {
            const std::array<int, 3> sides = {add_side(*this, v[0], v[1]),
                                              add_side(*this, v[1], v[2]),
                                              add_side(*this, v[2], v[0])};
            facets.push_back({v, sides, triangle.operand, i});
            points.planes.push_back(supporting);
        }
    }
}

int edge_table::find_or_add(int low, int high, const edge_line& line) {
    if (slots.size() < 2 * (edges.size() + 1)) {
        grow();
    }
    std::size_t slot = first_slot(low, high);
    for (; slots[slot] >= 0; slot = (slot + 1) & (slots.size() - 1)) {
        const edge& found = item(edges, slots[slot]);
        if (found.low == low && found.high == high) {
            return slots[slot];
        }
    }
    slots[slot] = count();
    edges.push_back({low, high, line});
    return count() - 1;
}

/// Fibonacci hashing of both ends.
std::size_t edge_table::first_slot(int low, int high) const {
    const std::uint64_t key =
        (static_cast<std::uint64_t>(low) << 32) | static_cast<std::uint64_t>(high);
    const std::uint64_t hash = (key ^ (key >> 29)) * 0x9e3779b97f4a7c15u;
    return static_cast<std::size_t>(hash ^ (hash >> 32)) & (slots.size() - 1);
}

/// Doubles the slots and puts every edge in again.
void edge_table::grow() {
    slots.assign(slots.empty() ? 256 : 2 * slots.size(), -1);
    for (int i = 0; i < count(); ++i) {
        std::size_t slot = first_slot(item(edges, i).low, item(edges, i).high);
        while (slots[slot] >= 0) {
            slot = (slot + 1) & (slots.size() - 1);
        }
        slots[slot] = i;
    }
}

} // namespace ox::internal::csg::exact
