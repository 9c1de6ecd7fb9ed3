#ifndef OX_SOLID_INTERNAL_SAME_BITS_H
#define OX_SOLID_INTERNAL_SAME_BITS_H

#include <cstring>

#include <ox/geometry/ox_3dvector.h>

namespace ox {

/// Whether two vectors are the same bit for bit: unlike `==` it tells -0 from 0, and takes a
/// number that is none for the same as itself.
inline bool have_same_bits(const ox_3dvector& a, const ox_3dvector& b) {
    static_assert(sizeof(ox_3dvector) == 3 * sizeof(float), "nothing but its coordinates");
    return std::memcmp(&a, &b, sizeof(ox_3dvector)) == 0;
}

} // namespace ox

#endif
