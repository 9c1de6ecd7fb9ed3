#include <ox/solid/internal/csg/exact/point_table.h>

#include <cmath>
#include <cstring>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

namespace {

constexpr std::uint8_t all_exact = 7;

/// Above the relative error of a sum of four products of twice rounded factors.
constexpr double filter_error = 0x1p-48;

/// A coordinate of a normal times one of a point.
wide<3> scaled(const wide<2>& factor, std::int64_t coordinate) {
    return factor * make_wide(coordinate);
}

std::uint64_t bits_of(double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

/// Spreads every bit over the whole word (the finaliser of splitmix64).
std::uint64_t mixed(std::uint64_t word) {
    word = (word ^ (word >> 30)) * 0xbf58476d1ce4e5b9u;
    word = (word ^ (word >> 27)) * 0x94d049bb133111ebu;
    return word ^ (word >> 31);
}

/// The offset of a point from a plane along its normal, times the normal's length.
wide<2> height(const grid_point& point, const plane& p) {
    wide<2> sum = -p.offset;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        sum += resized<2>(scaled(p.normal[axis], coordinate(point, axis)));
    }
    return sum;
}

/// The quotient of a division to a whole number that is known to lie near the estimate, and what
/// is left over.
struct division {
    std::uint64_t quotient;
    wide<5> remainder;
};

/// Divides a number that is not negative by one above 0; the quotient has at most 54 bits. The
/// estimate in double is off by a few units, which the remainder puts right.
division divide(const wide<5>& dividend, const wide<5>& divisor) {
    const auto estimate = static_cast<std::uint64_t>(to_double(dividend) / to_double(divisor));
    const wide<6> taken = divisor * make_wide(static_cast<std::int64_t>(estimate));
    division result = {estimate, dividend - resized<5>(taken)};
    while (result.remainder.is_negative()) {
        result.remainder += divisor;
        --result.quotient;
    }
    for (wide<5> next = result.remainder - divisor; !next.is_negative(); next -= divisor) {
        result.remainder = next;
        ++result.quotient;
    }
    return result;
}

} // namespace

double rounded_quotient(const wide<5>& dividend, const wide<4>& divisor, bool& is_exact) {
    is_exact = true;
    if (dividend.is_zero()) {
        return 0.0;
    }
    const wide<5> positive = magnitude(dividend);
    const wide<5> positive_divisor = resized<5>(divisor);
    // The shift gives the quotient 53 or 54 bits.
    const int shift = 53 - bit_length(positive) + bit_length(positive_divisor);
    const division whole = divide(shifted_left(positive, shift), positive_divisor);
    const bool is_long = (whole.quotient >> 53) != 0;
    std::uint64_t significand = is_long ? whole.quotient >> 1 : whole.quotient;
    const int to_half = is_long ? ((whole.quotient & 1) == 0 ? -1 : whole.remainder.sign())
                                : (whole.remainder + whole.remainder - positive_divisor).sign();
    is_exact = whole.remainder.is_zero() && !(is_long && (whole.quotient & 1) != 0);
    if (to_half > 0 || (to_half == 0 && (significand & 1) != 0)) {
        ++significand;
    }
    const double rounded = std::ldexp(static_cast<double>(significand), (is_long ? 1 : 0) - shift);
    return dividend.is_negative() ? -rounded : rounded;
}

point_table::point_table(const std::vector<grid_point>& grid_points)
    : grid(grid_points), exactness(grid_points.size(), all_exact) {
    rounded.reserve(grid.size());
    std::size_t size = 64;
    while (size < 4 * grid.size()) {
        size *= 2;
    }
    slots.assign(size, -1);
    for (const grid_point& point : grid) {
        rounded.push_back({static_cast<double>(point.x), static_cast<double>(point.y),
                           static_cast<double>(point.z)});
        insert(count() - 1);
    }
}

int point_table::add_line_crossing(int from, int to, int plane_index) {
    return find_or_add({{plane_index, -1, -1}, {from, to}});
}

int point_table::add_plane_crossing(int a, int b, int c) {
    return find_or_add({{a, b, c}, {-1, -1}});
}

int point_table::side(int point, int plane_index) const {
    const plane& p = item(planes, plane_index);
    if (point < count_of(grid)) {
        return side_of(item(grid, point), p);
    }
    const near_point& at = near(point);
    double value = -p.near_offset;
    double size = std::fabs(value);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double term = p.near_normal[axis] * at[axis];
        value += term;
        size += std::fabs(term);
    }
    if (std::fabs(value) > filter_error * size) {
        return value > 0.0 ? 1 : -1;
    }
    const homogeneous_point precise = exact(point);
    wide<6> sum = -(p.offset * precise.denominator);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        sum += resized<6>(p.normal[axis] * precise.numerator[axis]);
    }
    return sum.sign();
}

int point_table::compare(int a, int b, int axis) const {
    const double left = item(near(a), axis);
    const double right = item(near(b), axis);
    if (left != right) {
        return left < right ? -1 : 1;
    }
    const int mask = 1 << axis;
    const int left_is_exact = item(exactness, a) & mask;
    const int right_is_exact = item(exactness, b) & mask;
    if (a == b || (left_is_exact != 0 && right_is_exact != 0)) {
        return 0;
    }
    const homogeneous_point p = exact(a);
    const homogeneous_point q = exact(b);
    return (item(p.numerator, axis) * q.denominator - item(q.numerator, axis) * p.denominator)
        .sign();
}

int point_table::compare(int a, int b) const {
    for (int axis = 0; axis < 3; ++axis) {
        const int order = compare(a, b, axis);
        if (order != 0) {
            return order;
        }
    }
    return 0;
}

homogeneous_point point_table::exact(int point) const {
    if (point >= count_of(grid)) {
        return exact(item(crossings, point - count_of(grid)));
    }
    const grid_point& at = item(grid, point);
    return {{resized<5>(make_wide(at.x)), resized<5>(make_wide(at.y)), resized<5>(make_wide(at.z))},
            resized<4>(make_wide(1))};
}

homogeneous_point point_table::exact(const crossing& made_from) const {
    homogeneous_point point =
        made_from.line[0] >= 0 ? line_crossing(made_from) : plane_crossing(made_from);
    if (point.denominator.is_negative()) {
        point.denominator = -point.denominator;
        for (wide<5>& coordinate : point.numerator) {
            coordinate = -coordinate;
        }
    }
    return point;
}

/// Of the ends a and b of heights h and k: (a k - b h) / (k - h).
homogeneous_point point_table::line_crossing(const crossing& made_from) const {
    const plane& p = item(planes, made_from.planes[0]);
    const grid_point& a = item(grid, made_from.line[0]);
    const grid_point& b = item(grid, made_from.line[1]);
    const wide<2> h = height(a, p);
    const wide<2> k = height(b, p);
    homogeneous_point point = {{}, resized<4>(k - h)};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        point.numerator[axis] =
            resized<5>(scaled(k, coordinate(a, axis)) - scaled(h, coordinate(b, axis)));
    }
    return point;
}

/// By Cramer's rule: each coordinate from the minors of the other two.
homogeneous_point point_table::plane_crossing(const crossing& made_from) const {
    const std::array<const plane*, 3> p = {&item(planes, made_from.planes[0]),
                                           &item(planes, made_from.planes[1]),
                                           &item(planes, made_from.planes[2])};
    homogeneous_point point = {{}, determinant(*p[0], *p[1], *p[2])};
    for (std::size_t i = 0; i < 3; ++i) {
        const plane& q = *p[(i + 1) % 3];
        const plane& r = *p[(i + 2) % 3];
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const std::size_t next = (axis + 1) % 3;
            const std::size_t last = (axis + 2) % 3;
            const wide<4> minor = q.normal[next] * r.normal[last] - q.normal[last] * r.normal[next];
            point.numerator[axis] += resized<5>(p[i]->offset * minor);
        }
    }
    return point;
}

int point_table::find_or_add(const crossing& made_from) {
    const homogeneous_point precise = exact(made_from);
    near_point coordinates{};
    unsigned int exact_bits = 0;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        bool is_exact = true;
        coordinates[axis] =
            rounded_quotient(precise.numerator[axis], precise.denominator, is_exact);
        exact_bits |= is_exact ? 1u << axis : 0u;
    }
    const auto precision = static_cast<std::uint8_t>(exact_bits);
    for (std::size_t slot = slot_of(coordinates); slots[slot] >= 0;
         slot = (slot + 1) & (slots.size() - 1)) {
        if (is_same(slots[slot], precise, coordinates, precision)) {
            return slots[slot];
        }
    }
    rounded.push_back(coordinates);
    exactness.push_back(precision);
    crossings.push_back(made_from);
    insert(count() - 1);
    return count() - 1;
}

bool point_table::is_same(int point, const homogeneous_point& other,
                          const near_point& other_rounded, std::uint8_t other_exactness) const {
    if (near(point) != other_rounded || item(exactness, point) != other_exactness) {
        return false;
    }
    if (other_exactness == all_exact) {
        return true;
    }
    const homogeneous_point own = exact(point);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (!(own.numerator[axis] * other.denominator == other.numerator[axis] * own.denominator)) {
            return false;
        }
    }
    return true;
}

std::size_t point_table::slot_of(const near_point& coordinates) const {
    std::uint64_t hash = 0;
    for (const double value : coordinates) {
        hash = mixed(hash + 0x9e3779b97f4a7c15u + bits_of(value));
    }
    return static_cast<std::size_t>(hash) & (slots.size() - 1);
}

void point_table::insert(int point) {
    if (slots.size() < 2 * rounded.size()) {
        grow();
        return;
    }
    std::size_t slot = slot_of(near(point));
    while (slots[slot] >= 0) {
        slot = (slot + 1) & (slots.size() - 1);
    }
    slots[slot] = point;
}

/// Doubles the slots and puts every point in again.
void point_table::grow() {
    slots.assign(2 * slots.size(), -1);
    for (int point = 0; point < count(); ++point) {
        insert(point);
    }
}

} // namespace ox::internal::csg::exact
