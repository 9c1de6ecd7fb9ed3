#include <ox/solid/ox_solid.h>

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/solid/solid_lists.h>
#include <tests/support/measures.h>

namespace {

using ox::ox_3dvector;
using ox::ox_polygon;
using ox::ox_solid;
using ox_test::expect_same_storage;
using ox_test::unit_brick;
using support::volume_of;

const ox_3dvector up(0, 0, 1);

TEST(Clipping, AboveTheSolidLeavesItUntouched) {
    ox_solid solid = unit_brick();
    ox_polygon* face = solid.get_faces()[0];
    solid.clip(ox_3dvector(0, 0, 2), up);
    EXPECT_EQ(solid.get_faces()[0], face);
}

TEST(Clipping, BelowTheSolidEmptiesIt) {
    ox_solid solid = unit_brick();
    solid.clip(ox_3dvector(0, 0, -1), up);
    EXPECT_EQ(solid.get_vertices().size(), 0);
    EXPECT_EQ(solid.get_contours().size(), 0);
    EXPECT_EQ(solid.get_contour_sizes().size(), 0);
}

TEST(Clipping, InItsTopOrBottomFaceCutsAllOrNothing) {
    ox_solid solid = unit_brick();
    solid.clip(ox_3dvector(0, 0, 1), up);
    expect_same_storage(solid, unit_brick());
    solid.clip(ox_3dvector(0, 0, 0), up);
    EXPECT_EQ(solid.get_vertices().size(), 0);
}

TEST(Clipping, AtHalfHeightLeavesTheLowerHalf) {
    ox_solid solid = unit_brick();
    solid.clip(ox_3dvector(0, 0, 0.5f), up);
    EXPECT_NEAR(volume_of(solid), 0.5, 1e-4);
    EXPECT_EQ(solid.get_faces().size(), 6);
    EXPECT_FLOAT_EQ(solid.get_bounding_box().size.z, 0.5f);
    EXPECT_TRUE(support::is_closed(solid));
}

TEST(Clipping, IsTheDifferenceWithABrickThatReachesTwentyTolerancesHigher) {
    ox_solid solid = unit_brick();
    ox_solid expected = unit_brick();
    ox_solid cutter;
    // The frame of the z axis is u = +x, w = +y; the brick begins ten tolerances before the solid
    // and ends twenty behind it.
    const float before = 0.0f - 10.0f * 0.001f;
    const float extent = (1.0f + 20.0f * 0.001f) - before;
    const ox_3dvector corner =
        ox_3dvector(0, 0, 0.5f) + before * ox_3dvector(1, 0, 0) + before * ox_3dvector(0, 1, 0);
    cutter.brick(corner, ox_3dvector(1, 0, 0) * extent, ox_3dvector(0, 1, 0) * extent,
                 up * (0.5f + 20.0f * 0.001f));
    expected.substracts(cutter);
    solid.clip(ox_3dvector(0, 0, 0.5f), up);
    expect_same_storage(solid, expected);
}

TEST(Clipping, ObliquelyLeavesAClosedSolid) {
    ox_solid solid = unit_brick();
    ox_3dvector normal(1, 1, 1);
    normal.normalize();
    solid.clip(ox_3dvector(0.5f, 0.5f, 0.5f), normal);
    EXPECT_NEAR(volume_of(solid), 0.5, 1e-3);
}

TEST(Clipping, MeasuresHeightsWithTheNormalAsGiven) {
    ox_solid solid = unit_brick();
    // Along a normal of half length the corner is 0.25 high, so a brick of half that height is cut
    // out: the top stays as a slab of its own.
    solid.clip(ox_3dvector(0, 0, 0.5f), ox_3dvector(0, 0, 0.5f));
    EXPECT_FLOAT_EQ(solid.get_bounding_box().size.z, 1.0f);
    EXPECT_GT(volume_of(solid), 0.8);
}

TEST(Clipping, AnEmptySolidChangesNothing) {
    ox_solid solid;
    solid.clip(ox_3dvector(0, 0, 0), up);
    EXPECT_EQ(solid.get_vertices().size(), 0);
}

TEST(Clipping, ByAZeroNormalOrOneThatIsNotANumberChangesNothing) {
    ox_solid solid = unit_brick();
    const float not_a_number = std::numeric_limits<float>::quiet_NaN();
    solid.clip(ox_3dvector(0, 0, 0.5f), ox_3dvector(0, 0, 0));
    solid.clip(ox_3dvector(0, 0, 0.5f), ox_3dvector(0, 0, not_a_number));
    solid.clip(ox_3dvector(not_a_number, 0, 0), up);
    expect_same_storage(solid, unit_brick());
}

TEST(Clipping, ByAnInfiniteOrHugeNormalDoesNotFail) {
    const float infinite = std::numeric_limits<float>::infinity();
    for (const float value : {infinite, -infinite, 3e38f, -3e38f}) {
        ox_solid solid = unit_brick();
        solid.clip(ox_3dvector(0.5f, 0.5f, 0.5f), ox_3dvector(value, value, value));
        solid.clip(ox_3dvector(value, 0, 0.5f), up);
        solid.clip(ox_3dvector(0.5f, 0.5f, 0.5f), ox_3dvector(0, 0, value));
    }
}

TEST(Clipping, TakesAVertexOfTheSolidItselfAsPoint) {
    ox_solid solid = unit_brick();
    solid.clip(solid.get_vertices()[0], ox_3dvector(1, 0, 0));
    EXPECT_EQ(solid.get_vertices().size(), 0);
}

} // namespace
