#ifndef OX_INTERNAL_HASHING_H
#define OX_INTERNAL_HASHING_H

#include <cstdint>

namespace ox::internal {

/// Spreads neighbouring keys over all bits, the high ones best: a product with 2^64 divided by the
/// golden ratio (Knuth, The Art of Computer Programming, volume 3, 6.4).
constexpr std::uint64_t spread(std::uint64_t key) {
    return key * 0x9E3779B97F4A7C15u;
}

} // namespace ox::internal

#endif
