#include <ox/solid/internal/csg/planar_orientation.h>

// The orientation of three points is the sign of a difference of two products. In double precision
// each factor is exact, and the difference is wrong by at most four roundings of the products'
// magnitudes; where it is larger than that its sign is right. Elsewhere the products are compared
// digit by digit, in two digits of 40 bits.

namespace ox::internal::csg {

namespace {

/// Four roundings of a double, as a part of the larger product, and a margin.
constexpr double rounding_share = 1e-15;

/// A product of two numbers below 2^40: high · 2^40 + low, with 0 <= low < 2^40.
struct wide_product {
    std::int64_t high;
    std::int64_t low;
};

constexpr int half_digit = 20;
constexpr std::int64_t half_base = std::int64_t{1} << half_digit;

/// Floor of a division by 2^20.
std::int64_t high_half(std::int64_t value) {
    const std::int64_t low = ((value % half_base) + half_base) % half_base;
    return (value - low) / half_base;
}

/// The product of two numbers below 2^40 in magnitude, by halves of `a`.
wide_product multiply(std::int64_t a, std::int64_t b) {
    const std::int64_t a_high = high_half(a);
    const std::int64_t a_low = a - a_high * half_base;
    const std::int64_t low = a_low * b; // below 2^60
    const std::int64_t carry = high_half(low);
    const std::int64_t middle = a_high * b + carry; // in units of 2^20, below 2^61
    const std::int64_t high = high_half(middle);
    return {high, (middle - high * half_base) * half_base + (low - carry * half_base)};
}

int compare_products(std::int64_t a, std::int64_t b, std::int64_t c, std::int64_t d) {
    const wide_product left = multiply(a, b);
    const wide_product right = multiply(c, d);
    if (left.high != right.high) {
        return left.high > right.high ? 1 : -1;
    }
    return left.low == right.low ? 0 : (left.low > right.low ? 1 : -1);
}

} // namespace

int orientation(const planar_point& a, const planar_point& b, const planar_point& c) {
    const std::int64_t ux = b.x - a.x;
    const std::int64_t uy = b.y - a.y;
    const std::int64_t vx = c.x - a.x;
    const std::int64_t vy = c.y - a.y;
    const double left = static_cast<double>(ux) * static_cast<double>(vy);
    const double right = static_cast<double>(uy) * static_cast<double>(vx);
    const double magnitude = (left < 0.0 ? -left : left) + (right < 0.0 ? -right : right);
    const double difference = left - right;
    if (difference > rounding_share * magnitude) {
        return 1;
    }
    if (difference < -rounding_share * magnitude) {
        return -1;
    }
    return compare_products(ux, vy, uy, vx);
}

} // namespace ox::internal::csg
