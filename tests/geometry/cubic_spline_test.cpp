#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <ox/geometry/ox_cubic_spline.h>
#include <string>
#include <tests/core/fresh_process.h>
#include <tests/reference/plain_spline.h>
#include <tests/support/generator.h>
#include <vector>

namespace {

using ox::ox_2dvector;
using ox::ox_cubic_spline;
using ox::ox_list;

ox_list<ox_2dvector> list(const std::vector<ox_2dvector>& points) {
    ox_list<ox_2dvector> result;
    for (const ox_2dvector& point : points) {
        result.push_right(point);
    }
    return result;
}

/// Points of the sine from x = 0 on, `step` apart.
ox_list<ox_2dvector> sine(int n, float step) {
    ox_list<ox_2dvector> result;
    for (int i = 0; i < n; ++i) {
        const float x = static_cast<float>(i) * step;
        result.push_right(ox_2dvector(x, static_cast<float>(std::sin(static_cast<double>(x)))));
    }
    return result;
}

TEST(OxCubicSpline, OfTwoPointsIsTheSegmentConstantBeyondItsEnds) {
    ox_cubic_spline spline(list({{0, 0}, {1, 1}}));
    EXPECT_EQ(spline.compute(0.25f), 0.25f);
    EXPECT_EQ(spline.compute(-3), 0);
    EXPECT_EQ(spline.compute(7), 1);
}

TEST(OxCubicSpline, PassesThroughEverySamplePoint) {
    const ox_list<ox_2dvector> points = sine(5, 0.5f);
    ox_cubic_spline spline(points);
    for (const ox_2dvector& point : points) {
        EXPECT_NEAR(spline.compute(point.x), point.y, 1e-6f);
    }
}

/// Two to nine random points of ascending x.
std::vector<ox_2dvector> random_points(support::generator& random) {
    std::vector<ox_2dvector> points;
    const int n = random.between(2, 9);
    float x = random.grid(-3, 3);
    for (int i = 0; i < n; ++i) {
        x += random.grid(0, 2) + 0.125f;
        points.push_back(ox_2dvector(x, random.grid(-4, 4)));
    }
    return points;
}

TEST(OxCubicSpline, InnerPointBelongsToTheIntervalOnItsRight) {
    // The intervals on its two sides agree there but for rounding, by which they are told apart.
    support::generator random(31);
    int told_apart = 0;
    for (int round = 0; round < 300; ++round) {
        const std::vector<ox_2dvector> points = random_points(random);
        const reference::plain_spline plain(points);
        ox_cubic_spline spline(list(points));
        for (std::size_t k = 1; k + 1 < points.size(); ++k) {
            const float x = points[k].x;
            ASSERT_EQ(spline.compute(x), plain.compute(x, k));
            ASSERT_NEAR(spline.compute(x), points[k].y, 1e-5f);
            told_apart += plain.compute(x, k - 1) != plain.compute(x, k) ? 1 : 0;
        }
    }
    EXPECT_GT(told_apart, 50);
}

TEST(OxCubicSpline, AgreesWithThePlainVersionBitForBit) {
    support::generator random(32);
    for (int round = 0; round < 2000; ++round) {
        const std::vector<ox_2dvector> points = random_points(random);
        const reference::plain_spline plain(points);
        ox_cubic_spline spline(list(points));
        for (int i = 0; i < 20; ++i) {
            const float x = random.grid(-8, 20);
            ASSERT_EQ(spline.compute(x), plain.compute(x));
        }
    }
}

std::vector<std::string> lines_of_self_check() {
    EXPECT_FALSE(ox_cubic_spline::unitary_test());
    std::ifstream file("ox_log.txt");
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        lines.push_back(line);
    }
    return lines;
}

TEST(OxCubicSpline, SelfCheckFailsByDesignBecauseTheCurveIsDamped) {
    fresh_process::run([] { EXPECT_GT(lines_of_self_check().size(), 0u); });
    ox_cubic_spline spline(sine(5, 0.5f));
    EXPECT_NEAR(std::fabs(static_cast<double>(spline.compute(1.7f)) - std::sin(1.7)), 0.011, 0.001);
}

TEST(OxCubicSpline, FailingSelfCheckLogsItsTables) {
    fresh_process::run([] {
        const std::vector<std::string> lines = lines_of_self_check();
        const std::vector<std::string> tables = {"ox_cubic_spline::unitary_test did not pass : ",
                                                 "h:",
                                                 "\t0.500000",
                                                 "\t0.500000",
                                                 "\t0.500000",
                                                 "\t0.500000",
                                                 "M:",
                                                 "\t0.000000",
                                                 "\t-0.455471",
                                                 "\t-0.713547",
                                                 "\t-1.140406",
                                                 "\t0.000000",
                                                 "C:"};
        ASSERT_EQ(lines.size(), 13u + 4 + 1 + 4 + 1 + 21);
        for (std::size_t i = 0; i < tables.size(); ++i) {
            // the second derivatives are known to five decimals
            EXPECT_EQ(lines[i].substr(0, lines[i][0] == '\t' ? 8 : 80),
                      tables[i].substr(0, tables[i][0] == '\t' ? 8 : 80));
        }
        EXPECT_EQ(lines[17], "C':");
        EXPECT_EQ(lines[22], "calculation");
        EXPECT_EQ(lines[23], "\tx = 0.000000, 0.000000 - 0.000000");
        EXPECT_EQ(lines[28], "\tx = 0.500000, 0.479426 - 0.479426");
        EXPECT_EQ(lines[43].substr(0, 15), "\tx = 2.000000, ");
    });
}

TEST(OxCubicSpline, OfFewerThanTwoPointsIs0) {
    EXPECT_EQ(ox_cubic_spline(list({})).compute(1), 0);
    EXPECT_EQ(ox_cubic_spline(list({{1, 5}})).compute(1), 0);
    EXPECT_EQ(ox_cubic_spline(ox_list<ox_2dvector>(-3)).compute(1), 0);
}

TEST(OxCubicSpline, PointsOfEqualXOrInNoOrderAreAnswered) {
    ox_cubic_spline equal(list({{1, 0}, {1, 1}, {1, 2}, {1, 3}}));
    equal.compute(1);
    ox_cubic_spline unordered(list({{3, 0}, {1, 1}, {2, 2}, {0, 3}}));
    unordered.compute(1.5f);
    const float nan = std::numeric_limits<float>::quiet_NaN();
    ox_cubic_spline unreadable(list({{0, 0}, {nan, 1}, {2, nan}, {3, 3}}));
    unreadable.compute(nan);
    unreadable.compute(std::numeric_limits<float>::infinity());
}

TEST(OxCubicSpline, PointsTooCloseForTheInverseGiveThePolyline) {
    ox_cubic_spline spline(list({{0, 0}, {0.0001f, 1}, {0.0002f, 0}}));
    EXPECT_NEAR(spline.compute(0.00005f), 0.5f, 1e-3f);
}

/// True if both are NaN, or equal.
bool is_same(float a, float b) {
    return a == b || (std::isnan(a) && std::isnan(b));
}

TEST(OxCubicSpline, AgreesWithThePlainVersionOnPointsInNoOrderAndNumbersOfEverySize) {
    support::generator random(33);
    const float infinity = std::numeric_limits<float>::infinity();
    const float strange[] = {0.0f, 1e-30f, 1e30f, 3e38f, -3e38f, infinity};
    for (int round = 0; round < 3000; ++round) {
        std::vector<ox_2dvector> points;
        const float scale = std::pow(10.0f, static_cast<float>(random.between(-5, 30)));
        for (int n = random.between(2, 40); n > 0; --n) {
            points.emplace_back(random.grid(-8, 8) * scale, random.grid(-8, 8));
        }
        if (random.one_in(3)) {
            const int last = static_cast<int>(points.size()) - 1;
            points[static_cast<std::size_t>(random.between(0, last))].x =
                strange[random.between(0, 5)];
        }
        const reference::plain_spline plain(points);
        ox_cubic_spline spline(list(points));
        for (const ox_2dvector& point : points) {
            ASSERT_TRUE(is_same(spline.compute(point.x * 0.9f), plain.compute(point.x * 0.9f)));
        }
    }
}

TEST(OxCubicSpline, AgreesWithThePlainVersionOnManyPoints) {
    support::generator random(34);
    std::vector<ox_2dvector> points;
    float x = 0.0f;
    for (int i = 0; i < 1030; ++i) {
        points.emplace_back(x, random.grid(-8, 8));
        x += random.grid(0, 2) + 0.001f;
    }
    const reference::plain_spline plain(points);
    ox_cubic_spline spline(list(points));
    for (int i = 0; i < 2000; ++i) {
        const float place = static_cast<float>(i) * x / 2000;
        ASSERT_EQ(spline.compute(place), plain.compute(place));
    }
}

TEST(OxCubicSpline, HundredsOfThousandsOfPointsAreAnswered) {
    ox_cubic_spline spline(sine(300000, 0.01f));
    EXPECT_NEAR(spline.compute(1.005f), std::sin(1.005), 1e-4);
}

TEST(OxCubicSpline, ManyPointsTooFarApartForTheInverseGiveThePolyline) {
    ox_list<ox_2dvector> points = sine(2000, 1.0f);
    points[1999].x = std::numeric_limits<float>::infinity();
    ox_cubic_spline spline(points);
    EXPECT_FLOAT_EQ(spline.compute(0.5f), points[1].y / 2);
}

TEST(OxCubicSpline, MovedFromSplineHasNoPoints) {
    ox_cubic_spline original(list({{0, 0}, {1, 1}}));
    ox_cubic_spline taken(std::move(original));
    EXPECT_EQ(taken.compute(0.5f), 0.5f);
    ox_cubic_spline assigned(list({}));
    assigned = std::move(taken);
    EXPECT_EQ(assigned.compute(0.5f), 0.5f);
}

TEST(OxCubicSpline, CopiesAreDeep) {
    ox_cubic_spline copy(list({}));
    {
        ox_cubic_spline original(list({{0, 0}, {1, 1}}));
        copy = original;
        EXPECT_EQ(ox_cubic_spline(original).compute(0.5f), 0.5f);
    }
    EXPECT_EQ(copy.compute(0.5f), 0.5f);
}

} // namespace
