// Setting, turning and transforming the plane of a polygon.

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>
#include <tests/support/generator.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_matrix;
using ox::ox_polygon;
using support::contour;
using support::rectangle;
using support::rectangle_polygon;

namespace {

const ox_3dvector up(0.0f, 0.0f, 1.0f);
const ox_3dvector down(0.0f, 0.0f, -1.0f);

void expect_triangles_wind_about_the_normal(ox_polygon& polygon) {
    const ox_list<ox_3dvector>& v = polygon.get_tesselation_vertices();
    const ox_list<unsigned int>& t = polygon.get_tesselation_triangles();
    for (int i = 0; i + 2 < t.size(); i += 3) {
        const ox_3dvector& a = v[static_cast<int>(t[i])];
        const ox_3dvector& b = v[static_cast<int>(t[i + 1])];
        const ox_3dvector& c = v[static_cast<int>(t[i + 2])];
        EXPECT_GT(ox_dot(ox_cross(b - a, c - a), polygon.get_normal()), 0.0f);
    }
}

} // namespace

TEST(OxPolygonPlane, StoredNormalIsNormalisedAgainWhenItsFrameIsBuilt) {
    support::generator random(31);
    for (int i = 0; i < 200; ++i) {
        const float x = random.grid(-5, 5);
        const float y = random.grid(-5, 5);
        const ox_3dvector given(x, y, 1.0f);
        ox_3dvector twice = given;
        twice.normalize();
        twice.normalize();
        expect_same_vector(ox_polygon(ox_3dvector(), given).get_normal(), twice);
    }
}

TEST(OxPolygonPlane, OppositeNormalReversesContoursAndRewindsTriangles) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    const ox_list<ox_3dvector> before = polygon.get_contour_vertices();
    polygon.get_area();
    polygon.set_normal(down);
    expect_same_vector(polygon.get_normal(), down);
    expect_same_elements(polygon.get_contour_vertices(), reversed(before));
    EXPECT_EQ(ox_polygon::is_clockwise(polygon.get_contour_vertices(), polygon.get_normal()), -1);
    expect_triangles_wind_about_the_normal(polygon);
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
}

TEST(OxPolygonPlane, TurnedNormalProjectsContoursAndTriangles) {
    ox_polygon polygon = rectangle_polygon(1, 0, 2, 1);
    const float area = polygon.get_area();
    polygon.set_normal(ox_3dvector(1.0f, 0.0f, 1.0f));
    const ox_3dvector p = polygon.get_point();
    for (const ox_3dvector& v : polygon.get_contour_vertices()) {
        EXPECT_NEAR(ox_dot(v - p, polygon.get_normal()), 0.0f, 1e-6f);
    }
    for (const ox_3dvector& v : polygon.get_tesselation_vertices()) {
        EXPECT_NEAR(ox_dot(v - p, polygon.get_normal()), 0.0f, 1e-6f);
    }
    EXPECT_EQ(polygon.get_area(), area) << "the area is kept";
}

TEST(OxPolygonPlane, ShortNormalIsIgnored) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.get_area();
    polygon.set_normal(ox_3dvector(0.00099f, 0.0f, 0.0f));
    expect_same_vector(polygon.get_normal(), up);
    polygon.set_normal(ox_3dvector());
    expect_same_vector(polygon.get_normal(), up);
}

TEST(OxPolygonPlane, NormalOfExactlyTheShortestLengthIsTaken) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.get_area();
    polygon.set_normal(ox_3dvector(0.001f, 0.0f, 0.0f));
    expect_same_vector(polygon.get_normal(), ox_3dvector(1.0f, 0.0f, 0.0f));
}

TEST(OxPolygonPlane, SetNormalGivesAPolygonWithoutPlaneOne) {
    ox_polygon polygon;
    polygon.set_normal(ox_3dvector(0.0f, 0.0f, -5.0f));
    polygon.add_contour(rectangle(0, 0, 1, 1));
    expect_same_vector(polygon.get_normal(), down);
}

TEST(OxPolygonPlane, SetNormalDoesNotTouchPendingContours) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 1, 1, 3.0f));
    polygon.set_normal(down);
    expect_same_vector(polygon.get_normal(), down);
    EXPECT_EQ(polygon.get_contour_vertices()[0].z, 0.0f) << "projected when merged";
}

TEST(OxPolygonPlane, SetPointWithoutPlaneOnlyStoresThePoint) {
    ox_polygon polygon;
    polygon.set_point(ox_3dvector(1.0f, 2.0f, 3.0f));
    expect_same_vector(polygon.get_point(), ox_3dvector(1.0f, 2.0f, 3.0f));
    expect_same_vector(polygon.get_normal(), ox_3dvector());
    polygon.add_contour(rectangle(0, 0, 1, 1));
    expect_same_vector(polygon.get_point(), ox_3dvector());
}

TEST(OxPolygonPlane, SetPointWithAnUnchangedNormalLeavesTheContoursWhereTheyAre) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.get_area();
    polygon.set_point(ox_3dvector(0.0f, 0.0f, 5.0f));
    expect_same_vector(polygon.get_point(), ox_3dvector(0.0f, 0.0f, 5.0f));
    EXPECT_EQ(polygon.get_contour_vertices()[0].z, 0.0f);
}

TEST(OxPolygonPlane, NextMergeBringsTheContoursIntoAMovedPlane) {
    ox_polygon polygon = rectangle_polygon(0, 0, 4, 4);
    polygon.get_area();
    polygon.set_point(ox_3dvector(0.0f, 0.0f, 5.0f));
    polygon.add_contour(rectangle(1, 1, 2, 2));
    for (const ox_3dvector& v : polygon.get_contour_vertices()) {
        EXPECT_EQ(v.z, 5.0f);
    }
}

TEST(OxPolygonPlane, ReverseTurnsThePolygonOver) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 4, 4));
    polygon.add_contour(rectangle(1, 1, 2, 2));
    const float area = polygon.get_area();
    ox_polygon before(polygon);
    polygon.reverse();
    expect_same_vector(polygon.get_normal(), down);
    for (int c = 0; c < 2; ++c) {
        expect_same_elements(contour_of(polygon, c), reversed(contour_of(before, c)));
    }
    expect_same_elements(polygon.get_contour_parents(), before.get_contour_parents());
    expect_same_elements(polygon.get_contour_orientations(), before.get_contour_orientations());
    expect_triangles_wind_about_the_normal(polygon);
    EXPECT_EQ(polygon.get_area(), area);
}

TEST(OxPolygonPlane, ReverseTwiceRestoresContoursAndTriangles) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 4, 4));
    polygon.add_contour(rectangle(1, 1, 2, 2));
    polygon.get_area();
    ox_polygon before(polygon);
    polygon.reverse();
    polygon.reverse();
    expect_same_contours(polygon, before);
    expect_same_elements(polygon.get_tesselation_triangles(), before.get_tesselation_triangles());
}

TEST(OxPolygonPlane, FrameStaysRightHandedAfterReverse) {
    ox_polygon polygon = rectangle_polygon(0, 0, 4, 4);
    polygon.reverse();
    polygon.add_contour(rectangle(1, 1, 2, 2));
    EXPECT_FLOAT_EQ(polygon.get_area(), 15.0f);
    EXPECT_EQ(ox_polygon::is_clockwise(contour_of(polygon, 0), polygon.get_normal()), -1);
    EXPECT_EQ(ox_polygon::is_clockwise(contour_of(polygon, 1), polygon.get_normal()), 1);
}

TEST(OxPolygonPlane, TranslationMovesPointAndContoursOnly) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.get_bounding_box();
    ox_matrix m;
    m.translation(ox_3dvector(10.0f, 20.0f, 30.0f));
    polygon.matrix_transform(m);
    expect_same_vector(polygon.get_point(), ox_3dvector(10.0f, 20.0f, 30.0f));
    expect_same_vector(polygon.get_normal(), up);
    expect_same_vector(polygon.get_bounding_box().origin, ox_3dvector(10.0f, 20.0f, 30.0f));
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
}

TEST(OxPolygonPlane, ScalingIsNotNormalisedAway) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.get_area();
    ox_matrix m;
    m.scaling(2.0f, 2.0f, 2.0f);
    polygon.matrix_transform(m);
    expect_same_vector(polygon.get_normal(), ox_3dvector(0.0f, 0.0f, 2.0f));
    EXPECT_FLOAT_EQ(polygon.get_area(), 4.0f) << "the tessellation is computed anew";
}

TEST(OxPolygonPlane, IsClockwiseTellsTheSide) {
    EXPECT_EQ(ox_polygon::is_clockwise(rectangle(0, 0, 1, 1), up), -1);
    EXPECT_EQ(ox_polygon::is_clockwise(rectangle(0, 0, 1, 1), down), 1);
    EXPECT_EQ(ox_polygon::is_clockwise(reversed(rectangle(0, 0, 1, 1)), up), 1);
}

TEST(OxPolygonPlane, IsClockwiseOfAnEmptyContourIsMinusOne) {
    EXPECT_EQ(ox_polygon::is_clockwise(ox_list<ox_3dvector>(), up), -1);
}

TEST(OxPolygonPlane, IsClockwiseOfCoincidingVerticesIsZero) {
    const ox_3dvector a(1.0f, 2.0f, 3.0f);
    EXPECT_EQ(ox_polygon::is_clockwise(contour({a}), up), 0);
    EXPECT_EQ(ox_polygon::is_clockwise(contour({a, a, a, a}), up), 0);
}

TEST(OxPolygonPlane, IsClockwiseOfTwoDifferentVerticesIsZero) {
    const ox_3dvector a(1.0f, 2.0f, 3.0f);
    const ox_3dvector b(2.0f, 2.0f, 3.0f);
    EXPECT_EQ(ox_polygon::is_clockwise(contour({a, b}), up), 0);
    EXPECT_EQ(ox_polygon::is_clockwise(contour({a, a, b, b}), up), 0);
    EXPECT_EQ(ox_polygon::is_clockwise(contour({a, b, b, a}), up), 0);
}

TEST(OxPolygonPlane, IsClockwiseSkipsRepeatedVertices) {
    const ox_3dvector a(0.0f, 0.0f, 0.0f);
    const ox_3dvector b(1.0f, 0.0f, 0.0f);
    const ox_3dvector c(0.0f, 1.0f, 0.0f);
    EXPECT_EQ(ox_polygon::is_clockwise(contour({a, a, b, b, b, c, a}), up), -1);
    EXPECT_EQ(ox_polygon::is_clockwise(contour({c, c, b, a, a, c}), up), 1);
}

TEST(OxPolygonPlane, IsClockwiseOfCollinearVerticesIsMinusOne) {
    EXPECT_EQ(ox_polygon::is_clockwise(
                  contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(1.0f, 0.0f, 0.0f),
                           ox_3dvector(2.0f, 0.0f, 0.0f)}),
                  up),
              -1);
}

TEST(OxPolygonPlane, PartsOfThePolygonMayBeGivenToItself) {
    ox_polygon polygon = rectangle_polygon(1, 1, 2, 2);
    polygon.get_area();
    polygon.set_point(polygon.get_contour_vertices()[2]);
    expect_same_vector(polygon.get_point(), polygon.get_contour_vertices()[2]);
    polygon.set_normal(polygon.get_normal());
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
}
