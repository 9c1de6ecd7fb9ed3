#ifndef OX_INTERNAL_WIDE_VECTOR_H
#define OX_INTERNAL_WIDE_VECTOR_H

#include <cmath>
#include <cstddef>

#include <ox/geometry/ox_3dvector.h>

namespace ox::internal {

/// A vector in double precision, where differences and products of floats add no rounding to speak
/// of.
struct wide_vector {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    /// Component i: 0 = x, 1 = y, 2 = z.
    double at(std::size_t i) const { return i == 0 ? x : (i == 1 ? y : z); }
};

/// The same vector.
inline wide_vector to_wide(const ox_3dvector& v) {
    return {static_cast<double>(v.x), static_cast<double>(v.y), static_cast<double>(v.z)};
}

inline wide_vector operator+(const wide_vector& a, const wide_vector& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

inline wide_vector operator-(const wide_vector& a, const wide_vector& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

inline double dot(const wide_vector& a, const wide_vector& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline wide_vector cross(const wide_vector& a, const wide_vector& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline double length(const wide_vector& v) {
    return std::sqrt(dot(v, v));
}

inline double manhattan_size(const wide_vector& v) {
    return std::fabs(v.x) + std::fabs(v.y) + std::fabs(v.z);
}

} // namespace ox::internal

#endif
