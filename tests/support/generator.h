#ifndef OX_TESTS_SUPPORT_GENERATOR_H
#define OX_TESTS_SUPPORT_GENERATOR_H

#include <cstdint>
#include <cstring>

namespace support {

/// A small random generator (SplitMix64) whose numbers are the same with every compiler and
/// standard library, so that a printed seed reproduces a failure anywhere.
///
/// Draw one number per statement: the order in which a compiler evaluates the arguments of
/// one call is its own choice, and two draws in one call would make the inputs depend on it.
class generator {
public:
    explicit generator(std::uint64_t seed) : state(seed) {}

    /// The next 64 random bits.
    std::uint64_t bits() {
        state += 0x9E3779B97F4A7C15u;
        std::uint64_t z = state;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }

    /// A whole number in [lowest, highest].
    int between(int lowest, int highest) {
        const std::uint64_t span = static_cast<std::uint64_t>(static_cast<std::int64_t>(highest) -
                                                              static_cast<std::int64_t>(lowest)) +
                                   1;
        return static_cast<int>(static_cast<std::int64_t>(lowest) +
                                static_cast<std::int64_t>(bits() % span));
    }

    /// True once in `n` draws on average.
    bool one_in(int n) { return between(1, n) == 1; }

    /// A number in [lowest, highest), of a grid of 2^24 steps.
    double real(double lowest, double highest) {
        const double unit = static_cast<double>(bits() >> 40) / 16777216.0;
        return lowest + unit * (highest - lowest);
    }

    /// A multiple of 1/1024 between lowest and highest, exact in single precision while it is
    /// below 16384: two drawn coordinates often coincide.
    float grid(int lowest, int highest) {
        return static_cast<float>(between(lowest * 1024, highest * 1024)) / 1024.0f;
    }

    /// Any float at all: every bit pattern, so also NaN, infinities and denormals.
    float any_float() {
        const std::uint32_t pattern = static_cast<std::uint32_t>(bits() >> 32);
        float value = 0.0f;
        std::memcpy(&value, &pattern, sizeof value);
        return value;
    }

private:
    std::uint64_t state;
};

} // namespace support

#endif
