#include <algorithm>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>
#include <tests/polygon/random_regions.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_matrix;
using ox::ox_polygon;
using support::contour;
using support::rectangle;
using support::rectangle_polygon;

ox_list<ox_3dvector> l_shape() {
    return contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(2.0f, 0.0f, 0.0f),
                    ox_3dvector(2.0f, 1.0f, 0.0f), ox_3dvector(1.0f, 1.0f, 0.0f),
                    ox_3dvector(1.0f, 2.0f, 0.0f), ox_3dvector(0.0f, 2.0f, 0.0f)});
}

ox_polygon polygon_of(const ox_list<ox_3dvector>& vertices) {
    ox_polygon polygon;
    polygon.add_contour(vertices);
    return polygon;
}

void delete_all(const ox_list<ox_polygon*>& pieces) {
    for (ox_polygon* piece : pieces) {
        delete piece;
    }
}

// The plain way to find what a piece holds: a look at all contours.
std::vector<int> contours_of_piece(ox_polygon& polygon, int outer) {
    std::vector<int> contours;
    for (int c = 0; c < polygon_checks::count_contours(polygon); ++c) {
        const bool is_hole = !polygon.get_contour_orientations().at(c);
        if (c == outer || (is_hole && polygon.get_contour_parents().at(c) == outer)) {
            contours.push_back(c);
        }
    }
    return contours;
}

void expect_piece(ox_polygon& piece, ox_polygon& polygon, int outer) {
    const std::vector<int> contours = contours_of_piece(polygon, outer);
    ASSERT_EQ(polygon_checks::count_contours(piece), static_cast<int>(contours.size()));
    int next = 0;
    for (const int c : contours) {
        EXPECT_EQ(piece.get_contour_orientations().at(next), c == outer);
        EXPECT_EQ(piece.get_contour_parents().at(next), c == outer ? -1 : outer);
        const ox_list<ox_3dvector> expected = polygon_checks::contour_of(polygon, c);
        const ox_list<ox_3dvector> found = polygon_checks::contour_of(piece, next++);
        EXPECT_TRUE(std::equal(found.begin(), found.end(), expected.begin(), expected.end()));
    }
}

} // namespace

TEST(OxPolygonSplitToPolygons, ReturnsThePolygonItselfForOneOuterContour) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 4.0f, 4.0f);
    polygon.add_contour(rectangle(1.0f, 1.0f, 3.0f, 3.0f));
    const ox_list<ox_polygon*> pieces = polygon.split_to_polygons();
    ASSERT_EQ(pieces.size(), 1);
    EXPECT_EQ(pieces.at(0), &polygon);
}

TEST(OxPolygonSplitToPolygons, ReturnsThePolygonItselfWithoutContours) {
    ox_polygon polygon;
    const ox_list<ox_polygon*> pieces = polygon.split_to_polygons();
    ASSERT_EQ(pieces.size(), 1);
    EXPECT_EQ(pieces.at(0), &polygon);
}

TEST(OxPolygonSplitToPolygons, MakesTwoPolygonsOfTwoDisjointSquares) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    polygon.add_contour(rectangle(3.0f, 0.0f, 5.0f, 1.0f));
    const int before = ox_polygon::get_instanced();
    const ox_list<ox_polygon*> pieces = polygon.split_to_polygons();
    EXPECT_EQ(ox_polygon::get_instanced(), before + 2);
    ASSERT_EQ(pieces.size(), 2);
    float area = 0.0f;
    for (ox_polygon* piece : pieces) {
        EXPECT_NE(piece, &polygon);
        EXPECT_EQ(piece->get_contour_sizes().size(), 1);
        EXPECT_EQ(piece->get_contour_parents().at(0), -1);
        EXPECT_EQ(piece->get_normal(), polygon.get_normal());
        EXPECT_EQ(piece->get_point(), polygon.get_point());
        area += piece->get_area();
    }
    EXPECT_FLOAT_EQ(area, 3.0f);
    delete_all(pieces);
    EXPECT_EQ(ox_polygon::get_instanced(), before);
}

TEST(OxPolygonSplitToPolygons, KeepsTheContoursVerticesUnchanged) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    polygon.add_contour(rectangle(3.0f, 0.0f, 5.0f, 1.0f));
    const ox_list<ox_polygon*> pieces = polygon.split_to_polygons();
    int next = 0;
    for (ox_polygon* piece : pieces) {
        for (const ox_3dvector& vertex : piece->get_contour_vertices()) {
            EXPECT_EQ(vertex, polygon.get_contour_vertices().at(next++));
        }
    }
    delete_all(pieces);
}

TEST(OxPolygonSplitToPolygons, GivesHolesTheParentIndexOfTheSourceNotOfThePiece) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    polygon.add_contour(rectangle(3.0f, 0.0f, 9.0f, 6.0f));
    polygon.add_contour(rectangle(4.0f, 1.0f, 8.0f, 5.0f));
    const ox_list<int> parents = polygon.get_contour_parents();
    const ox_list<bool> orientations = polygon.get_contour_orientations();
    const ox_list<ox_polygon*> pieces = polygon.split_to_polygons();
    ASSERT_EQ(pieces.size(), 2);
    for (int k = 0, piece = 0; k < parents.size(); ++k) {
        if (!orientations.at(k)) {
            continue;
        }
        const ox_list<int> carried = pieces.at(piece++)->get_contour_parents();
        EXPECT_EQ(carried.at(0), -1);
        for (int hole = 1; hole < carried.size(); ++hole) {
            EXPECT_EQ(carried.at(hole), k);
        }
    }
    delete_all(pieces);
}

TEST(OxPolygonSplitToPolygons, MakesIslandsInHolesPiecesOfTheirOwn) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 6.0f, 6.0f);
    polygon.add_contour(rectangle(1.0f, 1.0f, 5.0f, 5.0f));
    polygon.add_contour(rectangle(2.0f, 2.0f, 4.0f, 4.0f));
    const ox_list<ox_polygon*> pieces = polygon.split_to_polygons();
    ASSERT_EQ(pieces.size(), 2);
    EXPECT_EQ(pieces.at(0)->get_contour_sizes().size(), 2);
    EXPECT_EQ(pieces.at(1)->get_contour_sizes().size(), 1);
    EXPECT_FLOAT_EQ(pieces.at(0)->get_area(), 20.0f);
    EXPECT_FLOAT_EQ(pieces.at(1)->get_area(), 4.0f);
    delete_all(pieces);
}

TEST(OxPolygonSplitToPolygons, MakesThePiecesThatALookAtAllContoursFinds) {
    support::generator random(40118);
    for (int round = 0; round < 10000 && !testing::Test::HasFailure(); ++round) {
        ox_polygon polygon =
            random_regions::tangle(random, random.between(4, 16), random.between(5, 60));
        if (polygon.count_outer_contours() < 2) {
            continue;
        }
        const ox_list<ox_polygon*> pieces = polygon.split_to_polygons();
        ASSERT_EQ(pieces.size(), polygon.count_outer_contours());
        int outer = -1;
        for (ox_polygon* piece : pieces) {
            do {
                ++outer;
            } while (!polygon.get_contour_orientations().at(outer));
            expect_piece(*piece, polygon, outer);
        }
        delete_all(pieces);
    }
}

TEST(OxPolygonSplitToPolygons, PiecesOutliveTheirSource) {
    ox_list<ox_polygon*> pieces;
    {
        ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
        polygon.add_contour(rectangle(3.0f, 0.0f, 4.0f, 1.0f));
        pieces = polygon.split_to_polygons();
    }
    ASSERT_EQ(pieces.size(), 2);
    EXPECT_FLOAT_EQ(pieces[0]->get_area(), 1.0f);
    delete_all(pieces);
}

TEST(OxPolygonSplitToConvexPolygons, ReturnsAConvexPolygonItself) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    const ox_list<ox_polygon*> pieces = polygon.split_to_convex_polygons();
    ASSERT_EQ(pieces.size(), 1);
    EXPECT_EQ(pieces.at(0), &polygon);
}

TEST(OxPolygonSplitToConvexPolygons, ReturnsNothingForAnyOtherPolygon) {
    ox_polygon empty;
    ox_polygon l = polygon_of(l_shape());
    ox_polygon two = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    two.add_contour(rectangle(3.0f, 0.0f, 4.0f, 1.0f));
    const int before = ox_polygon::get_instanced();
    EXPECT_EQ(empty.split_to_convex_polygons().size(), 0);
    EXPECT_EQ(l.split_to_convex_polygons().size(), 0);
    EXPECT_EQ(two.split_to_convex_polygons().size(), 0);
    EXPECT_EQ(ox_polygon::get_instanced(), before);
}

TEST(OxPolygonIsConvex, IsFalseForAnLShapeAndTrueForATriangle) {
    ox_polygon l = polygon_of(l_shape());
    ox_polygon triangle =
        polygon_of(contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(1.0f, 0.0f, 0.0f),
                            ox_3dvector(0.0f, 1.0f, 0.0f)}));
    EXPECT_FALSE(l.is_convex(0));
    EXPECT_TRUE(triangle.is_convex(0));
    EXPECT_TRUE(triangle.is_convex(-1));
}

TEST(OxPolygonIsConvex, IsFalseForANegativeIndexAndTwoContours) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    polygon.add_contour(rectangle(3.0f, 0.0f, 4.0f, 1.0f));
    EXPECT_FALSE(polygon.is_convex(-1));
    EXPECT_TRUE(polygon.is_convex(0));
    EXPECT_TRUE(polygon.is_convex(1));
}

TEST(OxPolygonIsConvex, IsFalseForAnIndexOutOfRange) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    ox_polygon empty;
    EXPECT_FALSE(polygon.is_convex(1));
    EXPECT_FALSE(polygon.is_convex(std::numeric_limits<int>::max()));
    EXPECT_FALSE(empty.is_convex(0));
    EXPECT_FALSE(empty.is_convex(-1));
    EXPECT_TRUE(polygon.is_convex(std::numeric_limits<int>::min())) << "means the only contour";
}

TEST(OxPolygonIsConvex, LooksAtTheFirstVerticesWhicheverContourIsNamed) {
    // One contour is an L, the other a square. Named second, a contour is judged by the vertices
    // of the first, as many as it has itself.
    ox_polygon polygon = polygon_of(l_shape());
    polygon.add_contour(rectangle(5.0f, 0.0f, 6.0f, 1.0f));
    const ox_list<unsigned int> sizes = polygon.get_contour_sizes();
    ASSERT_EQ(sizes.size(), 2);
    const int square = sizes.at(0) == 4u ? 0 : 1;
    if (square == 0) {
        // Six vertices: the square's four and the first two of the L.
        EXPECT_FALSE(polygon.is_convex(1));
        EXPECT_TRUE(polygon.is_convex(0));
    } else {
        const ox_list<ox_3dvector> v = polygon.get_contour_vertices();
        ox_polygon first_four;
        first_four.add_contour(contour({v.at(0), v.at(1), v.at(2), v.at(3)}));
        EXPECT_EQ(polygon.is_convex(1), first_four.is_convex(0));
        EXPECT_FALSE(polygon.is_convex(0));
    }
}

TEST(OxPolygonIsConvex, HoldsForAHoleOfASquareDespiteItsDirection) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 4.0f, 4.0f);
    polygon.add_contour(rectangle(1.0f, 1.0f, 3.0f, 3.0f));
    EXPECT_TRUE(polygon.is_convex(1));
}

TEST(OxPolygonIsConvex, HoldsForAPolygonTurnedOver) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    square.reverse();
    EXPECT_TRUE(square.is_convex(0));
    ox_polygon l = polygon_of(l_shape());
    l.reverse();
    EXPECT_FALSE(l.is_convex(0));
}

TEST(OxPolygonIsConvex, SurvivesNumbersThatAreNotFinite) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    square.get_area();
    ox_matrix overflow;
    overflow[0] = std::numeric_limits<float>::infinity();
    square.matrix_transform(overflow);
    square.is_convex(0);
    EXPECT_LE(square.split_to_polygons().size(), 1);
    square.split_to_convex_polygons();
}
