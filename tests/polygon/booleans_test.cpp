// Union, difference and intersection.

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using ox::ox_polygon;
using support::generator;
using support::rectangle;
using support::rectangle_polygon;

namespace {

ox_polygon tangle_polygon(generator& random) {
    ox_polygon polygon(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
    polygon.add_contour(support::random_tangle(random, random.between(4, 12), 8));
    return polygon;
}

ox_polygon united(const ox_polygon& a, const ox_polygon& b) {
    ox_polygon result(a);
    result.unites(b);
    return result;
}

ox_polygon subtracted(const ox_polygon& a, const ox_polygon& b) {
    ox_polygon result(a);
    result.substracts(b);
    return result;
}

ox_polygon intersected(const ox_polygon& a, const ox_polygon& b) {
    ox_polygon result(a);
    result.intersects(b);
    return result;
}

// Each of the few hundred crossings of two tangles moves by half a grid step at most, along
// edges no longer than 23.
constexpr float area_tolerance = 0.02f;

} // namespace

TEST(OxPolygonBooleans, UnitingTouchingSquaresGivesOneOuterContour) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.unites(rectangle_polygon(1, 0, 2, 1));
    EXPECT_EQ(polygon.count_outer_contours(), 1);
    EXPECT_EQ(count_contours(polygon), 1);
    EXPECT_NEAR(polygon.get_area(), 2.0f, 1e-5f);
}

TEST(OxPolygonBooleans, SubtractingAnInnerSquareLeavesAHole) {
    ox_polygon polygon = rectangle_polygon(0, 0, 4, 4);
    polygon.substracts(rectangle_polygon(1, 1, 2, 2));
    ASSERT_EQ(count_contours(polygon), 2);
    EXPECT_TRUE(polygon.get_contour_orientations()[0]);
    EXPECT_EQ(polygon.get_contour_parents()[0], -1);
    EXPECT_FALSE(polygon.get_contour_orientations()[1]);
    EXPECT_EQ(polygon.get_contour_parents()[1], 0);
}

TEST(OxPolygonBooleans, OppositeNormalOfTheOtherChangesNothing) {
    const ox_polygon window = rectangle_polygon(1, 1, 2, 3);
    ox_polygon turned(window);
    turned.reverse();
    ox_polygon a = subtracted(rectangle_polygon(0, 0, 4, 4), window);
    ox_polygon b = subtracted(rectangle_polygon(0, 0, 4, 4), turned);
    expect_same_contours(a, b);
}

TEST(OxPolygonBooleans, IntersectingWithAnEmptyPolygonEmptiesThisOne) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.intersects(ox_polygon());
    expect_empty_region(polygon);
    polygon.add_contour(reversed(rectangle(0, 0, 1, 1)));
    EXPECT_EQ(polygon.get_normal().z, -1.0f) << "the plane was cleared as well";
}

TEST(OxPolygonBooleans, SubtractingOfOrFromAnEmptyPolygonChangesNothing) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.substracts(ox_polygon());
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
    ox_polygon empty;
    empty.substracts(polygon);
    expect_empty_region(empty);
}

TEST(OxPolygonBooleans, UnitingAnEmptyPolygonChangesNothing) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.unites(ox_polygon());
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
}

TEST(OxPolygonBooleans, IntersectingAnEmptyPolygonDoesNothing) {
    ox_polygon empty(ox_3dvector(), ox_3dvector(0.0f, 1.0f, 0.0f));
    empty.intersects(rectangle_polygon(0, 0, 1, 1));
    expect_empty_region(empty);
    EXPECT_EQ(empty.get_normal().y, 1.0f);
}

TEST(OxPolygonBooleans, UnitingIntoAnEmptyPolygonTakesTheRegionIntoItsFrame) {
    ox_polygon polygon(ox_3dvector(0.0f, 0.0f, 2.0f), ox_3dvector(0.0f, 0.0f, 1.0f));
    polygon.unites(rectangle_polygon(0, 0, 1, 1));
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
    EXPECT_EQ(polygon.get_contour_vertices()[0].z, 2.0f);
}

TEST(OxPolygonBooleans, UnitingIntoAPolygonWithoutPlaneTakesThePlaneOfTheOther) {
    ox_polygon polygon;
    polygon.unites(rectangle_polygon(0, 0, 1, 1, 3.0f));
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
    EXPECT_EQ(polygon.get_normal().z, 1.0f);
    EXPECT_EQ(polygon.get_contour_vertices()[0].z, 3.0f);
}

TEST(OxPolygonBooleans, DisjointIntersectionLeavesThePlane) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.intersects(rectangle_polygon(5, 5, 6, 6));
    expect_empty_region(polygon);
    EXPECT_EQ(polygon.get_normal().z, 1.0f);
    polygon.add_contour(reversed(rectangle(0, 0, 1, 1)));
    EXPECT_EQ(polygon.get_normal().z, 1.0f);
}

TEST(OxPolygonBooleans, DistanceOfTheOtherFromThePlaneIsDropped) {
    ox_polygon polygon = rectangle_polygon(0, 0, 2, 2);
    polygon.intersects(rectangle_polygon(1, 1, 3, 3, 50.0f));
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
    EXPECT_EQ(polygon.get_contour_vertices()[0].z, 0.0f);
}

TEST(OxPolygonBooleans, PendingContoursOfBothAreMergedFirst) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 4, 4));
    ox_polygon other;
    other.add_contour(rectangle(1, 1, 3, 3));
    polygon.substracts(other);
    EXPECT_FLOAT_EQ(polygon.get_area(), 12.0f);
}

TEST(OxPolygonBooleans, TheOtherPolygonIsNotChanged) {
    ox_polygon other = rectangle_polygon(1, 1, 3, 3);
    ox_polygon before(other);
    ox_polygon polygon = rectangle_polygon(0, 0, 2, 2);
    polygon.substracts(other);
    expect_same_contours(other, before);
}

TEST(OxPolygonBooleans, PolygonCombinedWithItself) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 4, 4));
    polygon.add_contour(rectangle(1, 1, 2, 2));
    polygon.unites(polygon);
    EXPECT_FLOAT_EQ(polygon.get_area(), 15.0f);
    polygon.intersects(polygon);
    EXPECT_FLOAT_EQ(polygon.get_area(), 15.0f);
    polygon.substracts(polygon);
    expect_empty_region(polygon);
    EXPECT_EQ(polygon.get_normal().z, 1.0f);
}

TEST(OxPolygonBooleans, AreasOfUnionAndIntersectionAddUp) {
    generator random(20261);
    for (int round = 0; round < 200; ++round) {
        ox_polygon a = tangle_polygon(random);
        ox_polygon b = tangle_polygon(random);
        ox_polygon either = united(a, b);
        ox_polygon both = intersected(a, b);
        EXPECT_NEAR(a.get_area() + b.get_area(), either.get_area() + both.get_area(),
                    area_tolerance)
            << "round " << round;
        expect_invariants(either);
        expect_invariants(both);
    }
}

TEST(OxPolygonBooleans, DifferenceAndIntersectionMakeTheWhole) {
    generator random(20262);
    for (int round = 0; round < 200; ++round) {
        ox_polygon a = tangle_polygon(random);
        ox_polygon b = tangle_polygon(random);
        ox_polygon rest = subtracted(a, b);
        ox_polygon both = intersected(a, b);
        EXPECT_NEAR(a.get_area(), rest.get_area() + both.get_area(), area_tolerance)
            << "round " << round;
    }
}

TEST(OxPolygonBooleans, OrderOfTheOperandsDoesNotMatterForUnionAndIntersection) {
    generator random(20263);
    for (int round = 0; round < 200; ++round) {
        ox_polygon a = tangle_polygon(random);
        ox_polygon b = tangle_polygon(random);
        EXPECT_NEAR(united(a, b).get_area(), united(b, a).get_area(), area_tolerance);
        EXPECT_NEAR(intersected(a, b).get_area(), intersected(b, a).get_area(), area_tolerance);
    }
}

TEST(OxPolygonBooleans, ResultsLieInThePlaneOfThisPolygonInAnyOrientation) {
    generator random(20264);
    for (int round = 0; round < 100; ++round) {
        const support::frame axes = support::random_frame(random);
        const ox_3dvector origin = support::random_point(random, 100.0);
        ox_polygon a(origin, axes.z);
        a.add_contour(
            support::contour({origin, origin + axes.x * 4.0f,
                              origin + axes.x * 4.0f + axes.y * 4.0f, origin + axes.y * 4.0f}));
        ox_polygon b(origin, -axes.z);
        const ox_3dvector corner = origin + axes.x * 1.0f + axes.y * 1.0f;
        b.add_contour(
            support::contour({corner, corner + axes.x * 2.0f,
                              corner + axes.x * 2.0f + axes.y * 2.0f, corner + axes.y * 2.0f}));
        a.substracts(b);
        EXPECT_NEAR(a.get_area(), 12.0f, 0.01f);
        for (const ox_3dvector& v : a.get_contour_vertices()) {
            EXPECT_NEAR(ox_dot(v - origin, axes.z), 0.0f, 1e-4f);
        }
    }
}
