#include <ox/geometry/ox_3dvector.h>

#include <gtest/gtest.h>

#include <tests/geometry/support.h>

using namespace geometry_test;
using ox::ox_3dvector;

namespace {

const ox_3dvector a(0.f, 0.f, 0.f);
const ox_3dvector b(10.f, 0.f, 0.f);
constexpr float tolerance = 0.5f; // exact in binary, so that limits can be met exactly

} // namespace

TEST(PointOnEdge, InnerPointIsOnTheEdge) {
    EXPECT_TRUE(ox_3dvector(5.f, 0.f, 0.f).is_on_edge(a, b, tolerance));
}

TEST(PointOnEdge, DistanceFromTheLineMayEqualTheTolerance) {
    EXPECT_TRUE(ox_3dvector(5.f, 0.5f, 0.f).is_on_edge(a, b, tolerance));
    EXPECT_FALSE(ox_3dvector(5.f, std::nextafter(0.5f, 1.f), 0.f).is_on_edge(a, b, tolerance));
}

TEST(PointOnEdge, FootMayLieTheToleranceBeyondAnEnd) {
    EXPECT_TRUE(ox_3dvector(10.5f, 0.f, 0.f).is_on_edge(a, b, tolerance));
    EXPECT_FALSE(ox_3dvector(std::nextafter(10.5f, 11.f), 0.f, 0.f).is_on_edge(a, b, tolerance));
    EXPECT_TRUE(ox_3dvector(-0.5f, 0.f, 0.f).is_on_edge(a, b, tolerance));
    EXPECT_FALSE(ox_3dvector(std::nextafter(-0.5f, -1.f), 0.f, 0.f).is_on_edge(a, b, tolerance));
}

TEST(PointOnEdge, CornerBeyondAnEndIsOnTheEdgeThoughFartherThanTheTolerance) {
    EXPECT_TRUE(ox_3dvector(10.5f, 0.5f, 0.f).is_on_edge(a, b, tolerance));
}

TEST(PointOnEdge, EdgeWithoutLengthAcceptsOnlyPointsStrictlyWithinTheTolerance) {
    EXPECT_TRUE(a.is_on_edge(a, a, tolerance));
    EXPECT_TRUE(ox_3dvector(std::nextafter(0.5f, 0.f), 0.f, 0.f).is_on_edge(a, a, tolerance));
    EXPECT_FALSE(ox_3dvector(0.5f, 0.f, 0.f).is_on_edge(a, a, tolerance));
    EXPECT_FALSE(ox_3dvector(0.f, 3.f, 0.f).is_on_edge(a, a, tolerance));
}

TEST(PointOnEdge, EdgeShorterThanHalfTheToleranceAcceptsOnlyPointsNearItsEnds) {
    const ox_3dvector half(0.25f, 0.f, 0.f);
    const ox_3dvector shorter(std::nextafter(0.25f, 0.f), 0.f, 0.f);
    const ox_3dvector beside(0.125f, 0.5f, 0.f);
    EXPECT_TRUE(beside.is_on_edge(a, half, tolerance));
    EXPECT_FALSE(beside.is_on_edge(a, shorter, tolerance));
}

TEST(PointOnEdge, ToleranceZeroMakesAnEdgeWithoutLengthAcceptEveryPoint) {
    EXPECT_TRUE(ox_3dvector(7.f, 8.f, 9.f).is_on_edge(a, a, 0.f));
}

TEST(PointOnEdge, ToleranceZeroAcceptsTheEdgeItself) {
    EXPECT_TRUE(ox_3dvector(5.f, 0.f, 0.f).is_on_edge(a, b, 0.f));
    EXPECT_TRUE(a.is_on_edge(a, b, 0.f));
    EXPECT_FALSE(ox_3dvector(5.f, 1e-3f, 0.f).is_on_edge(a, b, 0.f));
}

TEST(PointOnEdge, NegativeToleranceAcceptsNothing) {
    EXPECT_FALSE(ox_3dvector(5.f, 0.f, 0.f).is_on_edge(a, b, -1.f));
    EXPECT_FALSE(a.is_on_edge(a, a, -1.f));
}

TEST(PointOnEdge, SwappingTheEndsChangesNothingAwayFromTheLimits) {
    sampler random(4);
    for (int i = 0; i < 5000; ++i) {
        const ox_3dvector start = random.vector(3.f);
        const ox_3dvector end = start + random.direction() * 4.f;
        const float share = random.number(-0.5f, 1.5f);
        const ox_3dvector p = start + (end - start) * share + random.vector(0.5f);
        const bool inner = p.is_on_edge(start, end, 0.299f);
        const bool outer = p.is_on_edge(start, end, 0.301f);
        if (inner == outer) {
            EXPECT_EQ(p.is_on_edge(end, start, 0.3f), inner);
        }
    }
}

TEST(ProjectOnEdge, PointNearTheFirstEndBecomesThatEnd) {
    ox_3dvector p(0.25f, 0.25f, 0.f);
    EXPECT_TRUE(p.project_on_edge(a, b, tolerance));
    EXPECT_EQ(p, a);
}

TEST(ProjectOnEdge, PointHalfTheToleranceBeyondTheSecondEndBecomesThatEnd) {
    ox_3dvector p(10.25f, 0.f, 0.f);
    EXPECT_TRUE(p.project_on_edge(a, b, tolerance));
    EXPECT_EQ(p, b);
}

TEST(ProjectOnEdge, FirstEndWinsWhenBothAreNear) {
    ox_3dvector p(0.25f, 0.f, 0.f);
    const ox_3dvector close(0.26f, 0.f, 0.f);
    EXPECT_TRUE(p.project_on_edge(a, close, tolerance));
    EXPECT_EQ(p, a);
}

TEST(ProjectOnEdge, PointAtTheToleranceFromAnEndIsNotSnappedToIt) {
    ox_3dvector p(0.5f, 0.f, 0.f);
    EXPECT_TRUE(p.project_on_edge(a, b, tolerance));
    EXPECT_EQ(p, ox_3dvector(0.5f, 0.f, 0.f));
}

TEST(ProjectOnEdge, PointBesideTheEdgeBecomesItsFoot) {
    ox_3dvector p(5.f, 0.25f, -0.25f);
    EXPECT_TRUE(p.project_on_edge(a, b, tolerance));
    EXPECT_EQ(p, ox_3dvector(5.f, 0.f, 0.f));
}

TEST(ProjectOnEdge, FootBeyondAnEndIsNotClamped) {
    ox_3dvector p(10.5f, 0.25f, 0.f);
    EXPECT_TRUE(p.project_on_edge(a, b, tolerance));
    EXPECT_EQ(p, ox_3dvector(10.5f, 0.f, 0.f));
}

TEST(ProjectOnEdge, RefusedPointStaysAsItWas) {
    ox_3dvector p(5.f, 2.f, 0.f);
    EXPECT_FALSE(p.project_on_edge(a, b, tolerance));
    EXPECT_EQ(p, ox_3dvector(5.f, 2.f, 0.f));
}

TEST(ProjectOnEdge, PointMayBeAnEndOfTheEdge) {
    ox_3dvector p = a;
    EXPECT_TRUE(p.project_on_edge(p, b, tolerance));
    EXPECT_EQ(p, a);
    p = b;
    EXPECT_TRUE(p.project_on_edge(a, p, tolerance));
    EXPECT_EQ(p, b);
    EXPECT_TRUE(p.project_on_edge(p, p, 0.f));
    EXPECT_EQ(p, b);
}

TEST(ProjectOnEdge, AnswersAsThePointTestDoesAndLandsOnTheLine) {
    sampler random(5);
    int accepted = 0;
    for (int i = 0; i < 10000; ++i) {
        const ox_3dvector start = random.vector(3.f);
        const ox_3dvector direction = random.direction();
        const ox_3dvector end = start + direction * random.number(0.f, 4.f);
        const ox_3dvector on_line = start + direction * random.number(-1.f, 5.f);
        const ox_3dvector p = on_line + random.vector(0.5f);
        ox_3dvector projected = p;
        const bool found = projected.project_on_edge(start, end, 0.4f);
        ASSERT_EQ(found, p.is_on_edge(start, end, 0.4f));
        if (!found) {
            EXPECT_TRUE(same_bits(projected, p));
            continue;
        }
        ++accepted;
        EXPECT_LT(ox_cross(projected - start, direction).size(), 1e-5f);
        EXPECT_LE(projected.distance_to(p), 0.4001f);
    }
    EXPECT_GT(accepted, 1000);
}

TEST(ProjectOnEdge, HostileValuesNeverSeparateTheTwoTests) {
    for_each_hostile_vector([](const ox_3dvector& hostile) {
        for (const float t : hostile_values) {
            ox_3dvector p = hostile;
            const bool found = hostile.is_on_edge(a, b, t);
            EXPECT_EQ(p.project_on_edge(a, b, t), found);
            ox_3dvector inner(5.f, 0.f, 0.f);
            const bool inner_found = inner.is_on_edge(a, hostile, t);
            EXPECT_EQ(inner.project_on_edge(a, hostile, t), inner_found);
        }
    });
}

TEST(ProjectOnEdge, NotANumberIsOnNoEdge) {
    EXPECT_FALSE(ox_3dvector(not_a_number, 0.f, 0.f).is_on_edge(a, b, tolerance));
    EXPECT_FALSE(
        ox_3dvector(5.f, 0.f, 0.f)
            .is_on_edge(a, ox_3dvector(not_a_number, not_a_number, not_a_number), tolerance));
    EXPECT_FALSE(ox_3dvector(5.f, 0.f, 0.f).is_on_edge(a, b, not_a_number));
}
