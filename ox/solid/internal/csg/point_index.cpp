#include <ox/solid/internal/csg/point_index.h>

#include <algorithm>
#include <cmath>

namespace ox::internal::csg {

namespace {

/// Steps: the widest cell, so that a coordinate over it keeps a margin.
constexpr double largest_width = 1e12;

} // namespace

point_index::point_index(double reach)
    : square_reach(reach * reach),
      width(static_cast<std::int64_t>(std::ceil(std::clamp(reach, 1.0, largest_width)))) {}

point_index::cell point_index::cell_of(const grid_point& point) const {
    const auto floor = [this](std::int64_t value) {
        return value >= 0 ? value / width : -((width - 1 - value) / width);
    };
    return {floor(point.x), floor(point.y), floor(point.z)};
}

void point_index::add(const grid_point& point, int number) {
    cells[cell_of(point)].push_back({point, number});
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
