#include <ox/solid/internal/csg/exact/box_frame.h>

#include <algorithm>
#include <cmath>

namespace ox::internal::csg::exact {

namespace {

using direction = std::array<double, 3>;

constexpr std::array<direction, 3> coordinate_axes = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

/// Above the relative error of a scalar product with a unit vector.
constexpr double relative_error = 0x1p-46;

double dot(const direction& a, const direction& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

direction cross(const direction& a, const direction& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

direction unit(const direction& a) {
    const double length = std::sqrt(dot(a, a));
    return {a[0] / length, a[1] / length, a[2] / length};
}

/// The normal that weighs most, the first of equal ones.
template <typename Weight>
direction heaviest(const std::vector<plane>& planes, Weight weight_of) {
    direction best = {0.0, 0.0, 0.0};
    double greatest = 0.0;
    for (const plane& p : planes) {
        const double weight = weight_of(p.near_normal);
        if (weight > greatest) {
            greatest = weight;
            best = p.near_normal;
        }
    }
    return best;
}

} // namespace

box_frame::box_frame(const std::vector<grid_point>& points) : axes(coordinate_axes) {
    for (const grid_point& point : points) {
        margin = std::max({margin, std::fabs(static_cast<double>(point.x)),
                           std::fabs(static_cast<double>(point.y)),
                           std::fabs(static_cast<double>(point.z))});
    }
    margin *= relative_error;
}

box_frame::box_frame(const std::vector<plane>& planes, const std::vector<grid_point>& points)
    : box_frame(points) {
    const direction largest = heaviest(planes, [](const direction& n) { return dot(n, n); });
    const direction standing = heaviest(planes, [&](const direction& n) {
        const direction across = cross(n, largest);
        return dot(across, across) * (dot(across, across) / dot(n, n));
    });
    const direction third = cross(largest, standing);
    if (dot(third, third) > 0.0) {
        axes = {unit(largest), cross(unit(third), unit(largest)), unit(third)};
    }
}

void box_frame::enlarge(bounds& box, const std::array<double, 3>& point) const {
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double place = dot(axes[axis], point);
        box.low[axis] = std::min(box.low[axis], place - margin);
        box.high[axis] = std::max(box.high[axis], place + margin);
    }
}

} // namespace ox::internal::csg::exact
