// Dropping vertices of contours within a tolerance.

#include <cmath>
#include <limits>
#include <vector>

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>
#include <tests/reference/simplify.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using support::contour;
using support::rectangle;
using support::rectangle_polygon;

namespace {

constexpr float nan_value = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();
const ox_3dvector up(0.0f, 0.0f, 1.0f);

/// The square from (0, 0) to (2, 2) with an extra vertex in the middle of its first side.
ox_list<ox_3dvector> square_with_middle() {
    return contour({ox_3dvector(0, 0, 0), ox_3dvector(1, 0, 0), ox_3dvector(2, 0, 0),
                    ox_3dvector(2, 2, 0), ox_3dvector(0, 2, 0)});
}

std::vector<ox_3dvector> plain(const ox_list<ox_3dvector>& list) {
    return std::vector<ox_3dvector>(list.begin(), list.end());
}

ox_list<ox_3dvector> circle(int n, float radius) {
    ox_list<ox_3dvector> result;
    for (int i = 0; i < n; ++i) {
        const double turn = 6.283185307179586 * i / n;
        result.push_right(ox_3dvector(radius * static_cast<float>(std::cos(turn)),
                                      radius * static_cast<float>(std::sin(turn)), 0.0f));
    }
    return result;
}

/// Random walks on a coarse grid: full of repeated and collinear points, spikes and short edges.
ox_list<ox_3dvector> random_contour(support::generator& random) {
    ox_list<ox_3dvector> result;
    const int n = random.between(0, 24);
    const bool coarse = random.one_in(2);
    for (int i = 0; i < n; ++i) {
        float x = coarse ? static_cast<float>(random.between(0, 3)) : random.grid(0, 2);
        const float y = coarse ? static_cast<float>(random.between(0, 3)) : random.grid(0, 2);
        if (random.one_in(50)) {
            x = random.any_float();
        }
        result.push_right(ox_3dvector(x, y, 0.0f));
        if (random.one_in(6)) {
            result.push_right(result[i % result.size()]);
        }
    }
    return result;
}

} // namespace

TEST(OxPolygonSimplification, SquareLosesAVertexInTheMiddleOfASideWithAnyPositiveTolerance) {
    for (const float tolerance : {1e-30f, 1e-6f, 0.1f, 1.0f}) {
        ox_list<ox_3dvector> given = square_with_middle();
        ox_polygon::optimize_contour(given, up, tolerance);
        expect_same_elements(given, rectangle(0, 0, 2, 2));
        ox_list<ox_3dvector> derived = square_with_middle();
        ox_polygon::optimize_contour(derived, tolerance);
        expect_same_elements(derived, rectangle(0, 0, 2, 2));
    }
}

TEST(OxPolygonSimplification, TwoVerticesCloserThanATenthOfTheToleranceBecomeOne) {
    ox_list<ox_3dvector> square =
        contour({ox_3dvector(0, 0, 0), ox_3dvector(2, 0, 0), ox_3dvector(2, 0.009f, 0),
                 ox_3dvector(2, 2, 0), ox_3dvector(0, 2, 0)});
    ox_polygon::optimize_contour(square, up, 0.1f);
    expect_same_elements(square, contour({ox_3dvector(0, 0, 0), ox_3dvector(2, 0.009f, 0),
                                          ox_3dvector(2, 2, 0), ox_3dvector(0, 2, 0)}));
}

TEST(OxPolygonSimplification, VerticesATenthOfTheToleranceApartStayBothWhereTheyMakeACorner) {
    ox_list<ox_3dvector> sharp =
        contour({ox_3dvector(0, 0, 0), ox_3dvector(8, 0, 0), ox_3dvector(8, 8, 0),
                 ox_3dvector(8.125f, 8, 0), ox_3dvector(0, 9, 0)});
    const std::vector<ox_3dvector> left = reference::drop_short_edges(plain(sharp), 1.25f);
    EXPECT_EQ(left.size(), 5u); // strictly shorter is what goes
}

TEST(OxPolygonSimplification, EdgeOfTheContoursEndIsExaminedAgainstItsStart) {
    ox_list<ox_3dvector> square =
        contour({ox_3dvector(0, 0, 0), ox_3dvector(2, 0, 0), ox_3dvector(2, 2, 0),
                 ox_3dvector(0, 2, 0), ox_3dvector(0, 0.001f, 0)});
    ox_polygon::optimize_contour(square, up, 0.1f);
    expect_same_elements(square, rectangle(0, 0, 2, 2));
}

TEST(OxPolygonSimplification, CornerAsHighAsTheToleranceGoesAndAHigherOneStays) {
    const auto bumped = [](float height) {
        ox_list<ox_3dvector> result = square_with_middle();
        result[1].y = -height;
        return result;
    };
    ox_list<ox_3dvector> at = bumped(0.25f);
    ox_polygon::optimize_contour(at, up, 0.25f);
    EXPECT_EQ(at.size(), 4);
    ox_list<ox_3dvector> above = bumped(0.2500001f);
    ox_polygon::optimize_contour(above, up, 0.25f);
    EXPECT_EQ(above.size(), 5);
}

TEST(OxPolygonSimplification, SpikeThatComesBackToItsFootGoes) {
    ox_list<ox_3dvector> spiked =
        contour({ox_3dvector(0, 0, 0), ox_3dvector(2, 0, 0), ox_3dvector(9, 0.5f, 0),
                 ox_3dvector(2, 0.001f, 0), ox_3dvector(2, 2, 0), ox_3dvector(0, 2, 0)});
    ox_polygon::optimize_contour(spiked, up, 0.1f);
    EXPECT_EQ(spiked.size(), 4);
}

TEST(OxPolygonSimplification, HeightIsMeasuredWithinThePlaneOfTheNormal) {
    ox_list<ox_3dvector> raised = square_with_middle();
    raised[1].z = 1.0f; // far from the line in space, but not in the plane
    ox_polygon::optimize_contour(raised, up, 0.01f);
    expect_same_elements(raised, rectangle(0, 0, 2, 2));
}

TEST(OxPolygonSimplification, FlatContourVanishesWithAPositiveToleranceAndWithZero) {
    for (const float tolerance : {0.1f, 0.0f}) {
        ox_list<ox_3dvector> flat =
            contour({ox_3dvector(0, 0, 0), ox_3dvector(1, 0, 0), ox_3dvector(3, 0, 0)});
        ox_polygon::optimize_contour(flat, up, tolerance);
        EXPECT_EQ(flat.size(), 0);
    }
}

TEST(OxPolygonSimplification, LoneVertexIsNoContourAndVanishes) {
    ox_list<ox_3dvector> one = contour({ox_3dvector(1, 2, 3)});
    ox_polygon::optimize_contour(one, 0.1f);
    EXPECT_EQ(one.size(), 0);
}

TEST(OxPolygonSimplification, ToleranceOfZeroDropsCollinearVerticesOnly) {
    ox_list<ox_3dvector> square = square_with_middle();
    ox_polygon::optimize_contour(square, up, 0.0f);
    expect_same_elements(square, rectangle(0, 0, 2, 2));
}

TEST(OxPolygonSimplification, NegativeToleranceAndOneThatIsNotANumberDropNothing) {
    for (const float tolerance : {-1.0f, -infinity, nan_value}) {
        ox_list<ox_3dvector> square = square_with_middle();
        ox_polygon::optimize_contour(square, up, tolerance);
        EXPECT_EQ(square.size(), 5);
        ox_polygon::optimize_contour(square, tolerance);
        EXPECT_EQ(square.size(), 5);
    }
}

TEST(OxPolygonSimplification, InfiniteToleranceLeavesNothing) {
    ox_list<ox_3dvector> square = square_with_middle();
    ox_polygon::optimize_contour(square, up, infinity);
    EXPECT_EQ(square.size(), 0);
}

TEST(OxPolygonSimplification, EmptyListsAndNegativeCountsStayEmpty) {
    for (const int size : {0, -3}) {
        ox_list<ox_3dvector> none(size);
        ox_polygon::optimize_contour(none, up, 0.1f);
        EXPECT_LE(none.size(), 0);
        ox_polygon::optimize_contour(none, 0.1f);
        EXPECT_LE(none.size(), 0);
    }
}

TEST(OxPolygonSimplification, NormalMayBeAVertexOfTheContour) {
    ox_list<ox_3dvector> triangle =
        contour({ox_3dvector(0, 0, 1), ox_3dvector(4, 0, 1), ox_3dvector(0, 4, 1)});
    ox_list<ox_3dvector> other = triangle;
    ox_polygon::optimize_contour(triangle, triangle[0], 0.5f);
    ox_polygon::optimize_contour(other, up, 0.5f);
    expect_same_elements(triangle, other);
}

TEST(OxPolygonSimplification, WithoutANormalAContourThatEnclosesNothingLosesItsShortEdgesOnly) {
    ox_list<ox_3dvector> flat = contour({ox_3dvector(0, 0, 0), ox_3dvector(1, 0, 0),
                                         ox_3dvector(1.001f, 0, 0), ox_3dvector(3, 0, 0)});
    ox_polygon::optimize_contour(flat, 0.1f);
    EXPECT_EQ(flat.size(), 3);
}

TEST(OxPolygonSimplification, WithoutANormalATiltedContourIsSimplifiedInItsOwnPlane) {
    support::generator random(5);
    const support::frame axes = support::random_frame(random);
    ox_list<ox_3dvector> tilted;
    for (const ox_3dvector& p : circle(100, 2.0f)) {
        tilted.push_right(p.x * axes.x + p.y * axes.y);
    }
    ox_list<ox_3dvector> given = tilted;
    ox_polygon::optimize_contour(tilted, 0.05f);
    ox_polygon::optimize_contour(given, axes.z, 0.05f);
    EXPECT_EQ(tilted.size(), given.size());
    EXPECT_GT(tilted.size(), 4);
    EXPECT_LT(tilted.size(), 50);
}

TEST(OxPolygonSimplification, AgreesWithThePlainVersionOnRandomAndDegenerateContours) {
    support::generator random(45);
    for (int round = 0; round < 20000; ++round) {
        const ox_list<ox_3dvector> original = random_contour(random);
        const float tolerances[] = {0.0f, 0.01f, 0.3f, 1.0f, 4.0f, 10.0f};
        const float tolerance = tolerances[random.between(0, 5)];
        ox_list<ox_3dvector> simplified = original;
        ox_polygon::optimize_contour(simplified, up, tolerance);
        const std::vector<ox_3dvector> expected =
            reference::simplify(plain(original), up, tolerance);
        ASSERT_EQ(simplified.size(), static_cast<int>(expected.size())) << "round " << round;
        for (int i = 0; i < simplified.size(); ++i) {
            ASSERT_TRUE(simplified[i] == expected[static_cast<std::size_t>(i)] ||
                        std::isnan(simplified[i].x))
                << "round " << round;
        }
    }
}

TEST(OxPolygonSimplification, LongZigzagThatLosesOneVertexPerPassIsAnsweredAtOnce) {
    ox_list<ox_3dvector> zigzag;
    for (int i = 0; i < 200000; ++i) {
        zigzag.push_right(ox_3dvector(i % 2 == 0 ? 0.0f : 1.5f, 0, 0));
    }
    zigzag.push_right(ox_3dvector(0.75f, 0, 0));
    zigzag.push_right(ox_3dvector(90, 0, 0));
    zigzag.push_right(ox_3dvector(0, 90, 0));
    ox_polygon::optimize_contour(zigzag, up, 10.0f);
    EXPECT_EQ(zigzag.size(), 3);
}

TEST(OxPolygonSimplification, PolygonKeepsItsPlaneAndRegionWithoutTheMiddleVertex) {
    ox_polygon polygon;
    polygon.add_contour(square_with_middle());
    polygon.add_contour(rectangle(0.5f, 0.5f, 1.5f, 1.5f));
    ox_polygon expected = rectangle_polygon(0, 0, 2, 2);
    expected.add_contour(rectangle(0.5f, 0.5f, 1.5f, 1.5f));
    polygon.optimize_contours(0.01f);
    expect_same_vector(polygon.get_normal(), up);
    EXPECT_EQ(polygon.get_contour_vertices().size(), 8);
    EXPECT_EQ(count_contours(polygon), 2);
    EXPECT_EQ(polygon.get_area(), expected.get_area());
    expect_invariants(polygon);
}

TEST(OxPolygonSimplification, PolygonWithNothingToDropIsLeftAsItIs) {
    ox_polygon polygon(ox_3dvector(9, 9, 0), ox_3dvector(0, 0, -1));
    polygon.add_contour(rectangle(0, 0, 2, 2));
    polygon.optimize_contours(0.1f);
    expect_same_vector(polygon.get_point(), ox_3dvector(9, 9, 0));
    expect_same_vector(polygon.get_normal(), ox_3dvector(0, 0, -1));
}

TEST(OxPolygonSimplification, ChangedPolygonTakesItsPlaneFromItsFirstContourAgain) {
    ox_polygon polygon(ox_3dvector(9, 9, 0), up);
    ox_list<ox_3dvector> bumped = square_with_middle();
    bumped[1].y = -0.01f;
    polygon.add_contour(bumped);
    polygon.optimize_contours(0.1f);
    EXPECT_EQ(polygon.get_contour_vertices().size(), 4);
    EXPECT_NE(polygon.get_point(), ox_3dvector(9, 9, 0));
    expect_same_vector(polygon.get_normal(), up);
}

TEST(OxPolygonSimplification, SmallHoleVanishesAndTheOutlineStays) {
    ox_polygon polygon = rectangle_polygon(0, 0, 2, 2);
    polygon.add_contour(rectangle(1, 1, 1.05f, 1.05f));
    ASSERT_EQ(count_contours(polygon), 2);
    polygon.optimize_contours(0.1f);
    EXPECT_EQ(count_contours(polygon), 1);
    EXPECT_NEAR(polygon.get_area(), 4.0f, 1e-5f);
}

TEST(OxPolygonSimplification, PolygonSmallerThanTheToleranceIsEmptyAfterwards) {
    ox_polygon polygon = rectangle_polygon(0, 0, 2, 2);
    polygon.optimize_contours(50.0f);
    expect_empty_region(polygon);
}

TEST(OxPolygonSimplification, EmptyPolygonStaysEmpty) {
    ox_polygon empty;
    empty.optimize_contours(0.1f);
    expect_empty_region(empty);
}
