#include <ox/solid/internal/csg/point_index.h>

#include <algorithm>
#include <cmath>

namespace ox::internal::csg {

namespace {

/// Steps: the farthest reach that matters, beyond the extent of any grid, so that coordinates do
/// not overflow.
constexpr double largest_reach = 1e12;

/// Reaches: the width of a cell.
constexpr std::int64_t cell_width = 8;

constexpr std::size_t first_slot_count = 64;

} // namespace

point_index::point_index(double given_reach)
    : square_reach(given_reach * given_reach),
      reach(static_cast<std::int64_t>(std::ceil(std::min(given_reach, largest_reach)))),
      width(std::max<std::int64_t>(reach, 1) * cell_width), slots(first_slot_count, -1) {}

grid_point point_index::cell_of(const grid_point& point) const {
    const auto floor = [this](std::int64_t value) {
        return value >= 0 ? value / width : -((width - 1 - value) / width);
    };
    return {floor(point.x), floor(point.y), floor(point.z)};
}

std::size_t point_index::slot_of(const grid_point& cell) const {
    std::uint64_t mixed = static_cast<std::uint64_t>(cell.x) * 0x9E3779B97F4A7C15u;
    mixed = (mixed ^ (mixed >> 29) ^ static_cast<std::uint64_t>(cell.y)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 32) ^ static_cast<std::uint64_t>(cell.z)) * 0x94D049BB133111EBu;
    return static_cast<std::size_t>(mixed ^ (mixed >> 31)) & (slots.size() - 1);
}

/// Doubles the slots and puts every entry into its new one.
void point_index::enlarge() {
    slots.assign(2 * slots.size(), -1);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        int& first = slots[slot_of(entries[i].cell)];
        entries[i].next = first;
        first = static_cast<int>(i);
    }
}

void point_index::add(const grid_point& point, int number) {
    const grid_point cell = cell_of(point);
    int& first = slots[slot_of(cell)];
    entries.push_back({point, cell, number, first});
    first = static_cast<int>(entries.size()) - 1;
    if (entries.size() > slots.size()) {
        enlarge();
    }
}

int point_index::find_nearest(const grid_point& place) const {
    int nearest = -1;
    double smallest = 0.0;
    visit_near(place, [&](int number, double square) {
        if (nearest < 0 || square < smallest || (square == smallest && number < nearest)) {
            nearest = number;
            smallest = square;
        }
    });
    return nearest;
}

} // namespace ox::internal::csg
