#ifndef OX_TESTS_SUPPORT_SEED_H
#define OX_TESTS_SUPPORT_SEED_H

#include <cstdint>
#include <cstdlib>

namespace support {

/// The seed of a random test: `usual`, or with `OX_SEED` in the environment another one for each
/// value of it.
inline std::uint64_t seed(std::uint64_t usual) {
    const char* chosen = std::getenv("OX_SEED");
    return chosen == nullptr ? usual : usual + 1000003u * std::strtoull(chosen, nullptr, 10);
}

} // namespace support

#endif
