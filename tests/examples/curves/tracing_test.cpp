#include <examples/curves/tracing.h>

#include <gtest/gtest.h>

namespace {

using namespace curves;

const std::vector<plan_point> points = {{0, 1}, {1, 3}, {2, -1}, {4, 2}, {5, 0}};

TEST(CurvesTracing, BezierJoinsTheFirstAndTheLastPoint) {
    const traced_curves traced = trace(points, 8);
    ASSERT_EQ(9u, traced.bezier.size());
    EXPECT_EQ(0, traced.bezier.front().x);
    EXPECT_EQ(1, traced.bezier.front().y);
    EXPECT_EQ(5, traced.bezier.back().x);
    EXPECT_EQ(0, traced.bezier.back().y);
}

TEST(CurvesTracing, BsplineBeginsAtAWeightedMeanOfThreePoints) {
    const traced_curves traced = trace(points, 8);
    EXPECT_NEAR((0 + 4 * 1 + 2) / 6.0, traced.bspline.front().x, 1e-5);
    EXPECT_NEAR((1 + 4 * 3 - 1) / 6.0, traced.bspline.front().y, 1e-5);
    EXPECT_NEAR((2 + 4 * 4 + 5) / 6.0, traced.bspline.back().x, 1e-5);
    EXPECT_NEAR((-1 + 4 * 2 + 0) / 6.0, traced.bspline.back().y, 1e-5);
}

TEST(CurvesTracing, SplinePassesThroughEveryPoint) {
    const traced_curves traced = trace(points, 5);
    for (const plan_point& p : points) {
        const auto at = static_cast<std::size_t>(p.x);
        EXPECT_NEAR(p.x, traced.spline[at].x, 1e-12);
        EXPECT_NEAR(p.y, traced.spline[at].y, 1e-5);
    }
}

} // namespace
