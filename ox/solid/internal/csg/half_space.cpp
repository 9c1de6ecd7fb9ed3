#include <ox/solid/internal/csg/half_space.h>

#include <algorithm>
#include <cmath>

#include <ox/internal/vectors.h>

namespace ox::internal::csg {

namespace {

using direction = std::array<double, 3>;

/// What the box is larger than the ball around the extent.
constexpr double box_margin = 1.01;

direction scaled(const direction& v, double factor) {
    return {v[0] * factor, v[1] * factor, v[2] * factor};
}

direction sum(const direction& a, const direction& b) {
    return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}

direction unit(const direction& v) {
    const double largest = std::max({std::fabs(v[0]), std::fabs(v[1]), std::fabs(v[2])});
    const direction reduced = {v[0] / largest, v[1] / largest, v[2] / largest};
    return scaled(reduced, 1.0 / std::sqrt(dot(reduced, reduced)));
}

/// A direction across `normal`: along an axis where the normal is along one.
direction across(const direction& normal) {
    std::size_t smallest = 0;
    for (std::size_t axis = 1; axis < 3; ++axis) {
        if (std::fabs(normal[axis]) < std::fabs(normal[smallest])) {
            smallest = axis;
        }
    }
    direction axis = {0.0, 0.0, 0.0};
    axis[smallest] = 1.0;
    return unit(cross(axis, normal));
}

/// The corners of a box in the order of the bits of their numbers: along u, along v, upwards.
shell make_box(const direction& corner, const std::array<direction, 3>& sides,
               const working_grid& grid) {
    shell box;
    for (unsigned int i = 0; i < 8; ++i) {
        direction place = corner;
        for (unsigned int side = 0; side < 3; ++side) {
            if ((i >> side & 1u) != 0) {
                place = sum(place, sides[side]);
            }
        }
        box.points.push_back(working_grid::round(place));
        box.vertices.push_back(grid.to_model(box.points.back()));
    }
    const std::array<std::array<int, 4>, 6> faces = {
        {{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4}, {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}}};
    for (const std::array<int, 4>& f : faces) {
        box.faces.push_back({{f[0], f[1]}, {f[1], f[2]}, {f[2], f[3]}, {f[3], f[0]}});
    }
    return box;
}

} // namespace

bool check_half_space(const operand& given, int number, std::vector<ox_csg_problem>& problems) {
    const auto refuse = [&](ox_csg_problem::ox_kind kind) {
        problems.push_back({number, kind, ox_3dvector(), ox_3dvector()});
        return false;
    };
    if (!is_finite(given.point) || !is_finite(given.normal)) {
        return refuse(ox_csg_problem::problem_not_finite);
    }
    const bool is_zero = given.normal == ox_3dvector(0.0f, 0.0f, 0.0f);
    return !is_zero || refuse(ox_csg_problem::problem_no_plane);
}

shell make_half_space(const operand& given, const grid_box& extent, const working_grid& grid) {
    if (extent.low[0] > extent.high[0]) {
        return shell();
    }
    const direction normal =
        unit({static_cast<double>(given.normal.x), static_cast<double>(given.normal.y),
              static_cast<double>(given.normal.z)});
    const direction middle = scaled(sum(extent.low, extent.high), 0.5);
    const direction diagonal = sum(extent.high, scaled(extent.low, -1.0));
    const double size = std::sqrt(dot(diagonal, diagonal));
    const double radius = box_margin * (0.5 * size + std::min(grid.get_tolerance(), size) + 1.0);
    const direction point = grid.to_steps(given.point);
    const double height = dot(normal, sum(point, scaled(middle, -1.0)));
    if (height > radius) {
        return shell();
    }
    const direction u = across(normal);
    const direction v = cross(normal, u);
    const direction foot = sum(middle, scaled(normal, std::max(height, -radius)));
    const direction corner = sum(foot, sum(scaled(u, -radius), scaled(v, -radius)));
    return make_box(corner,
                    {scaled(u, 2.0 * radius), scaled(v, 2.0 * radius),
                     scaled(normal, radius - std::max(height, -radius))},
                    grid);
}

} // namespace ox::internal::csg
