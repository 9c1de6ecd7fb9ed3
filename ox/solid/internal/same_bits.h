#ifndef OX_SOLID_INTERNAL_SAME_BITS_H
#define OX_SOLID_INTERNAL_SAME_BITS_H

#include <cstddef>
#include <cstring>
#include <type_traits>

#include <ox/core/ox_list.h>
#include <ox/internal/vectors.h>
#include <ox/polygon/ox_polygon.h>

namespace ox::internal {

/// True if two lists hold the same bits.
template <typename T>
bool have_same_bits(const ox_list<T>& a, const ox_list<T>& b) {
    static_assert(std::is_trivially_copyable_v<T>, "compared as bytes");
    return a.size() == b.size() &&
           (a.size() <= 0 || std::memcmp(a.get_data(), b.get_data(),
                                         sizeof(T) * static_cast<std::size_t>(a.size())) == 0);
}

/// True if two polygons have the same contours, bit for bit. O(n).
inline bool have_same_contours(ox_polygon& a, ox_polygon& b) {
    return have_same_bits(a.get_contour_sizes(), b.get_contour_sizes()) &&
           have_same_bits(a.get_contour_vertices(), b.get_contour_vertices()) &&
           have_same_bits(a.get_contour_orientations(), b.get_contour_orientations()) &&
           have_same_bits(a.get_contour_parents(), b.get_contour_parents());
}

} // namespace ox::internal

#endif
