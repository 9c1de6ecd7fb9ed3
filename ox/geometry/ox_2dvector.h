#ifndef OX_GEOMETRY_OX_2DVECTOR_H
#define OX_GEOMETRY_OX_2DVECTOR_H

#include <cmath>
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
/// Degenerate input:
/// - the zero vector: `normalize` leaves it as it is and returns 0;
/// - a vector whose sum of squares underflows (components below about 1e-23) counts as zero;
/// - a vector whose sum of squares overflows (components above about 1e19) has an infinite
///   length and is normalised to zero.
///
/// Every operation costs constant time and may be given this vector itself.
///
/// \code
///   ox::ox_2dvector edge(3.f, 4.f);
///   const float length = edge.normalize(); // 5, edge is now (0.6, 0.8)
///   const ox::ox_2dvector left = edge.normal();
/// \endcode
class ox_2dvector {
public:
    float x = 0.f;
    float y = 0.f;

    /// The zero vector.
    ox_2dvector() = default;

    /// The vector (vx, vy).
    ox_2dvector(float vx, float vy) : x(vx), y(vy) {}

    /// Reads two consecutive floats; a null pointer gives the zero vector.
    ox_2dvector(const float* values) {
        if (values != nullptr) {
            x = values[0];
            y = values[1];
        }
    }

    /// Component i: 0 = x, 1 = y. The index is not checked; a larger one means y.
    float& operator[](unsigned int i) { return i == 0 ? x : y; }

    /// Value of component i: 0 = x, 1 = y. The index is not checked; a larger one means y.
    float at(unsigned int i) const { return i == 0 ? x : y; }

    /// The opposite vector.
    ox_2dvector operator-() const { return ox_2dvector(-x, -y); }

    /// Adds v in place.
    ox_2dvector& operator+=(const ox_2dvector& v) {
        x += v.x;
        y += v.y;
        return *this;
    }

    /// Subtracts v in place.
    ox_2dvector& operator-=(const ox_2dvector& v) {
        x -= v.x;
        y -= v.y;
        return *this;
    }

    /// Multiplies component by component in place (not a dot product).
    ox_2dvector& operator*=(const ox_2dvector& v) {
        x *= v.x;
        y *= v.y;
        return *this;
    }

    /// Divides component by component in place. A division by 0 is not guarded.
    ox_2dvector& operator/=(const ox_2dvector& v) {
        x /= v.x;
        y /= v.y;
        return *this;
    }

    /// Multiplies both components by f in place.
    ox_2dvector& operator*=(float f) {
        x *= f;
        y *= f;
        return *this;
    }

    /// Divides both components by f in place. A division by 0 is not guarded.
    ox_2dvector& operator/=(float f) {
        x /= f;
        y /= f;
        return *this;
    }

    /// Euclidean length, in model units.
    float size() const {
        const float square = x * x + y * y;
        return static_cast<float>(std::sqrt(static_cast<double>(square)));
    }

    /// Sum of the absolute components (Manhattan norm), in model units.
    float manhattan_size() const { return std::fabs(x) + std::fabs(y); }

    /// Euclidean length of this vector minus v.
    float distance_to(const ox_2dvector& v) const { return ox_2dvector(x - v.x, y - v.y).size(); }

    /// Sum of the absolute component differences to v.
    float manhattan_distance_to(const ox_2dvector& v) const {
        return ox_2dvector(x - v.x, y - v.y).manhattan_size();
    }

    /// Scales this vector to length 1 in place, by the float reciprocal of its length, and
    /// returns the length it had. A vector whose length is exactly 0 stays as it is.
    float normalize() {
        const float length = size();
        if (length != 0.f) {
            *this *= 1.f / length;
        }
        return length;
    }

    /// Index of the component of largest magnitude: 0 or 1. A tie gives 1.
    int main_axis() const { return std::fabs(x) > std::fabs(y) ? 0 : 1; }

    /// The perpendicular (-y, x): this vector turned a quarter turn counter-clockwise.
    ox_2dvector normal() const { return ox_2dvector(-y, x); }

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
inline ox_2dvector operator+(ox_2dvector a, const ox_2dvector& b) {
    return a += b;
}

/// Difference of two vectors.
inline ox_2dvector operator-(ox_2dvector a, const ox_2dvector& b) {
    return a -= b;
}

/// The vector v scaled by f.
inline ox_2dvector operator*(ox_2dvector v, float f) {
    return v *= f;
}

/// The vector v scaled by f.
inline ox_2dvector operator*(float f, ox_2dvector v) {
    return v *= f;
}

/// The vector v with each component divided by f. A division by 0 is not guarded.
inline ox_2dvector operator/(ox_2dvector v, float f) {
    return v /= f;
}

/// True if both components are equal, without a tolerance (so a NaN equals nothing).
inline bool operator==(const ox_2dvector& a, const ox_2dvector& b) {
    return a.x == b.x && a.y == b.y;
}

/// True if a component differs, without a tolerance.
inline bool operator!=(const ox_2dvector& a, const ox_2dvector& b) {
    return !(a == b);
}

/// Dot product a.x b.x + a.y b.y.
inline float ox_dot(const ox_2dvector& a, const ox_2dvector& b) {
    return a.x * b.x + a.y * b.y;
}

} // namespace ox

using ox::ox_dot;

#endif
