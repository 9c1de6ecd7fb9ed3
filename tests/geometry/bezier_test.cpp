#include <ox/geometry/ox_bezier.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include <tests/support/generator.h>

namespace {

using ox::ox_bezier;

constexpr float nan = std::numeric_limits<float>::quiet_NaN();

std::vector<float> bezier(int n, float t) {
    ox_bezier curve(n);
    const float* const weights = curve.compute(t);
    return std::vector<float>(weights, weights + n);
}

TEST(OxBezier, OfFourPointsAtTheMiddleGives1And3And3And1Eighths) {
    EXPECT_EQ(bezier(4, 0.5f), (std::vector<float>{0.125f, 0.375f, 0.375f, 0.125f}));
}

TEST(OxBezier, ParametersOutsideTheRangeAreClamped) {
    EXPECT_EQ(bezier(3, -1), (std::vector<float>{1, 0, 0}));
    EXPECT_EQ(bezier(3, -1), bezier(3, 0));
    EXPECT_EQ(bezier(3, 2), bezier(3, 1));
    EXPECT_TRUE(std::isnan(bezier(3, nan)[1]));
}

TEST(OxBezier, OfOnePointGivesTheSingleWeight1) {
    EXPECT_EQ(bezier(1, 0.3f), std::vector<float>{1});
    EXPECT_EQ(bezier(1, nan), std::vector<float>{1});
}

TEST(OxBezier, WeightsSumTo1UpTo18Points) {
    for (int n = 1; n <= 18; ++n) {
        for (float t = 0; t <= 1; t += 0.0625f) {
            double sum = 0;
            for (const float weight : bezier(n, t)) {
                sum += static_cast<double>(weight);
            }
            EXPECT_NEAR(sum, 1, 1e-5);
        }
    }
}

/// C(n - 1, i) as 32-bit integers give it, factor by factor.
float plain_coefficient(int n, int i) {
    const int k = i < n - 1 - i ? i : n - 1 - i;
    std::uint32_t product = 1;
    for (int factor = 0; factor < k; ++factor) {
        product *= static_cast<std::uint32_t>(n - 1 - factor);
    }
    std::int32_t quotient = static_cast<std::int32_t>(product);
    for (int divisor = 2; divisor <= k; ++divisor) {
        quotient /= divisor;
    }
    return static_cast<float>(quotient);
}

TEST(OxBezier, CoefficientsFrom19PointsOnWrapAroundAndAreKeptSo) {
    EXPECT_NE(plain_coefficient(19, 9), 48620.0f);
    for (const int n : {17, 18, 19, 20, 33, 34, 35, 64, 100}) {
        const std::vector<float> weights = bezier(n, 0.5f);
        for (int i = 0; i < n; ++i) {
            float expected = plain_coefficient(n, i);
            float power = 1; // every product with a power of 1/2 is exact
            for (int step = 0; step < n - 1; ++step) {
                power *= 0.5f;
            }
            EXPECT_EQ(weights[static_cast<std::size_t>(i)], expected * power) << n << ' ' << i;
        }
    }
}

TEST(OxBezier, AgreesWithThePlainFormulaBitForBit) {
    support::generator random(4);
    for (int round = 0; round < 2000; ++round) {
        const int n = random.between(1, 24);
        const float t = random.grid(-1, 2);
        const float in_range = t < 0 ? 0 : t > 1 ? 1 : t;
        std::vector<float> expected;
        float power = 1;
        for (int i = 0; i < n; ++i) {
            expected.push_back(plain_coefficient(n, i) * power);
            power = power * in_range;
        }
        power = 1;
        for (std::size_t i = expected.size(); i-- > 0;) {
            expected[i] = expected[i] * power;
            power = power * (1 - in_range);
        }
        ASSERT_EQ(bezier(n, t), expected) << n << ' ' << t;
    }
}

TEST(OxBezier, WithoutPointsWritesNothing) {
    float untouched = 7;
    for (const int n : {0, -1, (std::numeric_limits<int>::min)()}) {
        ox_bezier curve(n);
        EXPECT_EQ(curve.compute(0.5f), nullptr);
        EXPECT_EQ(curve.compute(0.5f, &untouched), &untouched);
    }
    EXPECT_EQ(untouched, 7);
}

TEST(OxBezier, OfAMillionPointsIsAnswered) {
    const std::vector<float> weights = bezier(1000000, 0);
    EXPECT_EQ(weights[0], 1);
    EXPECT_EQ(weights[1], 0);
}

TEST(OxBezier, GivenBufferIsFilledAndReturned) {
    ox_bezier curve(2);
    float out[2] = {};
    EXPECT_EQ(curve.compute(0.25f, out), out);
    EXPECT_EQ(out[0], 0.75f);
    EXPECT_EQ(out[1], 0.25f);
}

TEST(OxBezier, CopiesShareTheirBufferBeyondTheOriginal) {
    ox_bezier copy(1);
    float* weights = nullptr;
    {
        ox_bezier original(2);
        weights = original.compute(0.5f);
        copy = original;
    }
    const ox_bezier second(copy);
    EXPECT_EQ(copy.compute(1), weights);
    EXPECT_EQ(weights[1], 1);
}

} // namespace
