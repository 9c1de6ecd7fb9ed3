#ifndef TESTS_REFERENCE_PLAIN_DICE_H
#define TESTS_REFERENCE_PLAIN_DICE_H

#include <cstdint>
#include <random>

namespace reference {

/// Draws a whole number of [a, b] by rejection, in 64-bit arithmetic reduced to 32 bits.
inline int plain_dice(std::mt19937& engine, int a, int b) {
    constexpr std::int64_t words = std::int64_t{1} << 32;
    const std::int64_t n = ((std::int64_t{b} - a + words) % words) + 1;
    std::int64_t offset = 0;
    if (n == words) {
        offset = static_cast<std::int64_t>(engine());
    } else if (n > 1) {
        const std::int64_t fair = words / n * n; // draws below it favour no number
        do {
            offset = static_cast<std::int64_t>(engine());
        } while (offset >= fair);
        offset %= n;
    }
    const std::int64_t drawn = (a + offset + words) % words;
    return static_cast<int>(drawn < words / 2 ? drawn : drawn - words);
}

} // namespace reference

#endif
