#include <ox/solid/internal/csg/exact/plane.h>

#include <cmath>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

namespace {

/// Above the relative error of a sum of at most six products of at most three rounded factors,
/// against the sum of their magnitudes.
constexpr double filter_error = 0x1p-48;

/// The sign of a value whose error is known to be below the bound; 2 where that leaves it open.
int certain_sign(double value, double bound) {
    return value > bound ? 1 : (value < -bound ? -1 : 2);
}

using difference = std::array<std::int64_t, 3>;

difference between(const grid_point& from, const grid_point& to) {
    return {to.x - from.x, to.y - from.y, to.z - from.z};
}

wide<2> product(std::int64_t a, std::int64_t b) {
    return make_wide(a) * make_wide(b);
}

/// a * d - b * c.
wide<2> minor(std::int64_t a, std::int64_t b, std::int64_t c, std::int64_t d) {
    return product(a, d) - product(b, c);
}

wide<2> times(const wide<2>& a, std::int64_t b) {
    return resized<2>(a * make_wide(b));
}

wide<2> dot(const std::array<wide<2>, 3>& normal, const grid_point& point) {
    return times(normal[0], point.x) + times(normal[1], point.y) + times(normal[2], point.z);
}

std::array<wide<2>, 3> cross(const difference& u, const difference& v) {
    return {minor(u[1], u[2], v[1], v[2]), minor(u[2], u[0], v[2], v[0]),
            minor(u[0], u[1], v[0], v[1])};
}

plane make_plane(const std::array<wide<2>, 3>& normal, const grid_point& point) {
    plane result = {normal, dot(normal, point), {}, 0.0};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        result.near_normal[axis] = to_double(normal[axis]);
    }
    result.near_offset = to_double(result.offset);
    return result;
}

/// A coordinate of the cross product of two normals in double, and the sum of the magnitudes that
/// it is made of.
struct near_minor {
    double value;
    double size;
};

near_minor near_cross(const plane& a, const plane& b, int axis) {
    const int next = (axis + 1) % 3;
    const int last = (axis + 2) % 3;
    const double left = item(a.near_normal, next) * item(b.near_normal, last);
    const double right = item(a.near_normal, last) * item(b.near_normal, next);
    return {left - right, std::fabs(left) + std::fabs(right)};
}

} // namespace

plane plane_through(const grid_point& a, const grid_point& b, const grid_point& c) {
    return make_plane(cross(between(a, b), between(a, c)), a);
}

plane plane_along(const grid_point& a, const grid_point& b, int axis) {
    difference along = {0, 0, 0};
    item(along, axis) = 1;
    return make_plane(cross(between(a, b), along), a);
}

bool is_degenerate(const plane& p) {
    return p.normal[0].is_zero() && p.normal[1].is_zero() && p.normal[2].is_zero();
}

int side_of(const grid_point& point, const plane& p) {
    const double x = p.near_normal[0] * static_cast<double>(point.x);
    const double y = p.near_normal[1] * static_cast<double>(point.y);
    const double z = p.near_normal[2] * static_cast<double>(point.z);
    const double size = std::fabs(x) + std::fabs(y) + std::fabs(z) + std::fabs(p.near_offset);
    const int sign = certain_sign(x + y + z - p.near_offset, filter_error * size);
    return sign != 2 ? sign : (dot(p.normal, point) - p.offset).sign();
}

int orientation(const grid_point& a, const grid_point& b, const grid_point& c,
                const grid_point& d) {
    const difference u = between(a, b);
    const difference v = between(a, c);
    const difference w = between(a, d);
    double value = 0.0;
    double size = 0.0;
    for (std::size_t i = 0; i < 3; ++i) {
        const std::size_t next = (i + 1) % 3;
        const std::size_t last = (i + 2) % 3;
        const double left = static_cast<double>(v[next]) * static_cast<double>(w[last]);
        const double right = static_cast<double>(v[last]) * static_cast<double>(w[next]);
        value += static_cast<double>(u[i]) * (left - right);
        size += std::fabs(static_cast<double>(u[i])) * (std::fabs(left) + std::fabs(right));
    }
    const int sign = certain_sign(value, filter_error * size);
    if (sign != 2) {
        return sign;
    }
    const std::array<wide<2>, 3> normal = cross(v, w);
    return (times(normal[0], u[0]) + times(normal[1], u[1]) + times(normal[2], u[2])).sign();
}

int turn(const grid_point& a, const grid_point& b, const grid_point& c, int axis) {
    const difference u = between(a, b);
    const difference v = between(a, c);
    const int next = (axis + 1) % 3;
    const int last = (axis + 2) % 3;
    const double left = static_cast<double>(item(u, next)) * static_cast<double>(item(v, last));
    const double right = static_cast<double>(item(u, last)) * static_cast<double>(item(v, next));
    const int sign =
        certain_sign(left - right, filter_error * (std::fabs(left) + std::fabs(right)));
    return sign != 2 ? sign
                     : minor(item(u, next), item(u, last), item(v, next), item(v, last)).sign();
}

wide<4> determinant(const plane& a, const plane& b, const plane& c) {
    wide<4> sum{};
    for (int axis = 0; axis < 3; ++axis) {
        sum += resized<4>(item(a.normal, axis) * cross_coordinate(b, c, axis));
    }
    return sum;
}

int determinant_sign(const plane& a, const plane& b, const plane& c) {
    double value = 0.0;
    double size = 0.0;
    for (int axis = 0; axis < 3; ++axis) {
        const near_minor cross = near_cross(b, c, axis);
        value += item(a.near_normal, axis) * cross.value;
        size += std::fabs(item(a.near_normal, axis)) * cross.size;
    }
    const int sign = certain_sign(value, filter_error * size);
    return sign != 2 ? sign : determinant(a, b, c).sign();
}

wide<4> cross_coordinate(const plane& a, const plane& b, int axis) {
    const int next = (axis + 1) % 3;
    const int last = (axis + 2) % 3;
    return item(a.normal, next) * item(b.normal, last) -
           item(a.normal, last) * item(b.normal, next);
}

int cross_sign(const plane& a, const plane& b, int axis) {
    const near_minor cross = near_cross(a, b, axis);
    const int sign = certain_sign(cross.value, filter_error * cross.size);
    return sign != 2 ? sign : cross_coordinate(a, b, axis).sign();
}

int spin(const grid_point& from, const grid_point& to, const plane& a, const plane& b) {
    const difference along = between(from, to);
    double value = 0.0;
    double size = 0.0;
    for (int axis = 0; axis < 3; ++axis) {
        const double length = static_cast<double>(item(along, axis));
        const near_minor cross = near_cross(a, b, axis);
        value += length * cross.value;
        size += std::fabs(length) * cross.size;
    }
    const int sign = certain_sign(value, filter_error * size);
    wide<5> exact{};
    for (int axis = 0; sign == 2 && axis < 3; ++axis) {
        exact += cross_coordinate(a, b, axis) * make_wide(item(along, axis));
    }
    return sign != 2 ? sign : exact.sign();
}

int spin(const plane& p, const plane& q, const plane& a, const plane& b) {
    double value = 0.0;
    double size = 0.0;
    for (int axis = 0; axis < 3; ++axis) {
        const near_minor along = near_cross(p, q, axis);
        const near_minor cross = near_cross(a, b, axis);
        value += along.value * cross.value;
        size += along.size * cross.size;
    }
    const int sign = certain_sign(value, filter_error * size);
    wide<8> exact{};
    for (int axis = 0; sign == 2 && axis < 3; ++axis) {
        exact += cross_coordinate(p, q, axis) * cross_coordinate(a, b, axis);
    }
    return sign != 2 ? sign : exact.sign();
}

int normals_dot_sign(const plane& a, const plane& b) {
    double value = 0.0;
    double size = 0.0;
    wide<4> exact{};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double term = a.near_normal[axis] * b.near_normal[axis];
        value += term;
        size += std::fabs(term);
    }
    const int sign = certain_sign(value, filter_error * size);
    for (std::size_t axis = 0; sign == 2 && axis < 3; ++axis) {
        exact += a.normal[axis] * b.normal[axis];
    }
    return sign != 2 ? sign : exact.sign();
}

int longest_axis(const plane& p) {
    int longest = 0;
    for (int axis = 1; axis < 3; ++axis) {
        if (std::fabs(item(p.near_normal, axis)) > std::fabs(item(p.near_normal, longest))) {
            longest = axis;
        }
    }
    return longest;
}

} // namespace ox::internal::csg::exact
