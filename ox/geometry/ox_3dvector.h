#ifndef OX_GEOMETRY_OX_3DVECTOR_H
#define OX_GEOMETRY_OX_3DVECTOR_H

#include <cmath>
#include <iosfwd>
#include <type_traits>

#include <ox/core/ox_export.h>

namespace ox {

/// A point or a direction of space, in single precision.
///
/// Represents the triple (x, y, z), in model units. A plain value of three floats without
/// padding: an array of n vectors is an array of 3 n floats and is handed to graphics and
/// files as such. There is no invariant; every operation accepts NaN, infinite and subnormal
/// components and lets them travel by the rules of IEEE arithmetic. Sums and products are
/// taken in single precision, from left to right; square roots in double precision on the
/// float sum, rounded back to float.
///
/// The operations are inline, compiled with the flags of whoever includes this header. They give
/// the stated bits only where products and sums are not fused into one rounding: with GCC and Clang
/// under `-ffp-contract=off`, with MSVC under `/fp:strict`, as for the library itself.
///
/// Degenerate input:
/// - the zero vector: `normalize` leaves it as it is and returns 0;
/// - a vector whose sum of squares underflows (components below about 1e-23) counts as zero;
/// - a vector whose sum of squares overflows (components above about 1e19) has an infinite
///   length and is normalised to zero;
/// - an edge shorter than half the tolerance accepts only points near its ends.
///
/// Every operation costs constant time and may be given this vector itself.
///
/// \code
///   ox::ox_3dvector axis(0.0f, 0.0f, 5.0f), u, v;
///   axis.build_axis(u, v); // axis is now (0, 0, 1); (u, v, axis) is a right-handed frame
///   const bool same = ox::ox_cross(u, v) == axis;
/// \endcode
class ox_3dvector {
public:
    float x = 0.0f; ///< model units
    float y = 0.0f; ///< model units
    float z = 0.0f; ///< model units

    /// The zero vector.
    constexpr ox_3dvector() noexcept = default;

    /// The vector (vx, vy, vz).
    constexpr ox_3dvector(float vx, float vy, float vz) noexcept : x(vx), y(vy), z(vz) {}

    /// Reads three consecutive floats; a null pointer gives the zero vector.
    constexpr ox_3dvector(const float* values) noexcept {
        if (values != nullptr) {
            x = values[0];
            y = values[1];
            z = values[2];
        }
    }

    /// Not offered: a plain 0 would be a null pointer.
    ox_3dvector(int) = delete;

    /// Component i: 0 = x, 1 = y, 2 = z. The index is not checked; a larger one means z.
    constexpr float& operator[](unsigned int i) noexcept { return i == 0 ? x : (i == 1 ? y : z); }

    /// Value of component i: 0 = x, 1 = y, 2 = z. The index is not checked; a larger one means z.
    constexpr float at(unsigned int i) const noexcept { return i == 0 ? x : (i == 1 ? y : z); }

    /// The opposite vector.
    constexpr ox_3dvector operator-() const noexcept { return ox_3dvector(-x, -y, -z); }

    /// Adds v in place.
    constexpr ox_3dvector& operator+=(const ox_3dvector& v) noexcept {
        return *this = ox_3dvector(x + v.x, y + v.y, z + v.z);
    }

    /// Subtracts v in place.
    constexpr ox_3dvector& operator-=(const ox_3dvector& v) noexcept {
        return *this = ox_3dvector(x - v.x, y - v.y, z - v.z);
    }

    /// Multiplies component by component in place (not a dot product).
    constexpr ox_3dvector& operator*=(const ox_3dvector& v) noexcept {
        return *this = ox_3dvector(x * v.x, y * v.y, z * v.z);
    }

    /// Divides component by component in place. A division by 0 is not guarded.
    constexpr ox_3dvector& operator/=(const ox_3dvector& v) noexcept {
        return *this = ox_3dvector(x / v.x, y / v.y, z / v.z);
    }

    /// Multiplies every component by f in place.
    constexpr ox_3dvector& operator*=(float f) noexcept {
        return *this = ox_3dvector(x * f, y * f, z * f);
    }

    /// Divides every component by f in place. A division by 0 is not guarded.
    constexpr ox_3dvector& operator/=(float f) noexcept {
        return *this = ox_3dvector(x / f, y / f, z / f);
    }

    /// Euclidean length, in model units.
    float size() const noexcept {
        const float square = x * x + y * y + z * z;
        return static_cast<float>(std::sqrt(static_cast<double>(square)));
    }

    /// Sum of the absolute components (Manhattan norm), in model units.
    float manhattan_size() const noexcept { return std::fabs(x) + std::fabs(y) + std::fabs(z); }

    /// Euclidean length of this vector minus v.
    float distance_to(const ox_3dvector& v) const noexcept {
        return ox_3dvector(x - v.x, y - v.y, z - v.z).size();
    }

    /// Sum of the absolute component differences to v.
    float manhattan_distance_to(const ox_3dvector& v) const noexcept {
        return ox_3dvector(x - v.x, y - v.y, z - v.z).manhattan_size();
    }

    /// Squared Euclidean length of this vector minus v, without a root.
    constexpr float square_distance_to(const ox_3dvector& v) const noexcept {
        const float dx = x - v.x;
        const float dy = y - v.y;
        const float dz = z - v.z;
        return dx * dx + dy * dy + dz * dz;
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

    /// Index of the component of largest magnitude: 0, 1 or 2. A tie gives the higher index,
    /// so the zero vector gives 2.
    int main_axis() const noexcept {
        const float ax = std::fabs(x);
        const float ay = std::fabs(y);
        const float az = std::fabs(z);
        if (ax > ay) {
            return ax > az ? 0 : 2;
        }
        return ay > az ? 1 : 2;
    }

    /// Normalises this vector in place and completes it to a frame: (u, v, this) is
    /// orthonormal and right-handed.
    ///
    /// u is the normalised cross product of +z with this vector or, for a vector within about
    /// 8 degrees of the z axis (|z| not below 0.99), of +y with it; v is the normalised cross
    /// product of this vector with u. The zero vector gives zero axes. Should u or v be this
    /// vector, the axis written last stays.
    OX_EXPORT void build_axis(ox_3dvector& u, ox_3dvector& v);

    /// Direction of this vector as angles in degrees: `bearing`, clockwise from +y in the x-y
    /// plane, in [0, 360] (a compass heading where +y is north), and `tilt`, from +z, in
    /// [0, 180]. The zero vector gives bearing 90 and tilt 90; an infinite or NaN component may
    /// give NaN angles.
    OX_EXPORT void get_angles(float& bearing, float& tilt) const;

    /// True if this point lies on the edge from a to b, up to `tolerance` (model units).
    ///
    /// That is: strictly nearer than the tolerance to an end; or, for an edge not shorter than
    /// half the tolerance, with a foot on the line through the ends at most the tolerance
    /// beyond them, and a distance to that line of at most the tolerance. With a tolerance
    /// of 0, an edge without length accepts every point; a negative tolerance accepts none.
    OX_EXPORT bool is_on_edge(const ox_3dvector& a, const ox_3dvector& b, float tolerance) const;

    /// The same test as `is_on_edge`, which also moves this point onto the edge.
    ///
    /// A point accepted near a becomes a, one accepted near b becomes b, and any other becomes
    /// its foot on the line through the ends; the foot is not clamped and so may lie up to the
    /// tolerance beyond an end. A point that is refused stays as it was.
    OX_EXPORT bool project_on_edge(const ox_3dvector& a, const ox_3dvector& b, float tolerance);
};

static_assert(sizeof(ox_3dvector) == 12, "three packed floats");
static_assert(std::is_standard_layout_v<ox_3dvector>, "can be read as an array of floats");
static_assert(std::is_trivially_copyable_v<ox_3dvector>, "a plain value");

/// Sum of two vectors.
constexpr ox_3dvector operator+(ox_3dvector a, const ox_3dvector& b) noexcept {
    return a += b;
}

/// Difference of two vectors.
constexpr ox_3dvector operator-(ox_3dvector a, const ox_3dvector& b) noexcept {
    return a -= b;
}

/// The vector v scaled by f.
constexpr ox_3dvector operator*(ox_3dvector v, float f) noexcept {
    return v *= f;
}

/// The vector v scaled by f.
constexpr ox_3dvector operator*(float f, ox_3dvector v) noexcept {
    return v *= f;
}

/// The vector v with each component divided by f. A division by 0 is not guarded.
constexpr ox_3dvector operator/(ox_3dvector v, float f) noexcept {
    return v /= f;
}

/// True if all components are equal, without a tolerance (so a NaN equals nothing).
constexpr bool operator==(const ox_3dvector& a, const ox_3dvector& b) noexcept {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

/// True if a component differs, without a tolerance.
constexpr bool operator!=(const ox_3dvector& a, const ox_3dvector& b) noexcept {
    return !(a == b);
}

/// Dot product a.x b.x + a.y b.y + a.z b.z.
constexpr float ox_dot(const ox_3dvector& a, const ox_3dvector& b) noexcept {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

/// Cross product: perpendicular to a and b, right-handed.
constexpr ox_3dvector ox_cross(const ox_3dvector& a, const ox_3dvector& b) noexcept {
    return ox_3dvector(a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x);
}

/// Writes v as "(x, y, z)", each number as the stream is set to write floats.
OX_EXPORT std::ostream& operator<<(std::ostream& out, const ox_3dvector& v);

} // namespace ox

using ox::ox_cross;
using ox::ox_dot;

#endif
