// Merging of added contours into outer boundaries and holes.

#include <limits>

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using support::contour;
using support::rectangle;
using support::rectangle_polygon;

namespace {

const ox_3dvector up(0.0f, 0.0f, 1.0f);
const ox_3dvector down(0.0f, 0.0f, -1.0f);

ox_list<ox_3dvector> triangle(float x, float y) {
    return contour(
        {ox_3dvector(x, y, 0.0f), ox_3dvector(x + 1.0f, y, 0.0f), ox_3dvector(x, y + 1.0f, 0.0f)});
}

} // namespace

TEST(OxPolygonContours, SquareAddedCounterClockwiseLooksUp) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    expect_same_vector(polygon.get_normal(), up);
    ASSERT_EQ(count_contours(polygon), 1);
    EXPECT_TRUE(polygon.get_contour_orientations()[0]);
    EXPECT_EQ(polygon.get_contour_parents()[0], -1);
}

TEST(OxPolygonContours, SquareAddedClockwiseLooksDown) {
    ox_polygon polygon;
    polygon.add_contour(reversed(rectangle(0, 0, 1, 1)));
    expect_same_vector(polygon.get_normal(), down);
    ASSERT_EQ(count_contours(polygon), 1);
    EXPECT_TRUE(polygon.get_contour_orientations()[0]);
    EXPECT_EQ(polygon.get_contour_parents()[0], -1);
}

TEST(OxPolygonContours, SquareInsideASquareIsAHoleInEitherDirection) {
    for (const bool turned : {false, true}) {
        ox_polygon polygon;
        polygon.add_contour(rectangle(0, 0, 4, 4));
        polygon.add_contour(turned ? reversed(rectangle(1, 1, 2, 2)) : rectangle(1, 1, 2, 2));
        ASSERT_EQ(count_contours(polygon), 2);
        EXPECT_TRUE(polygon.get_contour_orientations()[0]);
        EXPECT_EQ(polygon.get_contour_parents()[0], -1);
        EXPECT_FALSE(polygon.get_contour_orientations()[1]);
        EXPECT_EQ(polygon.get_contour_parents()[1], 0);
        EXPECT_EQ(ox_polygon::is_clockwise(contour_of(polygon, 0), up), -1);
        EXPECT_EQ(ox_polygon::is_clockwise(contour_of(polygon, 1), up), 1);
    }
}

TEST(OxPolygonContours, IslandInAHoleIsAnOuterContourOfTheHole) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 9, 9));
    polygon.add_contour(rectangle(1, 1, 8, 8));
    polygon.add_contour(rectangle(2, 2, 7, 7));
    ASSERT_EQ(count_contours(polygon), 3);
    EXPECT_TRUE(polygon.get_contour_orientations()[2]);
    EXPECT_EQ(polygon.get_contour_parents()[2], 1);
    EXPECT_EQ(polygon.count_outer_contours(), 2);
}

TEST(OxPolygonContours, OverlappingSquaresLeaveTheirSymmetricDifference) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 2, 2));
    polygon.add_contour(rectangle(1, 1, 3, 3));
    EXPECT_FLOAT_EQ(polygon.get_area(), 6.0f);
}

TEST(OxPolygonContours, TheSameContourTwiceLeavesNothing) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 2, 2));
    polygon.add_contour(rectangle(0, 0, 2, 2));
    expect_empty_region(polygon);
}

TEST(OxPolygonContours, ContoursAddedAfterAQueryMergeWithTheEarlierOnes) {
    ox_polygon polygon = rectangle_polygon(0, 0, 4, 4);
    EXPECT_FLOAT_EQ(polygon.get_area(), 16.0f);
    polygon.add_contour(rectangle(1, 1, 2, 2));
    EXPECT_FLOAT_EQ(polygon.get_area(), 15.0f);
    EXPECT_EQ(count_contours(polygon), 2);
}

TEST(OxPolygonContours, LaterContoursAreProjectedOnThePlane) {
    ox_polygon polygon = rectangle_polygon(0, 0, 4, 4);
    polygon.add_contour(rectangle(1, 1, 2, 2, 7.0f));
    for (const ox_3dvector& v : polygon.get_contour_vertices()) {
        EXPECT_EQ(v.z, 0.0f);
    }
}

TEST(OxPolygonContours, CoordinatesAreRoundedToTheGridHalfAwayFromZero) {
    ox_polygon polygon(ox_3dvector(), up);
    polygon.add_contour(rectangle(-0.00016f, -0.00016f, 1.00004f, 1.00004f));
    for (const ox_3dvector& v : polygon.get_contour_vertices()) {
        EXPECT_TRUE(v.x == 1.0f || v.x == -2.0f * 0.0001f) << v.x;
        EXPECT_TRUE(v.y == 1.0f || v.y == -2.0f * 0.0001f) << v.y;
    }
}

TEST(OxPolygonContours, EmptyContourIsIgnored) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    const float area = polygon.get_area();
    polygon.add_contour(ox_list<ox_3dvector>());
    polygon.add_contour(ox_list<ox_3dvector>(-3));
    EXPECT_EQ(polygon.get_area(), area);
}

TEST(OxPolygonContours, ContourOfTwoPointsChangesNothing) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    ox_polygon before(polygon);
    polygon.add_contour(contour({ox_3dvector(5.0f, 5.0f, 0.0f), ox_3dvector(6.0f, 5.0f, 0.0f)}));
    expect_same_contours(polygon, before);
}

TEST(OxPolygonContours, TriangleAddedToAQueriedPolygonReplacesItsContours) {
    ox_polygon polygon = rectangle_polygon(0, 0, 4, 4);
    polygon.get_area();
    polygon.add_contour(triangle(1, 1));
    ASSERT_EQ(count_contours(polygon), 1);
    expect_same_elements(polygon.get_contour_vertices(), triangle(1, 1));
    EXPECT_FLOAT_EQ(polygon.get_area(), 0.5f);
}

TEST(OxPolygonContours, LoneTriangleIsNotProjectedOnThePlane) {
    ox_polygon polygon(ox_3dvector(), up);
    polygon.add_contour(contour({ox_3dvector(0.0f, 0.0f, 3.0f), ox_3dvector(1.0f, 0.0f, 4.0f),
                                 ox_3dvector(0.0f, 1.0f, 5.0f)}));
    EXPECT_EQ(polygon.get_contour_vertices()[0].z, 3.0f);
    EXPECT_EQ(polygon.get_contour_vertices()[2].z, 5.0f);
}

TEST(OxPolygonContours, LoneTriangleThatRunsClockwiseIsReversed) {
    ox_polygon polygon(ox_3dvector(), up);
    polygon.add_contour(reversed(triangle(0, 0)));
    expect_same_elements(polygon.get_contour_vertices(), triangle(0, 0));
}

TEST(OxPolygonContours, ThreePendingVerticesOfSeveralContoursMakeTheLoneTriangle) {
    ox_polygon polygon = rectangle_polygon(0, 0, 4, 4);
    polygon.get_area();
    polygon.add_contour(contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(1.0f, 0.0f, 0.0f)}));
    polygon.add_contour(contour({ox_3dvector(0.0f, 1.0f, 0.0f)}));
    ASSERT_EQ(count_contours(polygon), 1);
    expect_same_elements(polygon.get_contour_vertices(), triangle(0, 0));
}

TEST(OxPolygonContours, TwoTrianglesAddedTogetherAreMerged) {
    ox_polygon polygon;
    polygon.add_contour(triangle(0, 0));
    polygon.add_contour(triangle(5, 5));
    EXPECT_EQ(polygon.count_outer_contours(), 2);
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
}

TEST(OxPolygonContours, FlatFirstContourDropsTheWholeBatch) {
    ox_polygon polygon;
    polygon.add_contour(contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(1.0f, 0.0f, 0.0f),
                                 ox_3dvector(2.0f, 0.0f, 0.0f)}));
    polygon.add_contour(rectangle(0, 0, 1, 1));
    expect_empty_region(polygon);
    expect_same_vector(polygon.get_normal(), ox_3dvector());
    polygon.add_contour(rectangle(0, 0, 1, 1));
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
}

TEST(OxPolygonContours, CollinearAndRepeatedVerticesVanish) {
    ox_polygon polygon(ox_3dvector(), up);
    polygon.add_contour(contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(0.0f, 0.0f, 0.0f),
                                 ox_3dvector(1.0f, 0.0f, 0.0f), ox_3dvector(2.0f, 0.0f, 0.0f),
                                 ox_3dvector(2.0f, 2.0f, 0.0f), ox_3dvector(0.0f, 2.0f, 0.0f)}));
    ASSERT_EQ(count_contours(polygon), 1);
    EXPECT_EQ(polygon.get_contour_sizes()[0], 4u);
}

TEST(OxPolygonContours, SpikesVanish) {
    ox_polygon polygon(ox_3dvector(), up);
    polygon.add_contour(contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(2.0f, 0.0f, 0.0f),
                                 ox_3dvector(2.0f, 2.0f, 0.0f), ox_3dvector(2.0f, 5.0f, 0.0f),
                                 ox_3dvector(2.0f, 2.0f, 0.0f), ox_3dvector(0.0f, 2.0f, 0.0f)}));
    EXPECT_FLOAT_EQ(polygon.get_area(), 4.0f);
    EXPECT_FLOAT_EQ(polygon.get_perimeter(), 8.0f);
}

TEST(OxPolygonContours, FigureOfEightBecomesTwoOuterContours) {
    ox_polygon polygon(ox_3dvector(), up);
    polygon.add_contour(contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(2.0f, 2.0f, 0.0f),
                                 ox_3dvector(2.0f, 0.0f, 0.0f), ox_3dvector(0.0f, 2.0f, 0.0f)}));
    EXPECT_EQ(polygon.count_outer_contours(), 2);
    EXPECT_FLOAT_EQ(polygon.get_area(), 2.0f);
}

TEST(OxPolygonContours, AContourOfTheSamePolygonMayBeAdded) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.add_contour(polygon.get_contour_vertices());
    expect_empty_region(polygon);
}

TEST(OxPolygonContours, DeeplyNestedSquaresAreWalkedWithoutRecursion) {
    ox_polygon polygon(ox_3dvector(), up);
    const int depth = 10000;
    for (int i = 0; i < depth; ++i) {
        const float half = static_cast<float>(2 * depth - i) * 0.01f;
        polygon.add_contour(rectangle(-half, -half, half, half));
    }
    ASSERT_EQ(count_contours(polygon), depth);
    EXPECT_EQ(polygon.count_outer_contours(), depth / 2);
    EXPECT_EQ(polygon.get_contour_parents()[depth - 1], depth - 2);
}

TEST(OxPolygonContours, ManyDisjointContoursInOneBatch) {
    ox_polygon polygon(ox_3dvector(), up);
    for (int i = 0; i < 50; ++i) {
        for (int j = 0; j < 50; ++j) {
            const float x = static_cast<float>(2 * i);
            const float y = static_cast<float>(2 * j);
            polygon.add_contour(rectangle(x, y, x + 1.0f, y + 1.0f));
        }
    }
    EXPECT_EQ(polygon.count_outer_contours(), 2500);
    EXPECT_FLOAT_EQ(polygon.get_area(), 2500.0f);
}
