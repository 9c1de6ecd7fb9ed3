#ifndef OX_INTERNAL_HASHING_H
#define OX_INTERNAL_HASHING_H

#include <cstdint>

namespace ox::internal {

/// Spreads neighbouring keys over all bits, the high ones best: a product with 2^64 divided by the
/// golden ratio (Knuth, The Art of Computer Programming, volume 3, 6.4).
constexpr std::uint64_t spread(std::uint64_t key) {
    return key * 0x9E3779B97F4A7C15u;
}

/// Spreads three keys, with a factor for each.
constexpr std::uint64_t spread(std::uint64_t a, std::uint64_t b, std::uint64_t c) {
    return spread(a) + b * 0xC2B2AE3D27D4EB4Fu + c * 0x165667B19E3779F9u;
}

} // namespace ox::internal

#endif
