#ifndef OX_CORE_INTERNAL_BYTE_LIST_H
#define OX_CORE_INTERNAL_BYTE_LIST_H

#include <cstdint>
#include <limits>
#include <new>

#include <ox/core/ox_list.h>

namespace ox::internal {

/// The number of live elements of `list`, whose count may be negative.
inline int live_count(const ox_list<unsigned char>& list) {
    return list.size() > 0 ? list.size() : 0;
}

/// A list of `n` bytes without values, with the capacity that `n` insertions at its end leave: the
/// bytes can then be stored directly. Fails as those insertions would where `n` does not fit a
/// list.
inline ox_list<unsigned char> grown_byte_list(std::int64_t n) {
    constexpr std::int64_t largest = (std::numeric_limits<int>::max)();
    if (n > largest) {
        throw std::bad_array_new_length();
    }
    std::int64_t capacity = 0;
    while (capacity < n) {
        const std::int64_t grown = capacity < 2 ? capacity + 1 : capacity + capacity / 2;
        capacity = grown <= largest ? grown : n;
    }
    ox_list<unsigned char> list;
    list.set_size(static_cast<int>(capacity));
    list.set_size(static_cast<int>(n));
    return list;
}

} // namespace ox::internal

#endif
