#ifndef OX_SOLID_INTERNAL_CSG_EXACT_WIDE_INTEGER_H
#define OX_SOLID_INTERNAL_CSG_EXACT_WIDE_INTEGER_H

// Signed integers of a fixed number of 64-bit words, for predicates that must be exact.
//
// The coordinates of the grid are bounded, so every determinant of them is, and its width is known
// when the program is compiled: nothing is allocated, nothing overflows. Numbers are held in two's
// complement, least significant word first. A product has as many words as its factors together;
// whoever knows a closer bound narrows it. Sums and differences keep the width of their operands:
// the caller chooses widths with a bit to spare.

#include <array>
#include <cstdint>

#ifdef __SIZEOF_INT128__
#define OX_HAS_INT128
#endif

namespace ox::internal::csg::exact {

#ifdef OX_HAS_INT128
__extension__ typedef unsigned __int128 double_word;
#endif

/// The low and the high word of a * b + c + d, which never overflows.
struct word_product {
    std::uint64_t low;
    std::uint64_t high;
};

/// Made of products of half words, for compilers without a wider type.
inline word_product multiply_halves(std::uint64_t a, std::uint64_t b, std::uint64_t c,
                                    std::uint64_t d) {
    constexpr std::uint64_t half = 0xffffffffu;
    const std::uint64_t low = (a & half) * (b & half);
    const std::uint64_t left = (a >> 32) * (b & half) + (low >> 32);
    const std::uint64_t right = (a & half) * (b >> 32) + (left & half);
    word_product product = {(right << 32) | (low & half),
                            (a >> 32) * (b >> 32) + (left >> 32) + (right >> 32)};
    product.low += c;
    product.high += product.low < c ? 1u : 0u;
    product.low += d;
    product.high += product.low < d ? 1u : 0u;
    return product;
}

inline word_product multiply_words(std::uint64_t a, std::uint64_t b, std::uint64_t c,
                                   std::uint64_t d) {
#ifdef OX_HAS_INT128
    const double_word product = static_cast<double_word>(a) * b + c + d;
    return {static_cast<std::uint64_t>(product), static_cast<std::uint64_t>(product >> 64)};
#else
    return multiply_halves(a, b, c, d);
#endif
}

/// A signed integer of 64 * N bits.
template <int N>
struct wide {
    std::array<std::uint64_t, N> words;

    /// The words above the given ones, which repeat its sign.
    std::uint64_t sign_word() const { return is_negative() ? ~std::uint64_t(0) : 0; }

    /// True if the number is below 0.
    bool is_negative() const { return (words[N - 1] >> 63) != 0; }

    /// True if the number is 0.
    bool is_zero() const {
        std::uint64_t any = 0;
        for (const std::uint64_t word : words) {
            any |= word;
        }
        return any == 0;
    }

    /// -1, 0 or 1.
    int sign() const { return is_negative() ? -1 : (is_zero() ? 0 : 1); }

    wide& operator+=(const wide& other) {
        std::uint64_t carry = 0;
        for (std::size_t i = 0; i < N; ++i) {
            const std::uint64_t sum = words[i] + carry;
            carry = sum < carry ? 1 : 0;
            words[i] = sum + other.words[i];
            carry += words[i] < sum ? 1 : 0;
        }
        return *this;
    }

    wide& operator-=(const wide& other) {
        std::uint64_t borrow = 0;
        for (std::size_t i = 0; i < N; ++i) {
            const std::uint64_t difference = words[i] - borrow;
            borrow = words[i] < borrow ? 1 : 0;
            borrow += difference < other.words[i] ? 1 : 0;
            words[i] = difference - other.words[i];
        }
        return *this;
    }

    friend wide operator+(wide a, const wide& b) { return a += b; }
    friend wide operator-(wide a, const wide& b) { return a -= b; }
    friend wide operator-(const wide& a) { return wide{} - a; }
    friend bool operator==(const wide& a, const wide& b) { return a.words == b.words; }
};

/// A machine integer as a wide one.
inline wide<1> make_wide(std::int64_t value) {
    return {{static_cast<std::uint64_t>(value)}};
}

/// The same number in more words, or in fewer where it is known to fit.
template <int M, int N>
wide<M> resized(const wide<N>& value) {
    wide<M> result{};
    const std::uint64_t filling = value.sign_word();
    for (std::size_t i = 0; i < M; ++i) {
        result.words[i] = i < N ? value.words[i] : filling;
    }
    return result;
}

/// The product of words without sign: schoolbook multiplication.
template <int A, int B>
wide<A + B> multiply_unsigned(const wide<A>& a, const wide<B>& b) {
    wide<A + B> result{};
    for (std::size_t i = 0; i < A; ++i) {
        std::uint64_t carry = 0;
        for (std::size_t j = 0; j < B; ++j) {
            const word_product product =
                multiply_words(a.words[i], b.words[j], result.words[i + j], carry);
            result.words[i + j] = product.low;
            carry = product.high;
        }
        result.words[i + B] = carry;
    }
    return result;
}

/// Takes a factor off the words of a product from the given word upwards.
template <int M, int N>
void subtract_shifted(wide<M>& product, const wide<N>& factor, int first_word) {
    std::uint64_t borrow = 0;
    for (int i = 0; i < N; ++i) {
        std::uint64_t& word = product.words[static_cast<std::size_t>(first_word + i)];
        const std::uint64_t difference = word - borrow;
        borrow = word < borrow ? 1 : 0;
        const std::uint64_t taken = factor.words[static_cast<std::size_t>(i)];
        borrow += difference < taken ? 1 : 0;
        word = difference - taken;
    }
}

/// The product. In two's complement a negative factor counts as itself plus a power of two, which
/// is taken off again.
template <int A, int B>
wide<A + B> operator*(const wide<A>& a, const wide<B>& b) {
    wide<A + B> result = multiply_unsigned(a, b);
    if (a.is_negative()) {
        subtract_shifted(result, b, A);
    }
    if (b.is_negative()) {
        subtract_shifted(result, a, B);
    }
    return result;
}

/// The number without its sign.
template <int N>
wide<N> magnitude(const wide<N>& value) {
    return value.is_negative() ? -value : value;
}

/// The number of bits of a word; 0 for 0.
inline int bit_length(std::uint64_t word) {
    int bits = 0;
    for (int half = 32; half > 0; half /= 2) {
        if ((word >> half) != 0) {
            word >>= half;
            bits += half;
        }
    }
    return word != 0 ? bits + 1 : 0;
}

/// The number of bits of a number that is not negative; 0 for 0.
template <int N>
int bit_length(const wide<N>& value) {
    for (int i = N; i-- > 0;) {
        const std::uint64_t word = value.words[static_cast<std::size_t>(i)];
        if (word != 0) {
            return 64 * i + bit_length(word);
        }
    }
    return 0;
}

/// The number times two to the power of `bits`, modulo the width.
template <int N>
wide<N> shifted_left(const wide<N>& value, int bits) {
    wide<N> result{};
    const int word_shift = bits / 64;
    const int bit_shift = bits % 64;
    for (int i = N; i-- > word_shift;) {
        const int from = i - word_shift;
        std::uint64_t word = value.words[static_cast<std::size_t>(from)] << bit_shift;
        if (bit_shift > 0 && from > 0) {
            word |= value.words[static_cast<std::size_t>(from - 1)] >> (64 - bit_shift);
        }
        result.words[static_cast<std::size_t>(i)] = word;
    }
    return result;
}

/// A double near the number: off by at most a few units of its last place.
template <int N>
double to_double(const wide<N>& value) {
    const wide<N> positive = magnitude(value);
    double result = 0.0;
    for (int i = N; i-- > 0;) {
        result = result * 18446744073709551616.0 +
                 static_cast<double>(positive.words[static_cast<std::size_t>(i)]);
    }
    return value.is_negative() ? -result : result;
}

} // namespace ox::internal::csg::exact

#endif
