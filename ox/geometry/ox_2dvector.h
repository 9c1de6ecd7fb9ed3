#ifndef OX_GEOMETRY_OX_2DVECTOR_H
#define OX_GEOMETRY_OX_2DVECTOR_H

#include <cmath>
#include <iosfwd>
#include <type_traits>

#include <ox/core/ox_export.h>

namespace ox {

/// A point or a direction of the plane, in single precision.
///
/// Represents the pair (x, y), in model units. A plain value of two floats without padding:
/// an array of n vectors is an array of 2 n floats. There is no invariant; every operation
/// accepts NaN, infinite and subnormal components and lets them travel by the rules of IEEE
/// arithmetic. Sums and products are taken in single precision, from left to right; square
/// roots in double precision on the float sum, rounded back to float.
///
/// The operations are inline, compiled with the flags of whoever includes this header. They give
/// the stated bits only where products and sums are not fused into one rounding: with GCC and Clang
/// under `-ffp-contract=off`, with MSVC under `/fp:strict`, as for the library itself.
///
/// Degenerate input:
/// - the zero vector: `normalize` leaves it as it is and returns 0;
/// - a vector whose sum of squares underflows (components below about 1e-23) counts as zero;
/// - a vector whose sum of squares overflows (components above about 1e19) has an infinite
///   length and is normalised to zero.
///
/// Every operation costs constant time and may be given this vector itself.
///
/// \code
///   ox::ox_2dvector edge(3.0f, 4.0f);
///   const float length = edge.normalize(); // 5, edge is now (0.6, 0.8)
///   const ox::ox_2dvector left = edge.normal();
/// \endcode
class ox_2dvector {
public:
    float x = 0.0f; ///< model units
    float y = 0.0f; ///< model units

    /// The zero vector.
    constexpr ox_2dvector() noexcept = default;

    /// The vector (vx, vy).
    constexpr ox_2dvector(float vx, float vy) noexcept : x(vx), y(vy) {}

    /// Reads two consecutive floats; a null pointer gives the zero vector.
    constexpr ox_2dvector(const float* values) noexcept {
        if (values != nullptr) {
            x = values[0];
            y = values[1];
        }
    }

    /// Not offered: a plain 0 would be a null pointer.
    ox_2dvector(int) = delete;

    /// Component i: 0 = x, 1 = y. The index is not checked; a larger one means y.
    constexpr float& operator[](unsigned int i) noexcept { return i == 0 ? x : y; }

    /// Value of component i: 0 = x, 1 = y. The index is not checked; a larger one means y.
    constexpr float at(unsigned int i) const noexcept { return i == 0 ? x : y; }

    /// The opposite vector.
    constexpr ox_2dvector operator-() const noexcept { return ox_2dvector(-x, -y); }

    /// Adds v in place.
    constexpr ox_2dvector& operator+=(const ox_2dvector& v) noexcept {
        return *this = ox_2dvector(x + v.x, y + v.y);
    }

    /// Subtracts v in place.
    constexpr ox_2dvector& operator-=(const ox_2dvector& v) noexcept {
        return *this = ox_2dvector(x - v.x, y - v.y);
    }

    /// Multiplies component by component in place (not a dot product).
    constexpr ox_2dvector& operator*=(const ox_2dvector& v) noexcept {
        return *this = ox_2dvector(x * v.x, y * v.y);
    }

    /// Divides component by component in place. A division by 0 is not guarded.
    constexpr ox_2dvector& operator/=(const ox_2dvector& v) noexcept {
        return *this = ox_2dvector(x / v.x, y / v.y);
    }

    /// Multiplies both components by f in place.
    constexpr ox_2dvector& operator*=(float f) noexcept {
        return *this = ox_2dvector(x * f, y * f);
    }

    /// Divides both components by f in place. A division by 0 is not guarded.
    constexpr ox_2dvector& operator/=(float f) noexcept {
        return *this = ox_2dvector(x / f, y / f);
    }

    /// Euclidean length, in model units.
    float size() const noexcept {
        const float square = x * x + y * y;
        return static_cast<float>(std::sqrt(static_cast<double>(square)));
    }

    /// Sum of the absolute components (Manhattan norm), in model units.
    float manhattan_size() const noexcept { return std::fabs(x) + std::fabs(y); }

    /// Euclidean length of this vector minus v.
    float distance_to(const ox_2dvector& v) const noexcept {
        return ox_2dvector(x - v.x, y - v.y).size();
    }

    /// Sum of the absolute component differences to v.
    float manhattan_distance_to(const ox_2dvector& v) const noexcept {
        return ox_2dvector(x - v.x, y - v.y).manhattan_size();
    }

    /// Scales this vector to length 1 in place, by the float reciprocal of its length, and
    /// returns the length it had. A vector whose length is exactly 0 stays as it is.
    float normalize() noexcept {
        const float length = size();
        if (length != 0.0f) {
            *this *= 1.0f / length;
        }
        return length;
    }

    /// Index of the component of largest magnitude: 0 or 1. A tie gives 1.
    int main_axis() const noexcept { return std::fabs(x) > std::fabs(y) ? 0 : 1; }

    /// The perpendicular (-y, x): this vector turned a quarter turn counter-clockwise.
    constexpr ox_2dvector normal() const noexcept { return ox_2dvector(-y, x); }

    /// Intersection of two infinite lines, each given by a point and a direction.
    ///
    /// By Cramer's rule on p1 + t d1. Returns false, and leaves `out` as it was, when the
    /// magnitude of the determinant of the directions is below 0.001. That limit is absolute:
    /// very short directions fail even when their lines do meet. `out` may be one of the
    /// arguments. NaN components give a NaN point and true.
    OX_EXPORT static bool intersection(const ox_2dvector& p1, const ox_2dvector& d1,
                                       const ox_2dvector& p2, const ox_2dvector& d2,
                                       ox_2dvector& out);
};

static_assert(sizeof(ox_2dvector) == 8, "two packed floats");
static_assert(std::is_standard_layout_v<ox_2dvector>, "can be read as an array of floats");
static_assert(std::is_trivially_copyable_v<ox_2dvector>, "a plain value");

/// Sum of two vectors.
constexpr ox_2dvector operator+(ox_2dvector a, const ox_2dvector& b) noexcept {
    return a += b;
}

/// Difference of two vectors.
constexpr ox_2dvector operator-(ox_2dvector a, const ox_2dvector& b) noexcept {
    return a -= b;
}

/// The vector v scaled by f.
constexpr ox_2dvector operator*(ox_2dvector v, float f) noexcept {
    return v *= f;
}

/// The vector v scaled by f.
constexpr ox_2dvector operator*(float f, ox_2dvector v) noexcept {
    return v *= f;
}

/// The vector v with each component divided by f. A division by 0 is not guarded.
constexpr ox_2dvector operator/(ox_2dvector v, float f) noexcept {
    return v /= f;
}

/// True if both components are equal, without a tolerance (so a NaN equals nothing).
constexpr bool operator==(const ox_2dvector& a, const ox_2dvector& b) noexcept {
    return a.x == b.x && a.y == b.y;
}

/// True if a component differs, without a tolerance.
constexpr bool operator!=(const ox_2dvector& a, const ox_2dvector& b) noexcept {
    return !(a == b);
}

/// Dot product a.x b.x + a.y b.y.
constexpr float ox_dot(const ox_2dvector& a, const ox_2dvector& b) noexcept {
    return a.x * b.x + a.y * b.y;
}

/// Writes v as "(x, y)", each number as the stream is set to write floats.
OX_EXPORT std::ostream& operator<<(std::ostream& out, const ox_2dvector& v);

} // namespace ox

using ox::ox_dot;

#endif
