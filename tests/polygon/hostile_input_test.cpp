// Whatever a caller hands in: the polygon neither crashes nor hangs, and stays usable.

#include <limits>

#include <gtest/gtest.h>

#include <ox/polygon/ox_polygon.h>
#include <tests/support/measures.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_matrix;
using ox::ox_polygon;
using support::contour;
using support::generator;
using support::rectangle;
using support::rectangle_polygon;

const float not_a_number = std::numeric_limits<float>::quiet_NaN();
const float infinite = std::numeric_limits<float>::infinity();
const float huge = std::numeric_limits<float>::max();

void delete_pieces(const ox_list<ox_polygon*>& pieces, const ox_polygon& source) {
    for (ox_polygon* piece : pieces) {
        if (piece != &source) {
            delete piece;
        }
    }
}

/// Runs every operation on a polygon, alone and with a square.
void exercise(const ox_polygon& source, const ox_3dvector& point, const ox_3dvector& normal) {
    ox_polygon polygon = source;
    polygon.get_area();
    polygon.get_perimeter();
    polygon.get_best_center();
    polygon.contains(point);
    polygon.is_convex(-1);
    polygon.is_convex(1);
    polygon.may_intersect(polygon.get_bounding_box());
    polygon.intersect_by_plane(point, normal);
    delete_pieces(polygon.cut_by_plane(point, normal, true), polygon);
    delete_pieces(polygon.split_to_polygons(), polygon);
    delete_pieces(polygon.split_to_convex_polygons(), polygon);
    const ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    ox_polygon united = polygon;
    united.unites(square);
    united.get_area();
    ox_polygon rest = square;
    rest.substracts(polygon);
    rest.get_area();
    ox_polygon common = polygon;
    common.intersects(square);
    common.get_area();
    polygon.reverse();
    polygon.offset(0.5f, ox_polygon::join_miter);
    polygon.set_point(point);
    polygon.set_normal(normal);
    polygon.get_area();
    polygon.get_best_center();
}

void exercise(const ox_polygon& polygon) {
    exercise(polygon, ox_3dvector(0.5f, 0.5f, 0.0f), ox_3dvector(1.0f, 0.0f, 0.0f));
}

class OxPolygonWithCoordinate : public ::testing::TestWithParam<float> {};

TEST_P(OxPolygonWithCoordinate, ContourIsDroppedAloneAndTheGoodOneKept) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0.0f, 0.0f, 1.0f, 1.0f));
    polygon.add_contour(contour({ox_3dvector(5.0f, 0.0f, 0.0f), ox_3dvector(GetParam(), 1.0f, 0.0f),
                                 ox_3dvector(5.0f, 5.0f, 0.0f), ox_3dvector(4.0f, 2.0f, 0.0f)}));
    EXPECT_EQ(polygon.get_contour_sizes().size(), 1);
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
    exercise(polygon);
}

TEST_P(OxPolygonWithCoordinate, FirstContourIsDroppedAndTheNextGivesThePlane) {
    ox_polygon polygon;
    polygon.add_contour(contour({ox_3dvector(5.0f, 0.0f, 0.0f), ox_3dvector(GetParam(), 1.0f, 0.0f),
                                 ox_3dvector(5.0f, 5.0f, 0.0f), ox_3dvector(4.0f, 2.0f, 0.0f)}));
    polygon.add_contour(rectangle(0.0f, 0.0f, 1.0f, 1.0f));
    EXPECT_EQ(polygon.get_contour_sizes().size(), 1);
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
    EXPECT_EQ(polygon.get_normal().z, 1.0f);
}

TEST_P(OxPolygonWithCoordinate, PlaneAndTriangleSurviveEveryOperation) {
    const ox_3dvector bad(GetParam(), 0.0f, GetParam());
    const ox_3dvector good(0.0f, 0.0f, 1.0f);
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    exercise(square, bad, good);
    exercise(square, good, bad);
    exercise(square, bad, bad);
    exercise(ox_polygon(bad, good));
    exercise(ox_polygon(good, bad));
    ox_polygon triangle;
    triangle.add_contour(contour({bad, good, ox_3dvector(1.0f, 0.0f, 0.0f)}));
    exercise(triangle);
    ox_polygon placed(bad, good);
    placed.add_contour(rectangle(0.0f, 0.0f, 1.0f, 1.0f));
    exercise(placed);
}

TEST_P(OxPolygonWithCoordinate, OffsetByItEnds) {
    for (int join = 0; join < 3; ++join) {
        ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
        polygon.offset(GetParam(), join);
        polygon.get_area();
    }
}

TEST_P(OxPolygonWithCoordinate, TransformedByItSurvivesEveryOperation) {
    ox_matrix m;
    for (unsigned int i = 0; i < 16; i += 3) {
        m[i] = GetParam();
        ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
        polygon.matrix_transform(m);
        exercise(polygon);
    }
}

INSTANTIATE_TEST_SUITE_P(Extreme, OxPolygonWithCoordinate,
                         ::testing::Values(not_a_number, infinite, -infinite, huge, -huge, 1e19f,
                                           -1e25f));

TEST(OxPolygonHostileInput, EmptyOneAndTwoPointContoursGiveNothing) {
    ox_polygon polygon;
    polygon.add_contour(ox_list<ox_3dvector>());
    polygon.add_contour(ox_list<ox_3dvector>(-2));
    EXPECT_EQ(polygon.get_contour_sizes().size(), 0);
    polygon.add_contour(contour({ox_3dvector(1.0f, 2.0f, 3.0f)}));
    EXPECT_EQ(polygon.get_contour_sizes().size(), 0);
    polygon.add_contour(contour({ox_3dvector(), ox_3dvector(1.0f, 0.0f, 0.0f)}));
    EXPECT_EQ(polygon.get_contour_sizes().size(), 0);
    exercise(polygon);
}

TEST(OxPolygonHostileInput, AllPointsRepeatedGiveNothing) {
    ox_polygon polygon;
    const ox_3dvector p(1.0f, 1.0f, 1.0f);
    polygon.add_contour(contour({p, p, p, p, p}));
    EXPECT_EQ(polygon.get_contour_sizes().size(), 0);
    EXPECT_EQ(polygon.get_area(), 0.0f);
    exercise(polygon);
}

ox_list<ox_3dvector> square_of_doubled_points() {
    ox_list<ox_3dvector> doubled;
    for (const ox_3dvector& corner : rectangle(0.0f, 0.0f, 1.0f, 1.0f)) {
        doubled.push_right(corner);
        doubled.push_right(corner);
    }
    return doubled;
}

TEST(OxPolygonHostileInput, EveryPointTwiceIsTheSameRegionInAGivenPlane) {
    ox_polygon polygon(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
    polygon.add_contour(square_of_doubled_points());
    EXPECT_EQ(polygon.get_contour_vertices().size(), 4);
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
}

// One of any two consecutive edges is empty, so no two of them span a normal.
TEST(OxPolygonHostileInput, EveryPointTwiceGivesNoPlane) {
    ox_polygon polygon;
    polygon.add_contour(square_of_doubled_points());
    EXPECT_EQ(polygon.get_contour_vertices().size(), 0);
}

TEST(OxPolygonHostileInput, PointsOnOneLineGiveNothing) {
    ox_polygon polygon;
    polygon.add_contour(contour({ox_3dvector(), ox_3dvector(1.0f, 1.0f, 1.0f),
                                 ox_3dvector(2.0f, 2.0f, 2.0f), ox_3dvector(3.0f, 3.0f, 3.0f)}));
    EXPECT_EQ(polygon.get_contour_sizes().size(), 0);
    exercise(polygon);
}

TEST(OxPolygonHostileInput, ZeroNormalIsIgnored) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    polygon.set_normal(ox_3dvector());
    EXPECT_EQ(polygon.get_normal().z, 1.0f);
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
    exercise(ox_polygon(ox_3dvector(), ox_3dvector()));
    exercise(polygon, ox_3dvector(), ox_3dvector());
}

TEST(OxPolygonHostileInput, AssignmentToItselfKeepsTheRegion) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    ox_polygon& same = polygon;
    polygon = same;
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
}

TEST(OxPolygonHostileInput, CombinedWithItselfIsItselfOrNothing) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    polygon.unites(polygon);
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
    polygon.intersects(polygon);
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
    polygon.substracts(polygon);
    EXPECT_EQ(polygon.get_contour_sizes().size(), 0);
}

TEST(OxPolygonHostileInput, ItsOwnContourAddedAgainCancelsTheRegion) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    polygon.add_contour(polygon.get_contour_vertices());
    EXPECT_EQ(polygon.get_area(), 0.0f);
}

TEST(OxPolygonHostileInput, UnknownJoinTypesAndContourNumbersAreHarmless) {
    for (const int number :
         {-1, 3, 1000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
        polygon.offset(0.5f, number);
        polygon.get_area();
        polygon.is_convex(number);
    }
}

TEST(OxPolygonHostileInput, RandomBitPatternsSurviveEveryOperation) {
    generator random(13);
    for (int i = 0; i < 500; ++i) {
        ox_polygon polygon;
        const int contours = random.between(1, 3);
        for (int c = 0; c < contours; ++c) {
            ox_list<ox_3dvector> points = support::random_tangle(random, random.between(1, 8), 4);
            for (ox_3dvector& point : points) {
                if (random.one_in(6)) {
                    point.y = random.any_float();
                }
            }
            polygon.add_contour(points);
        }
        const float coordinate = random.any_float();
        const ox_3dvector normal(random.any_float(), 1.0f, 0.0f);
        exercise(polygon, ox_3dvector(coordinate, 0.0f, 0.0f), normal);
    }
}

} // namespace
