#include <limits>

#include <gtest/gtest.h>

#include <ox/polygon/ox_polygon.h>
#include <tests/support/generator.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using support::frame;
using support::generator;
using support::rectangle;
using support::rectangle_polygon;

const ox_3dvector along_x(1.0f, 0.0f, 0.0f);

// The pieces of a cut, freed with the result unless they are the polygon itself.
class cut {
public:
    cut(ox_polygon& polygon, const ox_3dvector& point, const ox_3dvector& normal, bool both_sides)
        : source(polygon), pieces(polygon.cut_by_plane(point, normal, both_sides)) {}
    cut(const cut&) = delete;
    cut& operator=(const cut&) = delete;
    ~cut() {
        for (ox_polygon* piece : pieces) {
            if (piece != &source) {
                delete piece;
            }
        }
    }

    int size() const { return pieces.size(); }
    ox_polygon& operator[](int i) { return *pieces[i]; }
    bool is_source_alone() const { return pieces.size() == 1 && pieces.at(0) == &source; }

private:
    ox_polygon& source;
    ox_list<ox_polygon*> pieces;
};

} // namespace

TEST(OxPolygonCutByPlane, MakesTheFrontPieceFirstAndTheBackPieceSecond) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    const int before = ox_polygon::get_instanced();
    {
        cut pieces(square, ox_3dvector(0.5f, 0.0f, 0.0f), along_x, true);
        ASSERT_EQ(pieces.size(), 2);
        EXPECT_EQ(ox_polygon::get_instanced(), before + 2);
        const ox::ox_box front = pieces[0].get_bounding_box();
        const ox::ox_box back = pieces[1].get_bounding_box();
        EXPECT_FLOAT_EQ(front.origin.x, 0.5f);
        EXPECT_FLOAT_EQ(front.origin.x + front.size.x, 1.0f);
        EXPECT_FLOAT_EQ(back.origin.x, 0.0f);
        EXPECT_FLOAT_EQ(back.origin.x + back.size.x, 0.5f);
        EXPECT_NEAR(pieces[0].get_area(), 0.5f, 1e-6f);
        EXPECT_NEAR(pieces[1].get_area(), 0.5f, 1e-6f);
    }
    EXPECT_EQ(ox_polygon::get_instanced(), before);
    EXPECT_FLOAT_EQ(square.get_area(), 1.0f) << "the source is unchanged";
}

TEST(OxPolygonCutByPlane, MakesOnlyTheFrontPieceWhenOneSideIsAskedFor) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    cut pieces(square, ox_3dvector(0.25f, 0.0f, 0.0f), along_x, false);
    ASSERT_EQ(pieces.size(), 1);
    EXPECT_FALSE(pieces.is_source_alone());
    EXPECT_FLOAT_EQ(pieces[0].get_area(), 0.75f);
}

TEST(OxPolygonCutByPlane, GivesThePiecesThePlaneOfThePolygon) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    square.reverse();
    cut pieces(square, ox_3dvector(0.5f, 0.0f, 0.0f), along_x, true);
    ASSERT_EQ(pieces.size(), 2);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(pieces[i].get_normal(), square.get_normal());
        EXPECT_EQ(pieces[i].get_point(), square.get_point());
        EXPECT_NEAR(pieces[i].get_area(), 0.5f, 1e-6f);
    }
}

TEST(OxPolygonCutByPlane, CutsThroughTheFootOfThePointInsteadOfWhereSlantedPlanesMeet) {
    // The plane through (0.5, 0, 1) with normal (1, 0, 1) meets the polygon's plane at x = 1.5,
    // outside of the square. The cut runs through the foot of the point all the same.
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    cut pieces(square, ox_3dvector(0.5f, 0.0f, 1.0f), ox_3dvector(1.0f, 0.0f, 1.0f), true);
    ASSERT_EQ(pieces.size(), 2);
    EXPECT_NEAR(pieces[0].get_bounding_box().origin.x, 0.5f, 0.0001f);
}

TEST(OxPolygonCutByPlane, CutsHoles) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 4.0f, 4.0f);
    polygon.add_contour(rectangle(1.0f, 1.0f, 3.0f, 3.0f));
    cut pieces(polygon, ox_3dvector(2.0f, 0.0f, 0.0f), along_x, true);
    ASSERT_EQ(pieces.size(), 2);
    EXPECT_FLOAT_EQ(pieces[0].get_area(), 6.0f);
    EXPECT_FLOAT_EQ(pieces[1].get_area(), 6.0f);
    EXPECT_EQ(pieces[0].get_contour_sizes().size(), 1);
}

TEST(OxPolygonCutByPlane, ReturnsThePolygonItselfForAParallelPlane) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    const ox_3dvector up(0.0f, 0.0f, 1.0f);
    EXPECT_TRUE(cut(square, ox_3dvector(0.0f, 0.0f, 0.0f), up, true).is_source_alone());
    EXPECT_TRUE(cut(square, ox_3dvector(0.0f, 0.0f, 9.0f), -up, false).is_source_alone());
}

TEST(OxPolygonCutByPlane, TakesAPlaneWithAVeryShortNormalForParallel) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    const ox_3dvector middle(0.5f, 0.0f, 0.0f);
    EXPECT_TRUE(cut(square, middle, along_x * 0.0009f, true).is_source_alone());
    EXPECT_EQ(cut(square, middle, along_x * 0.0011f, true).size(), 2);
    EXPECT_TRUE(cut(square, middle, ox_3dvector(), true).is_source_alone());
}

TEST(OxPolygonCutByPlane, ReturnsThePolygonItselfWhenItLiesWhollyInFront) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    EXPECT_TRUE(cut(square, ox_3dvector(-1.0f, 0.0f, 0.0f), along_x, true).is_source_alone());
    EXPECT_TRUE(cut(square, ox_3dvector(-1.0f, 0.0f, 0.0f), along_x, false).is_source_alone());
    EXPECT_TRUE(cut(square, ox_3dvector(0.0f, 0.0f, 0.0f), along_x, false).is_source_alone())
        << "touching counts as in front";
}

TEST(OxPolygonCutByPlane, ReturnsThePolygonItselfOrNothingWhenItLiesWhollyBehind) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    EXPECT_TRUE(cut(square, ox_3dvector(2.0f, 0.0f, 0.0f), along_x, true).is_source_alone());
    EXPECT_EQ(cut(square, ox_3dvector(2.0f, 0.0f, 0.0f), along_x, false).size(), 0);
    EXPECT_EQ(cut(square, ox_3dvector(1.0f, 0.0f, 0.0f), along_x, false).size(), 0)
        << "touching counts as behind";
}

TEST(OxPolygonCutByPlane, ReturnsAPolygonWithoutContoursItself) {
    ox_polygon without_plane;
    ox_polygon with_plane(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
    EXPECT_TRUE(cut(without_plane, ox_3dvector(), along_x, true).is_source_alone());
    EXPECT_TRUE(cut(with_plane, ox_3dvector(), along_x, false).is_source_alone());
}

TEST(OxPolygonCutByPlane, MayReturnAPieceWithoutContours) {
    // The front of the plane holds less than half a unit of the integer grid.
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    cut pieces(square, ox_3dvector(0.99999f, 0.0f, 0.0f), along_x, true);
    ASSERT_EQ(pieces.size(), 2);
    EXPECT_EQ(pieces[0].get_contour_sizes().size(), 0);
    EXPECT_FLOAT_EQ(pieces[1].get_area(), 1.0f);
}

TEST(OxPolygonCutByPlane, CutsAContourThatWasJustAdded) {
    ox_polygon square;
    square.add_contour(rectangle(0.0f, 0.0f, 1.0f, 1.0f));
    EXPECT_EQ(cut(square, ox_3dvector(0.5f, 0.0f, 0.0f), along_x, true).size(), 2);
}

TEST(OxPolygonCutByPlane, MayBeGivenVerticesOfItsOwn) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    const ox_list<ox_3dvector>& vertices = square.get_contour_vertices();
    cut pieces(square, vertices.at(0), square.get_normal(), true);
    EXPECT_TRUE(pieces.is_source_alone());
}

TEST(OxPolygonCutByPlane, SurvivesPlanesThatAreNotFinite) {
    const float infinity = std::numeric_limits<float>::infinity();
    const float not_a_number = std::numeric_limits<float>::quiet_NaN();
    const int before = ox_polygon::get_instanced();
    for (const float bad : {infinity, -infinity, not_a_number, 3e38f, 1e30f}) {
        ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
        for (int axis = 0; axis < 3; ++axis) {
            ox_3dvector v(0.5f, 0.5f, 0.0f);
            v[static_cast<unsigned int>(axis)] = bad;
            EXPECT_LE(cut(square, v, along_x, true).size(), 2);
            EXPECT_LE(cut(square, ox_3dvector(0.5f, 0.5f, 0.0f), v, true).size(), 2);
            EXPECT_LE(cut(square, v, v, true).size(), 2);
        }
    }
    EXPECT_EQ(ox_polygon::get_instanced(), before);
}

TEST(OxPolygonCutByPlane, ReturnsThePolygonItselfForANormalThatIsNotANumber) {
    const float not_a_number = std::numeric_limits<float>::quiet_NaN();
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    const ox_3dvector normal(not_a_number, 0.0f, 0.0f);
    EXPECT_TRUE(cut(square, ox_3dvector(0.5f, 0.0f, 0.0f), normal, true).is_source_alone());
}

TEST(OxPolygonCutByPlane, PreservesTheAreaOfTangles) {
    generator random(701);
    const int before = ox_polygon::get_instanced();
    for (int i = 0; i < 1000; ++i) {
        ox_polygon polygon;
        polygon.add_contour(support::random_tangle(random, random.between(3, 8), 4));
        const ox_3dvector point = support::random_point(random, 3.0);
        const ox_3dvector normal = support::random_frame(random).x;
        cut pieces(polygon, point, normal, true);
        float area = 0.0f;
        for (int k = 0; k < pieces.size(); ++k) {
            area += pieces[k].get_area();
        }
        // The cut is rounded to the grid: half a unit along the perimeter, and some.
        const float tolerance = 0.0005f * (1.0f + polygon.get_perimeter());
        ASSERT_NEAR(area, polygon.get_area(), tolerance) << "polygon " << i;
    }
    EXPECT_EQ(ox_polygon::get_instanced(), before);
}

TEST(OxPolygonCutByPlane, LeavesEveryFrontPieceInFront) {
    generator random(702);
    for (int i = 0; i < 500; ++i) {
        ox_polygon polygon;
        polygon.add_contour(support::random_tangle(random, random.between(3, 8), 4));
        ox_3dvector point = support::random_point(random, 2.0);
        point.z = 0.0f;
        const frame axes = support::random_frame(random);
        cut pieces(polygon, point, axes.x, true);
        if (pieces.size() != 2) {
            continue;
        }
        // A plane that meets the polygon's at a small angle magnifies the grid's rounding less
        // than its own: distances are measured along the cutting normal.
        for (const ox_3dvector& vertex : pieces[0].get_contour_vertices()) {
            ASSERT_GT(ox_dot(vertex - point, axes.x), -0.001f) << "polygon " << i;
        }
        for (const ox_3dvector& vertex : pieces[1].get_contour_vertices()) {
            ASSERT_LT(ox_dot(vertex - point, axes.x), 0.001f) << "polygon " << i;
        }
    }
}
