#include <ox/solid/ox_solid.h>

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/solid/solid_lists.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;
using ox_test::list_of;
using ox_test::unit_brick;

/// A unit square at the origin, four times the size around it, and indices for both.
ox_solid solid_of(const ox_list<unsigned int>& contours, const ox_list<int>& sizes) {
    ox_solid solid;
    solid.set_vertices(list_of({ox_3dvector(0, 0, 0), ox_3dvector(4, 0, 0), ox_3dvector(4, 4, 0),
                                ox_3dvector(0, 4, 0), ox_3dvector(1, 1, 0), ox_3dvector(2, 1, 0),
                                ox_3dvector(2, 2, 0), ox_3dvector(1, 2, 0)}));
    solid.set_contours(contours);
    solid.set_contour_sizes(sizes);
    return solid;
}

const ox_list<unsigned int> both_squares = list_of({0u, 1u, 2u, 3u, 4u, 5u, 6u, 7u});

TEST(SolidFaces, APositiveSizeOpensAFaceANegativeOneIsItsHole) {
    ox_solid faces = solid_of(both_squares, list_of({4, 4}));
    EXPECT_EQ(faces.get_faces().size(), 2);
    ox_solid face_with_hole = solid_of(both_squares, list_of({4, -4}));
    ASSERT_EQ(face_with_hole.get_faces().size(), 1);
    EXPECT_FLOAT_EQ(face_with_hole.get_faces()[0]->get_area(), 15.0f);
}

TEST(SolidFaces, ALeadingHoleOpensAFace) {
    ox_solid solid = solid_of(both_squares, list_of({-4, -4}));
    ASSERT_EQ(solid.get_faces().size(), 1);
    EXPECT_FLOAT_EQ(solid.get_faces()[0]->get_area(), 15.0f);
}

TEST(SolidFaces, AZeroSizeBelongsToTheCurrentFace) {
    ox_solid solid = solid_of(both_squares, list_of({4, 0, -4}));
    ASSERT_EQ(solid.get_faces().size(), 1);
    EXPECT_FLOAT_EQ(solid.get_faces()[0]->get_area(), 15.0f);
    ox_solid leading = solid_of(both_squares, list_of({0, -4}));
    EXPECT_EQ(leading.get_faces().size(), 1);
}

TEST(SolidFaces, ASizeTotalBeyondTheIndicesKeepsTheFacesBeforeTheShortfall) {
    ox_solid solid = solid_of(both_squares, list_of({4, 4, 4, 4}));
    EXPECT_EQ(solid.get_faces().size(), 2);
    ox_solid cut_short = solid_of(both_squares, list_of({4, 5}));
    EXPECT_EQ(cut_short.get_faces().size(), 1);
}

TEST(SolidFaces, AHoleThatFallsShortLeavesItsFaceWithoutIt) {
    ox_solid solid = solid_of(both_squares, list_of({4, -5}));
    ASSERT_EQ(solid.get_faces().size(), 1);
    EXPECT_FLOAT_EQ(solid.get_faces()[0]->get_area(), 16.0f);
}

TEST(SolidFaces, AnIndexOutOfRangeEndsTheFaces) {
    ox_solid solid =
        solid_of(list_of({0u, 1u, 2u, 3u, 4u, 8u, 6u, 0u, 1u, 2u, 3u}), list_of({4, 3, 4}));
    EXPECT_EQ(solid.get_faces().size(), 1);
    ox_solid at_once = solid_of(list_of({4294967295u, 1u, 2u}), list_of({3}));
    EXPECT_EQ(at_once.get_faces().size(), 0);
}

TEST(SolidFaces, HugeSizesEndTheFacesWithoutHugeMemory) {
    const int lowest = (std::numeric_limits<int>::min)();
    const int highest = (std::numeric_limits<int>::max)();
    EXPECT_EQ(solid_of(both_squares, list_of({4, lowest})).get_faces().size(), 1);
    EXPECT_EQ(solid_of(both_squares, list_of({4, highest})).get_faces().size(), 1);
    EXPECT_EQ(solid_of(both_squares, list_of({lowest})).get_faces().size(), 0);
}

TEST(SolidFaces, ListsWithANegativeCountAreEmpty) {
    ox_solid solid = solid_of(both_squares, list_of({4}));
    solid.set_vertices(ox_list<ox_3dvector>(-3));
    EXPECT_EQ(solid.get_faces().size(), 0);
    EXPECT_TRUE(solid.get_bounding_box().is_empty());
    solid = solid_of(ox_list<unsigned int>(-3), list_of({4}));
    EXPECT_EQ(solid.get_faces().size(), 0);
    solid = solid_of(both_squares, ox_list<int>(-3));
    EXPECT_EQ(solid.get_faces().size(), 0);
    ox_solid brick = unit_brick();
    brick.unites(solid);
    solid.unites(brick);
    EXPECT_GT(solid.get_contour_sizes().size(), 0);
}

TEST(SolidFaces, VerticesWithoutSizesMakeNoFaceHoweverOftenAsked) {
    ox_solid solid = solid_of(both_squares, ox_list<int>());
    EXPECT_EQ(solid.get_faces().size(), 0);
    EXPECT_EQ(solid.get_faces().size(), 0);
}

TEST(SolidFaces, AreBuiltOnceAndKeptUntilAChange) {
    const int before = ox_polygon::get_instanced();
    ox_solid solid = unit_brick();
    ox_polygon* face = solid.get_faces()[0];
    EXPECT_EQ(solid.get_faces()[0], face);
    EXPECT_EQ(ox_polygon::get_instanced(), before + 6);
    solid.clear();
    EXPECT_EQ(ox_polygon::get_instanced(), before);
}

TEST(SolidFaces, AreDeletedWithTheSolid) {
    const int before = ox_polygon::get_instanced();
    {
        ox_solid solid = unit_brick();
        solid.get_faces();
    }
    EXPECT_EQ(ox_polygon::get_instanced(), before);
}

TEST(SolidBoundingBox, CoversAllVerticesThoseOfNoFaceIncluded) {
    ox_solid solid;
    solid.set_vertices(list_of({ox_3dvector(1, 1, 1), ox_3dvector(-1, 5, 1)}));
    EXPECT_EQ(solid.get_bounding_box().origin, ox_3dvector(-1, 1, 1));
    EXPECT_EQ(solid.get_bounding_box().size, ox_3dvector(2, 4, 0));
}

TEST(SolidBoundingBox, OfOneVertexHasNoSizeButIsNotEmpty) {
    ox_solid solid;
    solid.set_vertices(list_of({ox_3dvector(1, 2, 3)}));
    EXPECT_FALSE(solid.get_bounding_box().is_empty());
    EXPECT_EQ(solid.get_bounding_box().size, ox_3dvector(0, 0, 0));
}

TEST(SolidFaces, VerticesThatAreNotFiniteDropOnlyTheirContour) {
    const float infinite = std::numeric_limits<float>::infinity();
    const float not_a_number = std::numeric_limits<float>::quiet_NaN();
    for (const float bad : {infinite, -infinite, not_a_number}) {
        ox_solid solid = unit_brick();
        ox_list<ox_3dvector> vertices = solid.get_vertices();
        vertices[0].x = bad;
        solid.set_vertices(vertices);
        EXPECT_EQ(solid.get_faces().size(), 6);
        EXPECT_EQ(solid.get_faces()[0]->get_area(), 0.0f);
        EXPECT_FLOAT_EQ(solid.get_faces()[1]->get_area(), 1.0f);
        solid.get_bounding_box();
    }
}

} // namespace
