#ifndef OX_TESTS_SUPPORT_SEED_H
#define OX_TESTS_SUPPORT_SEED_H

#include <cstdint>
#include <cstdlib>
#include <string>

namespace support {

/// The seed of a random test: `usual`, or with `OX_SEED` in the environment another one for each
/// value of it.
inline std::uint64_t seed(std::uint64_t usual) {
    const char* chosen = std::getenv("OX_SEED");
    return chosen == nullptr ? usual : usual + 1000003u * std::strtoull(chosen, nullptr, 10);
}

/// True where a test shall take all of its cases, which takes minutes: `OX_CHECK=1`.
inline bool checks_everything() {
    const char* check = std::getenv("OX_CHECK");
    return check != nullptr && std::string(check) == "1";
}

} // namespace support

#endif
