#include <gtest/gtest.h>

#include <random>

#include <ox/solid/internal/csg/exact/wide_integer.h>

#include <tests/reference/plain_dice.h>
#include <tests/reference/plain_integer.h>

namespace {

using namespace ox::internal::csg::exact;
using reference::plain_integer;

/// Words of nothing, of ones, and of both mixed, where carries and signs go wrong.
std::uint64_t random_word(std::mt19937_64& engine) {
    switch (engine() % 5) {
    case 0:
        return 0;
    case 1:
        return ~std::uint64_t(0);
    case 2:
        return std::uint64_t(1) << 63;
    default:
        return engine() >> (engine() % 64);
    }
}

template <int N>
wide<N> random_wide(std::mt19937_64& engine) {
    wide<N> value{};
    for (std::uint64_t& word : value.words) {
        word = random_word(engine);
    }
    return value;
}

/// The number with two bits to spare, so that sums fit.
template <int N>
wide<N> random_summand(std::mt19937_64& engine) {
    wide<N> value = random_wide<N>(engine);
    value.words[N - 1] =
        static_cast<std::uint64_t>(static_cast<std::int64_t>(value.words[N - 1]) / 4);
    return value;
}

template <int N>
plain_integer plain(const wide<N>& value) {
    const plain_integer base = plain_integer(std::int64_t(1) << 32);
    plain_integer result;
    for (std::size_t i = N; i-- > 0;) {
        const std::uint64_t word = value.words[i];
        result = result * base + plain_integer(static_cast<std::int64_t>(word >> 32));
        result = result * base + plain_integer(static_cast<std::int64_t>(word & 0xffffffffu));
    }
    plain_integer whole = 1;
    for (int i = 0; i < 2 * N; ++i) {
        whole = whole * base;
    }
    return value.is_negative() ? result - whole : result;
}

TEST(CsgWideInteger, SumsDifferencesAndSignsAreThoseOfWholeNumbers) {
    std::mt19937_64 engine(1);
    for (int i = 0; i < 2000; ++i) {
        const wide<3> a = random_summand<3>(engine);
        const wide<3> b = random_summand<3>(engine);
        EXPECT_EQ(plain(a + b), plain(a) + plain(b));
        EXPECT_EQ(plain(a - b), plain(a) - plain(b));
        EXPECT_EQ(plain(-a), -plain(a));
        EXPECT_EQ(a.sign(), plain(a).sign());
        EXPECT_EQ(plain(resized<5>(a)), plain(a));
    }
}

TEST(CsgWideInteger, ProductsAreThoseOfWholeNumbers) {
    std::mt19937_64 engine(2);
    for (int i = 0; i < 2000; ++i) {
        const wide<3> a = random_wide<3>(engine);
        const wide<2> b = random_wide<2>(engine);
        EXPECT_EQ(plain(a * b), plain(a) * plain(b));
        EXPECT_EQ(plain(b * b), plain(b) * plain(b));
    }
}

TEST(CsgWideInteger, ProductsOfHalfWordsAreThoseOfWords) {
    std::mt19937_64 engine(3);
    for (int i = 0; i < 5000; ++i) {
        const std::uint64_t a = random_word(engine);
        const std::uint64_t b = random_word(engine);
        const std::uint64_t c = random_word(engine);
        const std::uint64_t d = random_word(engine);
        const word_product by_halves = multiply_halves(a, b, c, d);
        const word_product by_words = multiply_words(a, b, c, d);
        EXPECT_EQ(by_halves.low, by_words.low);
        EXPECT_EQ(by_halves.high, by_words.high);
    }
}

TEST(CsgWideInteger, AShiftMultipliesByAPowerOfTwo) {
    std::mt19937_64 engine(4);
    for (int bits = 0; bits < 190; ++bits) {
        const wide<1> a = random_summand<1>(engine);
        plain_integer expected = plain(a);
        for (int i = 0; i < bits; ++i) {
            expected = expected + expected;
        }
        EXPECT_EQ(plain(shifted_left(resized<4>(a), bits)), expected);
    }
}

TEST(CsgWideInteger, TheLengthIsTheNumberOfBitsOfTheHighestOne) {
    EXPECT_EQ(bit_length(wide<3>{}), 0);
    for (int bits = 0; bits < 190; ++bits) {
        EXPECT_EQ(bit_length(shifted_left(resized<3>(make_wide(1)), bits)), bits + 1);
    }
}

} // namespace
