// Growing and shrinking of the outline.

#include <algorithm>
#include <cmath>
#include <limits>

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using support::rectangle;
using support::rectangle_polygon;

namespace {

const float infinity = std::numeric_limits<float>::infinity();

void expect_unchanged_by(float distance, int join) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    ox_polygon before(polygon);
    polygon.offset(distance, join);
    expect_same_contours(polygon, before);
}

void expect_emptied_by(float distance, int join) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.offset(distance, join);
    expect_empty_region(polygon);
    EXPECT_EQ(polygon.get_normal().z, 1.0f);
}

} // namespace

TEST(OxPolygonOffset, RoundOffsetOfAUnitSquareIsARoundedSquare) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.offset(0.5f, ox_polygon::join_round);
    ASSERT_EQ(count_contours(polygon), 1);
    const ox::ox_box& box = polygon.get_bounding_box();
    EXPECT_NEAR(box.origin.x, -0.5f, 1e-4f);
    EXPECT_NEAR(box.origin.y, -0.5f, 1e-4f);
    EXPECT_NEAR(box.size.x, 2.0f, 2e-4f);
    EXPECT_NEAR(box.size.y, 2.0f, 2e-4f);
    EXPECT_NEAR(polygon.get_area(), 3.0f + 3.14159265f * 0.25f, 1e-3f);
}

TEST(OxPolygonOffset, SquareOffsetThatSwallowsTheSquareLeavesNoContour) {
    expect_emptied_by(-0.6f, ox_polygon::join_square);
}

TEST(OxPolygonOffset, MitredOffsetKeepsRightCorners) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.offset(0.5f, ox_polygon::join_miter);
    EXPECT_EQ(polygon.get_contour_sizes()[0], 4u);
    EXPECT_FLOAT_EQ(polygon.get_area(), 4.0f);
}

TEST(OxPolygonOffset, SquareOffsetCutsTheCorners) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.offset(0.5f, ox_polygon::join_square);
    EXPECT_EQ(polygon.get_contour_sizes()[0], 8u);
    EXPECT_LT(polygon.get_area(), 4.0f);
}

TEST(OxPolygonOffset, NegativeOffsetShrinks) {
    ox_polygon polygon = rectangle_polygon(0, 0, 4, 4);
    polygon.offset(-1.0f, ox_polygon::join_miter);
    EXPECT_FLOAT_EQ(polygon.get_area(), 4.0f);
}

TEST(OxPolygonOffset, PositiveOffsetShrinksHoles) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 10, 10));
    polygon.add_contour(rectangle(3, 3, 7, 7));
    polygon.offset(1.0f, ox_polygon::join_miter);
    EXPECT_EQ(count_contours(polygon), 2);
    EXPECT_FLOAT_EQ(polygon.get_area(), 144.0f - 4.0f);
}

TEST(OxPolygonOffset, OffsetOfAReversedPolygonGrowsAsWell) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.reverse();
    polygon.offset(0.5f, ox_polygon::join_miter);
    EXPECT_FLOAT_EQ(polygon.get_area(), 4.0f);
    EXPECT_EQ(polygon.get_normal().z, -1.0f);
}

TEST(OxPolygonOffset, ZeroOffsetKeepsTheRegion) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.offset(0.0f, ox_polygon::join_round);
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
}

TEST(OxPolygonOffset, OffsetOfAnEmptyPolygonDoesNothing) {
    ox_polygon polygon;
    polygon.offset(1.0f, ox_polygon::join_round);
    expect_empty_region(polygon);
}

TEST(OxPolygonOffset, UnknownJoinTypesAreSquare) {
    ox_polygon square = rectangle_polygon(0, 0, 1, 1);
    square.offset(0.5f, ox_polygon::join_square);
    for (const int join : {-1, 3, 1000, std::numeric_limits<int>::min()}) {
        ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
        polygon.offset(0.5f, join);
        expect_same_contours(polygon, square);
    }
}

TEST(OxPolygonOffset, PositiveDistanceOutOfReachLeavesThePolygonUnchanged) {
    for (const int join : {0, 1, 2}) {
        expect_unchanged_by(infinity, join);
        expect_unchanged_by(std::numeric_limits<float>::max(), join);
        expect_unchanged_by(3e14f, join);
        expect_unchanged_by(std::nanf(""), join);
    }
}

TEST(OxPolygonOffset, NegativeDistanceOutOfReachLeavesNoContour) {
    for (const int join : {0, 1, 2}) {
        expect_emptied_by(-infinity, join);
        expect_emptied_by(-std::numeric_limits<float>::max(), join);
        expect_emptied_by(-3e14f, join);
    }
}

TEST(OxPolygonOffset, LongDistancesWithoutArcsWork) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.offset(1e9f, ox_polygon::join_miter);
    EXPECT_FLOAT_EQ(polygon.get_bounding_box().size.x, 2e9f);
}

TEST(OxPolygonOffset, LongRoundOffsetOfASquareIsACircle) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.offset(2000000.0f, ox_polygon::join_round);
    float right = 0.0f;
    for (const ox_3dvector& v : polygon.get_contour_vertices()) {
        right = std::max(right, v.x);
    }
    EXPECT_FLOAT_EQ(right, 2000001.0f);
    EXPECT_GT(polygon.get_contour_sizes()[0], 600000u);
}

TEST(OxPolygonOffset, ShrinkingRoundOffsetHasNoArcsAtConvexCorners) {
    expect_emptied_by(-1e13f, ox_polygon::join_round);
}

TEST(OxPolygonOffset, RoundOffsetWithTooManyArcVerticesIsOutOfReach) {
    expect_unchanged_by(1300000000.0f, ox_polygon::join_round);
}

// A façade in millimetres. The arcs around the inner corners of the notches count, and not those
// that its other corners would have if it grew.
TEST(OxPolygonOffset, LargeSquareWithHundredsOfNotchesShrinksRoundly) {
    ox_list<ox_3dvector> notched;
    const int notches = 200;
    for (int i = 0; i < notches; ++i) {
        const float x = 500.0f * static_cast<float>(i) + 100.0f;
        notched.push_right(ox_3dvector(x, 0.0f, 0.0f));
        notched.push_right(ox_3dvector(x, 100.0f, 0.0f));
        notched.push_right(ox_3dvector(x + 200.0f, 100.0f, 0.0f));
        notched.push_right(ox_3dvector(x + 200.0f, 0.0f, 0.0f));
    }
    notched.push_right(ox_3dvector(100000.0f, 0.0f, 0.0f));
    notched.push_right(ox_3dvector(100000.0f, 100000.0f, 0.0f));
    notched.push_right(ox_3dvector(0.0f, 100000.0f, 0.0f));
    notched.push_right(ox_3dvector(0.0f, 0.0f, 0.0f));
    ox_polygon polygon(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
    polygon.add_contour(notched);
    polygon.offset(-10000.0f, ox_polygon::join_round);
    ASSERT_EQ(count_contours(polygon), 1);
    EXPECT_GT(polygon.get_contour_sizes()[0], 10000u);
}

TEST(OxPolygonOffset, OffsetOutAndBackRestoresAConvexRegion) {
    support::generator random(20271);
    for (int round = 0; round < 50; ++round) {
        const float width = random.grid(1, 20);
        const float height = random.grid(1, 20);
        const float distance = random.grid(1, 5);
        ox_polygon polygon = rectangle_polygon(0, 0, width, height);
        const float area = polygon.get_area();
        polygon.offset(distance, ox_polygon::join_miter);
        polygon.offset(-distance, ox_polygon::join_miter);
        EXPECT_NEAR(polygon.get_area(), area, 0.02f);
    }
}
