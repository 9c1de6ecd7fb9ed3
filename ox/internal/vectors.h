#ifndef OX_INTERNAL_VECTORS_H
#define OX_INTERNAL_VECTORS_H

#include <cmath>
#include <cstring>

#include <ox/geometry/ox_3dvector.h>

namespace ox::internal {

/// True if no coordinate is infinite or NaN.
inline bool is_finite(const ox_3dvector& v) {
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

/// True if two vectors are the same bit for bit: unlike `==` it tells -0 from 0, and takes a NaN
/// for the same as itself.
inline bool have_same_bits(const ox_3dvector& a, const ox_3dvector& b) {
    static_assert(sizeof(ox_3dvector) == 3 * sizeof(float), "nothing but its coordinates");
    // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison): the bits are meant
    return std::memcmp(&a, &b, sizeof(ox_3dvector)) == 0;
}

/// The dot product in double precision, where products of floats do not round.
inline double exact_dot(const ox_3dvector& a, const ox_3dvector& b) {
    return static_cast<double>(a.x) * static_cast<double>(b.x) +
           static_cast<double>(a.y) * static_cast<double>(b.y) +
           static_cast<double>(a.z) * static_cast<double>(b.z);
}

} // namespace ox::internal

#endif
