#include <ox/geometry/ox_bspline.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include <tests/support/generator.h>

namespace {

using ox::ox_bspline;

constexpr float nan = std::numeric_limits<float>::quiet_NaN();

std::vector<float> bspline(int degree, int m, float t) {
    ox_bspline curve(degree, m);
    const float* const weights = curve.compute(t);
    return std::vector<float>(weights, weights + (m - degree));
}

TEST(OxBspline, OfDegree0IsTheKnotIntervalOfTheParameter) {
    EXPECT_EQ(bspline(0, 4, 0.3f), (std::vector<float>{0, 1, 0, 0}));
}

TEST(OxBspline, AllWeightsAre0AtTheEnd) {
    EXPECT_EQ(bspline(0, 4, 1), (std::vector<float>{0, 0, 0, 0}));
    EXPECT_EQ(bspline(2, 6, 1), (std::vector<float>{0, 0, 0, 0}));
    EXPECT_EQ(bspline(2, 6, 5), (std::vector<float>{0, 0, 0, 0}));
}

TEST(OxBspline, DegreeNotBelowTheIntervalsWritesNothingAndReturnsTheBuffer) {
    float untouched = 7;
    for (const int degree : {4, 5, 1000000, -1, -1000}) {
        ox_bspline curve(degree, 4);
        EXPECT_EQ(curve.compute(0.5f, &untouched), &untouched);
        curve.compute(0.5f);
    }
    EXPECT_NE(ox_bspline(4, 4).compute(0.5f), nullptr);
    EXPECT_EQ(untouched, 7);
}

TEST(OxBspline, SizesOf0AndBelowWriteNothing) {
    float untouched = 7;
    for (const int m : {0, -1, (std::numeric_limits<int>::min)()}) {
        for (const int degree : {0, 3, -3, (std::numeric_limits<int>::min)()}) {
            ox_bspline curve(degree, m);
            EXPECT_EQ(curve.compute(0.5f, &untouched), &untouched);
        }
    }
    EXPECT_EQ(untouched, 7);
}

TEST(OxBspline, OfAMillionIntervalsIsAnswered) {
    ox_bspline curve(3, 1000000);
    const float* const weights = curve.compute(0.5f);
    double sum = 0;
    for (int i = 0; i < 999997; ++i) {
        sum += static_cast<double>(weights[i]);
    }
    EXPECT_NEAR(sum, 1, 0.5); // the knots are only a few roundings apart
}

TEST(OxBspline, WeightsSumTo1WhereAllBasisFunctionsReach) {
    for (float t = 0.3f; t < 0.7f; t += 0.01f) {
        double sum = 0;
        for (const float weight : bspline(3, 10, t)) {
            sum += static_cast<double>(weight);
        }
        EXPECT_NEAR(sum, 1, 1e-5);
    }
}

/// The recursion of Cox and de Boor as it is written.
float plain_basis(const std::vector<float>& u, float t, std::size_t i, std::size_t k) {
    if (k == 0) {
        return u[i] <= t && t < u[i + 1] ? 1.0f : 0.0f;
    }
    return (t - u[i]) * plain_basis(u, t, i, k - 1) / (u[i + k] - u[i]) +
           (u[i + k + 1] - t) * plain_basis(u, t, i + 1, k - 1) / (u[i + k + 1] - u[i + 1]);
}

TEST(OxBspline, AgreesWithThePlainRecursionBitForBit) {
    support::generator random(3);
    for (int round = 0; round < 2000; ++round) {
        const int m = random.between(1, 16);
        const int degree = random.between(0, m < 8 ? m - 1 : 7);
        const float t = round == 0 ? nan : random.grid(0, 1);
        std::vector<float> knots;
        for (int i = 0; i <= m; ++i) {
            knots.push_back(static_cast<float>(i) / static_cast<float>(m));
        }
        const std::vector<float> weights = bspline(degree, m, t);
        for (std::size_t i = 0; i < weights.size(); ++i) {
            const float expected = plain_basis(knots, t, i, static_cast<std::size_t>(degree));
            ASSERT_TRUE(weights[i] == expected || (std::isnan(expected) && std::isnan(weights[i])));
        }
    }
}

TEST(OxBspline, CopiesShareTheirBufferBeyondTheOriginal) {
    ox_bspline copy(0, 1);
    float* weights = nullptr;
    {
        ox_bspline original(1, 4);
        weights = original.compute(0.5f);
        copy = original;
    }
    EXPECT_EQ(ox_bspline(copy).compute(0.5f), weights);
}

} // namespace
