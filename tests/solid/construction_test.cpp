#include <ox/solid/ox_solid.h>

#include <cmath>
#include <numeric>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/solid/solid_lists.h>
#include <tests/support/measures.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;
using ox_test::to_vector;
using ox_test::unit_brick;
using support::rectangle;
using support::rectangle_polygon;
using testing::Each;
using testing::ElementsAre;

std::vector<unsigned int> ascending(int count) {
    std::vector<unsigned int> indices(static_cast<std::size_t>(count));
    std::iota(indices.begin(), indices.end(), 0u);
    return indices;
}

ox_polygon square_with_hole() {
    ox_polygon polygon = rectangle_polygon(0, 0, 4, 4);
    polygon.add_contour(rectangle(1, 1, 2, 2));
    return polygon;
}

// add_face

TEST(AddingAFace, AppendsVerticesOfItsOwn) {
    ox_polygon square = rectangle_polygon(0, 0, 1, 1);
    ox_solid solid;
    solid.add_face(square);
    solid.add_face(square);
    EXPECT_EQ(solid.get_vertices().size(), 8);
    EXPECT_EQ(to_vector(solid.get_contours()), ascending(8));
    EXPECT_THAT(to_vector(solid.get_contour_sizes()), ElementsAre(4, 4));
}

TEST(AddingAFace, HolesFollowTheirOwnOuterContour) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.add_contour(rectangle(5, 0, 9, 4));
    polygon.add_contour(rectangle(6, 1, 7, 2));
    const std::vector<int> parents = to_vector(polygon.get_contour_parents());
    const std::vector<bool> orientations = to_vector(polygon.get_contour_orientations());
    ox_solid solid;
    solid.add_face(polygon);

    // The merge decides which of the two squares comes first.
    const bool is_hole_last = !orientations[2] && parents[2] == 1;
    if (is_hole_last) {
        EXPECT_THAT(to_vector(solid.get_contour_sizes()), ElementsAre(4, 4, -4));
    } else {
        EXPECT_THAT(to_vector(solid.get_contour_sizes()), ElementsAre(4, -4, 4));
    }
    EXPECT_EQ(solid.get_faces().size(), 2);
    EXPECT_TRUE(ox_test::have_same_bits(solid.get_vertices(), polygon.get_contour_vertices()));
}

TEST(AddingAFace, AHoleOfTheSecondOuterContourFollowsIt) {
    // Two outer contours that the merge leaves in this order: a hexagon, then a square with a
    // triangular hole.
    for (const float side : {-20.0f, 20.0f}) {
        ox_polygon polygon = rectangle_polygon(0, 0, 4, 4);
        polygon.add_contour(
            support::contour({ox_3dvector(1, 1, 0), ox_3dvector(2, 1, 0), ox_3dvector(1, 2, 0)}));
        polygon.add_contour(
            support::contour({ox_3dvector(0, side, 0), ox_3dvector(2, side - 1, 0),
                              ox_3dvector(4, side, 0), ox_3dvector(4, side + 2, 0),
                              ox_3dvector(2, side + 3, 0), ox_3dvector(0, side + 2, 0)}));
        ox_solid solid;
        solid.add_face(polygon);
        const std::vector<int> sizes = to_vector(solid.get_contour_sizes());
        EXPECT_TRUE(sizes == (std::vector<int>{6, 4, -3}) || sizes == (std::vector<int>{4, -3, 6}));
    }
}

TEST(AddingAFace, APolygonWithoutContoursAddsNothingButDropsTheCaches) {
    ox_polygon nothing;
    ox_solid solid = unit_brick();
    solid.add_face(nothing);
    ox_test::expect_same_storage(solid, unit_brick());
}

TEST(AddingAFace, TheBoxGrowsWithTheNextQuery) {
    ox_solid solid = unit_brick();
    solid.get_bounding_box();
    ox_polygon far_square = rectangle_polygon(8, 8, 9, 9);
    solid.add_face(far_square);
    EXPECT_EQ(solid.get_bounding_box().size, ox_3dvector(9, 9, 1));
}

TEST(AddingAFace, AFaceOfTheSolidItselfIsAddedAgain) {
    ox_solid solid = unit_brick();
    solid.add_face(*solid.get_faces()[0]);
    EXPECT_EQ(solid.get_faces().size(), 7);
    EXPECT_EQ(solid.get_vertices().size(), 28);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(solid.get_vertices()[24 + i], solid.get_vertices()[i]);
    }
}

TEST(AddingAFace, DropsAHoleThatWasSplitOffAndKeptTheNumberOfItsFormerOutline) {
    ox_polygon polygon = square_with_hole();
    polygon.add_contour(rectangle(10, 0, 14, 4));
    polygon.add_contour(rectangle(11, 1, 12, 2));
    int dropped = 0;
    for (ox_polygon* piece : polygon.split_to_polygons()) {
        ASSERT_EQ(piece->get_contour_sizes().size(), 2);
        const int parent = piece->get_contour_parents()[1];
        ox_solid solid;
        solid.add_face(*piece);
        if (parent == 0) {
            EXPECT_THAT(to_vector(solid.get_contour_sizes()), ElementsAre(4, -4));
        } else {
            EXPECT_EQ(parent, piece->get_contour_sizes().size()) << "just out of range";
            EXPECT_THAT(to_vector(solid.get_contour_sizes()), ElementsAre(4));
            ++dropped;
        }
        if (piece != &polygon) {
            delete piece;
        }
    }
    EXPECT_EQ(dropped, 1);
}

// brick

TEST(Brick, AlongTheAxesHas24VerticesInSixFacesOfFour) {
    const ox_3dvector origin(10, 20, 30);
    ox_solid solid;
    solid.brick(origin, 1, 2, 3);
    EXPECT_EQ(solid.get_vertices().size(), 24);
    EXPECT_EQ(to_vector(solid.get_contours()), ascending(24));
    EXPECT_THAT(to_vector(solid.get_contour_sizes()), ElementsAre(4, 4, 4, 4, 4, 4));
    EXPECT_EQ(solid.get_bounding_box().origin, origin);
    EXPECT_EQ(solid.get_bounding_box().size, ox_3dvector(1, 2, 3));
}

TEST(Brick, FacesComeNearThenFarAxisByAxisWithOutwardNormals) {
    ox_solid solid = unit_brick();
    const ox_3dvector expected[] = {{-1, 0, 0}, {1, 0, 0},  {0, -1, 0},
                                    {0, 1, 0},  {0, 0, -1}, {0, 0, 1}};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(solid.get_faces()[i]->get_normal(), expected[i]) << i;
    }
}

TEST(Brick, BothFormsAgreeOnABrickAlongTheAxes) {
    ox_solid spanned;
    spanned.brick(ox_3dvector(1, 2, 3), ox_3dvector(4, 0, 0), ox_3dvector(0, 5, 0),
                  ox_3dvector(0, 0, 6));
    EXPECT_NEAR(support::volume_of(spanned), 120.0, 1e-3);
    EXPECT_EQ(spanned.get_bounding_box().origin, ox_3dvector(1, 2, 3));
    EXPECT_EQ(spanned.get_faces().size(), 6);
}

TEST(Brick, AParallelepipedIsClosed) {
    ox_solid solid;
    solid.brick(ox_3dvector(0, 0, 0), ox_3dvector(2, 0, 0), ox_3dvector(1, 2, 0),
                ox_3dvector(0.5f, 0.5f, 3));
    EXPECT_NEAR(support::volume_of(solid), 12.0, 1e-3);
    EXPECT_TRUE(support::is_closed(solid));
}

TEST(Brick, ReplacesWhatTheSolidHeld) {
    ox_solid solid = unit_brick();
    solid.brick(ox_3dvector(0, 0, 0), 2, 2, 2);
    EXPECT_EQ(solid.get_vertices().size(), 24);
}

TEST(Brick, OfNegativeExtentLiesOnTheOtherSide) {
    ox_solid solid;
    solid.brick(ox_3dvector(0, 0, 0), -1, 1, 1);
    EXPECT_EQ(solid.get_bounding_box().origin, ox_3dvector(-1, 0, 0));
    EXPECT_EQ(solid.get_contour_sizes().size(), 6);
}

TEST(Brick, OfCoplanarEdgesLosesFaces) {
    ox_solid solid;
    solid.brick(ox_3dvector(0, 0, 0), ox_3dvector(1, 0, 0), ox_3dvector(0, 1, 0),
                ox_3dvector(0, 0, 0));
    EXPECT_EQ(solid.get_contour_sizes().size(), 2);
}

TEST(Brick, MayStartAtAVertexOfTheSolidItself) {
    ox_solid solid;
    solid.brick(ox_3dvector(1, 2, 3), 1, 1, 1);
    const ox_3dvector corner = solid.get_vertices()[12];
    solid.brick(solid.get_vertices()[12], 2, 2, 2);
    EXPECT_EQ(solid.get_bounding_box().origin, corner);
    solid.brick(solid.get_vertices()[0], solid.get_vertices()[0], ox_3dvector(0, 1, 0),
                ox_3dvector(0, 0, 1));
    EXPECT_EQ(solid.get_contour_sizes().size(), 6);
}

// extrusion

TEST(Extrusion, OfAPolygonWithAHoleHasTwoCapsAndASidePerVertex) {
    ox_polygon base = square_with_hole();
    ox_solid solid;
    solid.extrusion(base, ox_3dvector(0, 0, 2));
    EXPECT_THAT(to_vector(solid.get_contour_sizes()),
                ElementsAre(4, -4, 4, -4, 4, 4, 4, 4, 4, 4, 4, 4));
    EXPECT_NEAR(support::volume_of(solid), 30.0, 1e-3);
    EXPECT_TRUE(support::is_closed(solid));
}

TEST(Extrusion, AlongTheNormalFacesOutwards) {
    ox_polygon base = rectangle_polygon(0, 0, 1, 1);
    ox_solid solid;
    solid.extrusion(base, ox_3dvector(0, 0, 2));
    EXPECT_EQ(solid.get_faces()[0]->get_normal(), ox_3dvector(0, 0, -1));
    EXPECT_EQ(solid.get_faces()[1]->get_normal(), ox_3dvector(0, 0, 1));
    EXPECT_NEAR(support::volume_of(solid), 2.0, 1e-5);
}

TEST(Extrusion, AgainstTheNormalHasItsCapsOutwardsAndItsSidesInwards) {
    ox_polygon base = rectangle_polygon(0, 0, 1, 1);
    ox_solid solid;
    solid.extrusion(base, ox_3dvector(0, 0, -2));
    EXPECT_EQ(solid.get_faces()[0]->get_normal(), ox_3dvector(0, 0, 1));
    EXPECT_EQ(solid.get_faces()[1]->get_normal(), ox_3dvector(0, 0, -1));
    ox_polygon& side = *solid.get_faces()[2];
    const ox_3dvector outwards = side.get_bounding_box().origin +
                                 side.get_bounding_box().size * 0.5f - ox_3dvector(0.5f, 0.5f, -1);
    EXPECT_LT(ox::ox_dot(side.get_normal(), outwards), 0.0f);
}

TEST(Extrusion, InThePlaneReversesNeitherCap) {
    ox_polygon base = rectangle_polygon(0, 0, 1, 1);
    ox_solid solid;
    solid.extrusion(base, ox_3dvector(3, 0, 0));
    EXPECT_EQ(solid.get_faces()[0]->get_normal(), ox_3dvector(0, 0, 1));
    EXPECT_EQ(solid.get_faces()[1]->get_normal(), ox_3dvector(0, 0, 1));
}

TEST(Extrusion, TheBottomCapHasTheVerticesAsTheyAreToTheSignOfZero) {
    ox_polygon triangle;
    triangle.add_contour(
        support::contour({{0.0f, 0.0f, -0.0f}, {1.0f, 0.0f, -0.0f}, {0.0f, 1.0f, -0.0f}}));
    ox_solid solid;
    solid.extrusion(triangle, ox_3dvector(0, 0, 1));
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(std::signbit(solid.get_vertices()[i].z));
    }
}

TEST(Extrusion, OfNothingIsEmpty) {
    ox_polygon nothing;
    ox_solid solid = unit_brick();
    solid.extrusion(nothing, ox_3dvector(0, 0, 1));
    EXPECT_EQ(solid.get_vertices().size(), 0);
    EXPECT_EQ(solid.get_faces().size(), 0);
}

TEST(Extrusion, TakesAFaceAndAVertexOfTheSolidItself) {
    ox_solid solid;
    solid.brick(ox_3dvector(0, 0, 1), 1, 1, 1);
    const ox_3dvector sweep = solid.get_vertices()[0];
    ox_solid expected;
    expected.extrusion(*ox_solid(solid).get_faces()[5], sweep);
    solid.extrusion(*solid.get_faces()[5], solid.get_vertices()[0]);
    ox_test::expect_same_storage(solid, expected);
}

} // namespace
