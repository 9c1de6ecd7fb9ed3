#include <ox/geometry/ox_2dvector.h>

#include <gtest/gtest.h>

#include <tests/geometry/support.h>

using namespace geometry_test;
using ox::ox_2dvector;

TEST(Ox2dVector, DefaultIsZero) {
    EXPECT_EQ(ox_2dvector(), ox_2dvector(0.f, 0.f));
}

TEST(Ox2dVector, ReadsTwoConsecutiveFloats) {
    float values[2] = {3.f, -4.f};
    EXPECT_EQ(ox_2dvector(values), ox_2dvector(3.f, -4.f));
}

TEST(Ox2dVector, NullArrayGivesZero) {
    const float* none = nullptr;
    EXPECT_EQ(ox_2dvector(none), ox_2dvector());
}

TEST(Ox2dVector, IndexReachesComponentsInOrder) {
    ox_2dvector v;
    v[0] = 5.f;
    v[1] = 6.f;
    EXPECT_EQ(v, ox_2dvector(5.f, 6.f));
    EXPECT_EQ(v.at(0), 5.f);
    EXPECT_EQ(v.at(1), 6.f);
}

TEST(Ox2dVector, ArrayIsTightlyPacked) {
    ox_2dvector v[2] = {ox_2dvector(1.f, 2.f), ox_2dvector(3.f, 4.f)};
    float values[4];
    std::memcpy(values, v, sizeof(v));
    EXPECT_EQ(values[1], 2.f);
    EXPECT_EQ(values[2], 3.f);
}

TEST(Ox2dVector, NegationLeavesTheOperand) {
    const ox_2dvector v(1.f, -2.f);
    EXPECT_EQ(-v, ox_2dvector(-1.f, 2.f));
    EXPECT_EQ(v, ox_2dvector(1.f, -2.f));
}

TEST(Ox2dVector, InPlaceOperatorsWorkComponentByComponent) {
    ox_2dvector v(6.f, 8.f);
    v += ox_2dvector(2.f, 4.f);
    EXPECT_EQ(v, ox_2dvector(8.f, 12.f));
    v -= ox_2dvector(4.f, 4.f);
    EXPECT_EQ(v, ox_2dvector(4.f, 8.f));
    v *= ox_2dvector(2.f, 3.f);
    EXPECT_EQ(v, ox_2dvector(8.f, 24.f));
    v /= ox_2dvector(4.f, 6.f);
    EXPECT_EQ(v, ox_2dvector(2.f, 4.f));
    v *= 3.f;
    EXPECT_EQ(v, ox_2dvector(6.f, 12.f));
    v /= 6.f;
    EXPECT_EQ(v, ox_2dvector(1.f, 2.f));
}

TEST(Ox2dVector, InPlaceOperatorsAcceptTheVectorItself) {
    ox_2dvector v(3.f, 5.f);
    const ox_2dvector& itself = v;
    v += itself;
    EXPECT_EQ(v, ox_2dvector(6.f, 10.f));
    v *= itself;
    EXPECT_EQ(v, ox_2dvector(36.f, 100.f));
    v /= itself;
    EXPECT_EQ(v, ox_2dvector(1.f, 1.f));
    v -= itself;
    EXPECT_EQ(v, ox_2dvector());
}

TEST(Ox2dVector, ScalingByAnOwnComponentUsesItsValueAtTheCall) {
    ox_2dvector v(3.f, 5.f);
    v *= v.x;
    EXPECT_EQ(v, ox_2dvector(9.f, 15.f));
    v /= v[0];
    EXPECT_EQ(v, ox_2dvector(1.f, 15.f / 9.f));
}

TEST(Ox2dVector, DivisionByZeroIsNotGuarded) {
    ox_2dvector v(1.f, -1.f);
    v /= 0.f;
    EXPECT_EQ(v, ox_2dvector(infinity, -infinity));
    ox_2dvector w(1.f, 1.f);
    w /= ox_2dvector(0.f, 2.f);
    EXPECT_EQ(w, ox_2dvector(infinity, 0.5f));
}

TEST(Ox2dVector, BinaryOperatorsAgreeWithTheInPlaceForms) {
    const ox_2dvector a(1.f, 2.f);
    const ox_2dvector b(3.f, 5.f);
    EXPECT_EQ(a + b, ox_2dvector(4.f, 7.f));
    EXPECT_EQ(a - b, ox_2dvector(-2.f, -3.f));
    EXPECT_EQ(a * 2.f, ox_2dvector(2.f, 4.f));
    EXPECT_EQ(2.f * a, ox_2dvector(2.f, 4.f));
    EXPECT_EQ(b / 3.f, ox_2dvector(1.f, 5.f / 3.f));
}

TEST(Ox2dVector, DivisionDividesEachComponentInsteadOfMultiplyingByTheReciprocal) {
    const float divisor = 41.f;
    ASSERT_NE(41.f / divisor, 41.f * (1.f / divisor));
    EXPECT_EQ((ox_2dvector(41.f, 41.f) / divisor).x, 1.f);
}

TEST(Ox2dVector, EqualityIsExact) {
    EXPECT_TRUE(ox_2dvector(1.f, 0.f) == ox_2dvector(1.f, -0.f));
    EXPECT_TRUE(ox_2dvector(1.f, 2.f) != ox_2dvector(1.f, std::nextafter(2.f, 3.f)));
    EXPECT_TRUE(ox_2dvector(not_a_number, 0.f) != ox_2dvector(not_a_number, 0.f));
    EXPECT_FALSE(ox_2dvector(not_a_number, 0.f) == ox_2dvector(not_a_number, 0.f));
}

TEST(Ox2dVector, DotProductIsOneFunctionInBothNamespaces) {
    const ox_2dvector a(1.f, 2.f);
    const ox_2dvector b(3.f, 5.f);
    EXPECT_EQ(::ox_dot(a, b), 13.f);
    EXPECT_EQ(ox::ox_dot(a, b), 13.f);
}

TEST(Ox2dVector, SizesAndDistances) {
    const ox_2dvector v(3.f, -4.f);
    EXPECT_EQ(v.size(), 5.f);
    EXPECT_EQ(v.manhattan_size(), 7.f);
    EXPECT_EQ(v.distance_to(ox_2dvector(0.f, 0.f)), 5.f);
    EXPECT_EQ(v.distance_to(ox_2dvector(6.f, 0.f)), 5.f);
    EXPECT_EQ(v.manhattan_distance_to(ox_2dvector(1.f, 1.f)), 7.f);
    EXPECT_EQ(v.distance_to(v), 0.f);
}

TEST(Ox2dVector, SizeTakesTheRootInDoubleOfTheFloatSum) {
    sampler random(1);
    for (int i = 0; i < 2000; ++i) {
        const ox_2dvector v = random.plane_vector(10.f);
        const float xx = v.x * v.x;
        const float yy = v.y * v.y;
        const float sum = xx + yy;
        EXPECT_EQ(v.size(), static_cast<float>(std::sqrt(static_cast<double>(sum))));
    }
}

TEST(Ox2dVector, NormalizingZeroReturnsZeroAndChangesNothing) {
    ox_2dvector v;
    EXPECT_EQ(v.normalize(), 0.f);
    EXPECT_EQ(v, ox_2dvector());
}

TEST(Ox2dVector, NormalizingThreeFourReturnsFive) {
    ox_2dvector v(3.f, 4.f);
    EXPECT_EQ(v.normalize(), 5.f);
    EXPECT_FLOAT_EQ(v.x, 0.6f);
    EXPECT_FLOAT_EQ(v.y, 0.8f);
}

TEST(Ox2dVector, NormalizingMultipliesByTheReciprocal) {
    ox_2dvector v(41.f, 0.f);
    ASSERT_NE(41.f * (1.f / 41.f), 1.f);
    v.normalize();
    EXPECT_EQ(v.x, 41.f * (1.f / 41.f));
}

TEST(Ox2dVector, NormalizingAVectorWhoseSquareUnderflowsChangesNothing) {
    ox_2dvector v(1e-30f, smallest);
    EXPECT_EQ(v.normalize(), 0.f);
    EXPECT_EQ(v, ox_2dvector(1e-30f, smallest));
}

TEST(Ox2dVector, NormalizingAVectorWhoseSquareOverflowsGivesZero) {
    ox_2dvector v(1e30f, 1.f);
    EXPECT_EQ(v.normalize(), infinity);
    EXPECT_EQ(v, ox_2dvector());
}

TEST(Ox2dVector, MainAxisGivesATieToY) {
    EXPECT_EQ(ox_2dvector(2.f, 1.f).main_axis(), 0);
    EXPECT_EQ(ox_2dvector(-2.f, 1.f).main_axis(), 0);
    EXPECT_EQ(ox_2dvector(1.f, -2.f).main_axis(), 1);
    EXPECT_EQ(ox_2dvector(1.f, 1.f).main_axis(), 1);
    EXPECT_EQ(ox_2dvector(-1.f, 1.f).main_axis(), 1);
    EXPECT_EQ(ox_2dvector().main_axis(), 1);
}

TEST(Ox2dVector, NormalTurnsCounterClockwiseAndLeavesTheVector) {
    ox_2dvector v(1.f, 2.f);
    EXPECT_EQ(v.normal(), ox_2dvector(-2.f, 1.f));
    EXPECT_EQ(v, ox_2dvector(1.f, 2.f));
}

TEST(Ox2dVector, LinesIntersectBeyondTheirDirections) {
    ox_2dvector out;
    EXPECT_TRUE(ox_2dvector::intersection(ox_2dvector(0.f, 0.f), ox_2dvector(1.f, 0.f),
                                          ox_2dvector(10.f, 5.f), ox_2dvector(0.f, 1.f), out));
    EXPECT_EQ(out, ox_2dvector(10.f, 0.f));
    EXPECT_TRUE(ox_2dvector::intersection(ox_2dvector(0.f, 0.f), ox_2dvector(1.f, 1.f),
                                          ox_2dvector(-4.f, 0.f), ox_2dvector(0.f, 2.f), out));
    EXPECT_EQ(out, ox_2dvector(-4.f, -4.f));
}

TEST(Ox2dVector, ParallelLinesHaveNoIntersectionAndLeaveTheOutput) {
    ox_2dvector out(7.f, 8.f);
    EXPECT_FALSE(ox_2dvector::intersection(ox_2dvector(0.f, 0.f), ox_2dvector(1.f, 2.f),
                                           ox_2dvector(1.f, 0.f), ox_2dvector(2.f, 4.f), out));
    EXPECT_EQ(out, ox_2dvector(7.f, 8.f));
}

TEST(Ox2dVector, LinesWithVeryShortDirectionsHaveNoIntersectionThoughTheyMeet) {
    ox_2dvector out(7.f, 8.f);
    EXPECT_FALSE(ox_2dvector::intersection(ox_2dvector(0.f, 0.f), ox_2dvector(0.03f, 0.f),
                                           ox_2dvector(0.f, 0.f), ox_2dvector(0.f, 0.03f), out));
    EXPECT_EQ(out, ox_2dvector(7.f, 8.f));
}

TEST(Ox2dVector, IntersectionAcceptsADeterminantOfExactlyTheLimit) {
    ox_2dvector out;
    const ox_2dvector right(1.f, 0.f);
    const ox_2dvector at_limit(0.f, 0.001f);
    const ox_2dvector below_limit(0.f, std::nextafter(0.001f, 0.f));
    const ox_2dvector p(2.f, 3.f);
    EXPECT_TRUE(ox_2dvector::intersection(ox_2dvector(), right, p, at_limit, out));
    EXPECT_FALSE(ox_2dvector::intersection(ox_2dvector(), right, p, below_limit, out));
}

TEST(Ox2dVector, IntersectionMayOverwriteAnArgument) {
    ox_2dvector p1(0.f, 1.f);
    const ox_2dvector d1(1.f, 1.f);
    EXPECT_TRUE(
        ox_2dvector::intersection(p1, d1, ox_2dvector(3.f, 0.f), ox_2dvector(0.f, 1.f), p1));
    EXPECT_EQ(p1, ox_2dvector(3.f, 4.f));
}

TEST(Ox2dVector, IntersectionLiesOnBothLines) {
    sampler random(2);
    for (int i = 0; i < 2000; ++i) {
        const ox_2dvector p1 = random.plane_vector(5.f);
        const ox_2dvector p2 = random.plane_vector(5.f);
        ox_2dvector d1 = random.plane_vector(1.f);
        ox_2dvector d2 = random.plane_vector(1.f);
        d1.normalize();
        d2.normalize();
        if (std::fabs(ox_dot(d1.normal(), d2)) < 0.1f) {
            continue;
        }
        ox_2dvector out;
        ASSERT_TRUE(ox_2dvector::intersection(p1, d1, p2, d2, out));
        EXPECT_NEAR(ox_dot(out - p1, d1.normal()), 0.f, 1e-4f);
        EXPECT_NEAR(ox_dot(out - p2, d2.normal()), 0.f, 1e-4f);
    }
}

TEST(Ox2dVector, HostileValuesTravelThroughEveryOperation) {
    for (const float x : hostile_values) {
        for (const float y : hostile_values) {
            ox_2dvector v(x, y);
            const int axis = v.main_axis();
            EXPECT_TRUE(axis == 0 || axis == 1);
            ox_2dvector out;
            ox_2dvector::intersection(v, v.normal(), ox_2dvector(y, x), v, out);
            const float length = v.normalize();
            EXPECT_TRUE(std::isnan(length) || length >= 0.f);
        }
    }
}
