// Points of a region on a grid and at random.

#include <cmath>
#include <cstddef>
#include <limits>
#include <new>
#include <vector>

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>
#include <tests/polygon/random_regions.h>
#include <tests/reference/distributions.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using random_regions::tangle;
using random_regions::tilted;
using support::contour;
using support::rectangle;
using support::rectangle_polygon;

namespace {

constexpr float nan_value = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

/// A star of `corners` spikes about the origin.
ox_list<ox_3dvector> star(support::generator& random, int corners, double shortest) {
    ox_list<ox_3dvector> result;
    for (int i = 0; i < corners; ++i) {
        const double turn = 6.283185307179586 * i / corners;
        const double radius = random.real(shortest, 10.0);
        result.push_right(ox_3dvector(static_cast<float>(radius * std::cos(turn)),
                                      static_cast<float>(radius * std::sin(turn)), 0.0f));
    }
    return result;
}

void expect_plain_grid(ox_polygon& polygon, float step) {
    if (reference::has_reproducible_frame(polygon)) {
        const ox_list<ox_3dvector> points = polygon.regular_distribution(step);
        expect_same_elements(points, reference::regular_distribution(polygon, step));
    }
}

} // namespace

// Grids of points

TEST(OxPolygonRegularDistribution, UnitStepInASquareOfTwoGivesTheFourCellCentresRowByRow) {
    ox_polygon square(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1));
    square.add_contour(rectangle(0, 0, 2, 2));
    reference::plane_frame frame(square);
    const ox_list<ox_3dvector> points = square.regular_distribution(1);
    ASSERT_EQ(points.size(), 4);
    ox::ox_2dvector corner = frame.coordinates(ox_3dvector(0, 0, 0));
    for (const ox_3dvector& v : square.get_contour_vertices()) {
        const ox::ox_2dvector q = frame.coordinates(v);
        corner = ox::ox_2dvector(std::min(corner.x, q.x), std::min(corner.y, q.y));
    }
    const float expected[4][2] = {{0.5f, 0.5f}, {1.5f, 0.5f}, {0.5f, 1.5f}, {1.5f, 1.5f}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(frame.coordinates(points[i]).x - corner.x, expected[i][0]);
        EXPECT_EQ(frame.coordinates(points[i]).y - corner.y, expected[i][1]);
    }
}

TEST(OxPolygonRegularDistribution, HolesHaveNoPoints) {
    ox_polygon polygon = rectangle_polygon(0, 0, 4, 4);
    polygon.add_contour(rectangle(1, 1, 3, 3));
    EXPECT_EQ(polygon.regular_distribution(1).size(), 12);
}

TEST(OxPolygonRegularDistribution, EmptyPolygonHasNoPoints) {
    ox_polygon empty;
    EXPECT_EQ(empty.regular_distribution(1).size(), 0);
    ox_polygon without_contour(ox_3dvector(1, 2, 3), ox_3dvector(0, 1, 0));
    EXPECT_EQ(without_contour.regular_distribution(1).size(), 0);
}

TEST(OxPolygonRegularDistribution, StepThatIsNotPositiveGivesNoPoints) {
    ox_polygon square = rectangle_polygon(0, 0, 1, 1);
    for (const float step : {0.0f, -0.0f, -1.0f, -infinity, nan_value}) {
        EXPECT_EQ(square.regular_distribution(step).size(), 0);
    }
}

TEST(OxPolygonRegularDistribution, InfiniteAndHugeStepsAreAnswered) {
    ox_polygon square = rectangle_polygon(0, 0, 1, 1);
    for (const float step : {infinity, 3e38f, 1e30f}) {
        EXPECT_LE(square.regular_distribution(step).size(), 1);
    }
}

TEST(OxPolygonRegularDistribution, StepThatAdvancesNoCoordinateEndsAtTheLowerCorner) {
    ox_polygon far(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1));
    far.add_contour(rectangle(1e6f, 1e6f, 1e6f + 10, 1e6f + 10));
    EXPECT_LE(far.regular_distribution(1e-30f).size(), 1);
}

TEST(OxPolygonRegularDistribution, StepThatAdvancesSomeCoordinatesOnlyEndsWithTheFirstItDoesNot) {
    ox_polygon strip(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1));
    strip.add_contour(rectangle(1048570, 0, 1048580, 0.5f)); // floats are 1/16, then 1/8 apart
    strip.add_contour(rectangle(1048572, 0.25f, 1048574, 0.5f));
    expect_plain_grid(strip, 0.0625f);
    expect_plain_grid(strip, 0.03125f);
}

TEST(OxPolygonRegularDistribution, MorePointsThanAListHoldsAreAnAllocationFailureAtOnce) {
    ox_polygon square = rectangle_polygon(0, 0, 100, 100);
    EXPECT_THROW(square.regular_distribution(1e-3f), std::bad_alloc);
    EXPECT_THROW(square.regular_distribution(1e-5f), std::bad_alloc);
    EXPECT_THROW(square.regular_distribution(1e-30f), std::bad_alloc);
    EXPECT_EQ(square.regular_distribution(50).size(), 4); // the polygon is as it was
}

TEST(OxPolygonRegularDistribution, ThinDiagonalStripInAVastGridIsAnsweredWithoutScanningTheGrid) {
    ox_polygon strip(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1));
    strip.add_contour(contour({ox_3dvector(0, 0, 0), ox_3dvector(1000, 1000, 0),
                               ox_3dvector(1000, 1000.002f, 0), ox_3dvector(0, 0.002f, 0)}));
    const ox_list<ox_3dvector> points = strip.regular_distribution(0.005f); // of 4e10
    EXPECT_GT(points.size(), 1000);
    for (const ox_3dvector& p : points) {
        ASSERT_NEAR(p.x, p.y, 0.003f);
    }
}

TEST(OxPolygonRegularDistribution, CoordinatesNearTheLargestFloatGiveNoPoints) {
    ox_polygon huge(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1));
    huge.add_contour(contour(
        {ox_3dvector(-3e38f, -3e38f, 0), ox_3dvector(3e38f, -3e38f, 0), ox_3dvector(0, 3e38f, 0)}));
    EXPECT_EQ(huge.regular_distribution(1e30f).size(), 0);
}

TEST(OxPolygonRegularDistribution, LargeTriangleHasThePointsThatItContains) {
    ox_polygon polygon(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1));
    polygon.add_contour(
        contour({ox_3dvector(0, 0, 0), ox_3dvector(2e37f, 0, 0), ox_3dvector(0, 2e37f, 0)}));
    EXPECT_GT(polygon.regular_distribution(5e36f).size(), 0);
    expect_plain_grid(polygon, 5e36f);
}

TEST(OxPolygonRegularDistribution, LargeTriangleInAVastGridHasNoPoints) {
    ox_polygon polygon(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1));
    polygon.add_contour(
        contour({ox_3dvector(0, 0, 0), ox_3dvector(2e37f, 0, 0), ox_3dvector(0, 2e37f, 0)}));
    EXPECT_EQ(polygon.regular_distribution(2e32f).size(), 0);
}

TEST(OxPolygonRegularDistribution, AgreesWithThePlainVersionOnTangles) {
    support::generator random(451);
    for (int round = 0; round < 6000; ++round) {
        ox_polygon polygon = tangle(random, random.between(3, 9), 3);
        const float steps[] = {0.5f, 0.25f, 1.0f, 0.3f, 0.17f, 7.0f};
        expect_plain_grid(polygon, steps[random.between(0, 5)]);
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST(OxPolygonRegularDistribution, AgreesWithThePlainVersionOnOutlinesAlongTheGrid) {
    support::generator random(452);
    for (int round = 0; round < 5000; ++round) {
        ox_polygon polygon(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1));
        const int rectangles = random.between(1, 6);
        for (int i = 0; i < rectangles; ++i) { // sides on the rows and columns of points
            const float x = static_cast<float>(random.between(0, 8)) * 0.5f;
            const float y = static_cast<float>(random.between(0, 8)) * 0.5f;
            const float width = static_cast<float>(random.between(1, 6)) * 0.5f;
            const float height = static_cast<float>(random.between(1, 6)) * 0.5f;
            polygon.add_contour(rectangle(x, y, x + width, y + height));
        }
        expect_plain_grid(polygon, random.one_in(2) ? 1.0f : 0.25f);
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST(OxPolygonRegularDistribution, AgreesWithThePlainVersionInTiltedPlanesNearAndFar) {
    support::generator random(453);
    for (int round = 0; round < 1500; ++round) {
        const float away[] = {0.0f, 10.0f, 1000.0f, 100000.0f};
        ox_polygon flat = tangle(random, random.between(3, 8), 3);
        ox_polygon polygon = tilted(random, flat, away[random.between(0, 3)]);
        expect_plain_grid(polygon, random.one_in(2) ? 0.5f : 0.21f);
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST(OxPolygonRegularDistribution, AgreesWithThePlainVersionOnStarsOfHundredsOfSpikes) {
    support::generator random(454);
    for (int round = 0; round < 6; ++round) {
        ox_polygon flat;
        flat.add_contour(star(random, 300, 1.0));
        expect_plain_grid(flat, 0.15f);
        ox_polygon polygon = tilted(random, flat, 500.0f);
        expect_plain_grid(polygon, 0.4f);
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST(OxPolygonRegularDistribution, AgreesWithThePlainVersionAfterATransformationThatBendsTheFrame) {
    support::generator random(455);
    for (int round = 0; round < 500; ++round) {
        ox_polygon polygon = tangle(random, 6, 3);
        reference::plane_frame frame(polygon);
        if (!reference::has_reproducible_frame(polygon)) {
            continue;
        }
        ox::ox_matrix m;
        for (int i = 0; i < 12; ++i) {
            if (i % 4 != 3) {
                m[static_cast<unsigned int>(i)] = random.grid(-2, 2);
            }
        }
        polygon.matrix_transform(m);
        frame.point = polygon.get_point();
        frame.dx = m.transform_vector(frame.dx);
        frame.dy = m.transform_vector(frame.dy);
        const float step = 0.5f * polygon.get_bounding_box().size.size() / 8.0f;
        expect_same_elements(polygon.regular_distribution(step),
                             reference::regular_distribution(polygon, frame, step));
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST(OxPolygonRegularDistribution, AgreesWithThePlainVersionOnTrianglesOfAnySize) {
    support::generator random(458);
    const float scales[] = {1e-44f, 1e-40f, 1e-30f, 1e-10f, 1e10f, 1e20f, 1e30f, 1e35f};
    for (int round = 0; round < 2000; ++round) {
        const float scale = scales[random.between(0, 7)];
        ox_polygon polygon(ox_3dvector(0, 0, 0), ox_3dvector(0, 0.6f, 0.8f));
        ox_list<ox_3dvector> corners; // a lone triangle stays off the integer grid
        for (int i = 0; i < 3; ++i) {
            corners.push_right(support::random_point(random, 8.0) * scale);
        }
        polygon.add_contour(corners);
        expect_plain_grid(polygon, scale * (random.grid(0, 1) + 0.5f));
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

// Points at random

TEST(OxPolygonRandomDistribution, SameSeedGivesTheSamePointsAndAllAreInside) {
    ox_polygon square = rectangle_polygon(0, 0, 2, 1);
    const ox_list<ox_3dvector> points = square.random_distribution(100, 7);
    ASSERT_EQ(points.size(), 100);
    expect_same_elements(points, square.random_distribution(100, 7));
    for (const ox_3dvector& p : points) {
        EXPECT_TRUE(p.x >= 0 && p.x <= 2 && p.y >= 0 && p.y <= 1 && p.z == 0);
    }
}

TEST(OxPolygonRandomDistribution, OtherSeedGivesOtherPoints) {
    ox_polygon square = rectangle_polygon(0, 0, 2, 1);
    EXPECT_FALSE(square.random_distribution(1, 7)[0] == square.random_distribution(1, 8)[0]);
}

TEST(OxPolygonRandomDistribution, EmptyPolygonHasNoPoints) {
    ox_polygon empty;
    EXPECT_EQ(empty.random_distribution(100, 7).size(), 0);
}

TEST(OxPolygonRandomDistribution, CountBelow1GivesNoPoints) {
    ox_polygon square = rectangle_polygon(0, 0, 1, 1);
    for (const int count : {0, -1, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(square.random_distribution(count, 7).size(), 0);
    }
}

TEST(OxPolygonRandomDistribution, PointsAreSpreadEvenlyOverUnequalTriangles) {
    ox_polygon shape = rectangle_polygon(0, 0, 9, 1);
    shape.add_contour(rectangle(20, 0, 21, 1));
    int in_small = 0;
    for (const ox_3dvector& p : shape.random_distribution(10000, 3)) {
        in_small += p.x > 15 ? 1 : 0;
    }
    EXPECT_NEAR(in_small, 1000, 150);
}

TEST(OxPolygonRandomDistribution, AgreesWithThePlainVersionOnRandomRegions) {
    support::generator random(456);
    for (int round = 0; round < 10000; ++round) {
        ox_polygon flat = tangle(random, random.between(3, 12), 4);
        ox_polygon polygon = tilted(random, flat, 10.0f);
        const int seed = random.between(-100000, 100000);
        expect_same_elements(polygon.random_distribution(100, seed),
                             reference::random_distribution(polygon, 100, seed));
        ASSERT_FALSE(HasFailure()) << "round " << round;
    }
}

TEST(OxPolygonRandomDistribution, AgreesWithThePlainVersionOnTrianglesWithoutArea) {
    ox_polygon flat(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1));
    flat.add_contour(contour({ox_3dvector(0, 0, 0), ox_3dvector(1, 0, 0), ox_3dvector(2, 0, 0)}));
    expect_same_elements(flat.random_distribution(50, 1),
                         reference::random_distribution(flat, 50, 1));
    ox_polygon huge(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1));
    huge.add_contour(
        contour({ox_3dvector(0, 0, 0), ox_3dvector(1e30f, 0, 0), ox_3dvector(0, 1e30f, 0)}));
    expect_same_elements(huge.random_distribution(50, 1),
                         reference::random_distribution(huge, 50, 1));
}
