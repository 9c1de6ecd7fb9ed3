#ifndef OX_CORE_INTERNAL_MERSENNE_TWISTER_H
#define OX_CORE_INTERNAL_MERSENNE_TWISTER_H

#include <cstdint>

namespace ox::internal {

/// The 32-bit Mersenne Twister (Matsumoto and Nishimura, ACM TOMACS 1998), MT19937: the numbers of
/// `std::mt19937`, made a block at a time in loops without branches, which compilers turn into
/// vector instructions.
class mersenne_twister {
public:
    explicit mersenne_twister(std::uint32_t seed) {
        state[0] = seed;
        for (int i = 1; i < length; ++i) {
            const std::uint32_t before = state[i - 1];
            state[i] = 1812433253u * (before ^ (before >> 30)) + static_cast<std::uint32_t>(i);
        }
    }

    /// The next number, uniform over all 32-bit numbers.
    std::uint32_t draw() {
        if (next == length) {
            twist();
            temper();
            next = 0;
        }
        return tempered[next++];
    }

private:
    static constexpr int length = 624;
    static constexpr int shift = 397; ///< from a word to the one it is mixed with

    static std::uint32_t mixed(std::uint32_t word, std::uint32_t following, std::uint32_t partner) {
        const std::uint32_t joined = (word & 0x80000000u) | (following & 0x7FFFFFFFu);
        return partner ^ (joined >> 1) ^ ((0u - (joined & 1u)) & 0x9908B0DFu);
    }

    /// Replaces every word, in order; those of the second loop are mixed with new words.
    void twist() {
        for (int i = 0; i < length - shift; ++i) {
            state[i] = mixed(state[i], state[i + 1], state[i + shift]);
        }
        for (int i = length - shift; i < length - 1; ++i) {
            state[i] = mixed(state[i], state[i + 1], state[i + shift - length]);
        }
        state[length - 1] = mixed(state[length - 1], state[0], state[shift - 1]);
    }

    void temper() {
        for (int i = 0; i < length; ++i) {
            std::uint32_t word = state[i];
            word ^= word >> 11;
            word ^= (word << 7) & 0x9D2C5680u;
            word ^= (word << 15) & 0xEFC60000u;
            tempered[i] = word ^ (word >> 18);
        }
    }

    std::uint32_t state[length];
    std::uint32_t tempered[length] = {};
    int next = length;
};

} // namespace ox::internal

#endif
