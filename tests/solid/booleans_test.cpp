#include <ox/solid/ox_solid.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/solid/solid_lists.h>
#include <tests/support/measures.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;
using ox_test::expect_same_storage;
using ox_test::to_vector;
using ox_test::unit_brick;
using support::volume_of;

ox_solid brick_at(float x, float y, float z) {
    ox_solid solid;
    solid.brick(ox_3dvector(x, y, z), 1, 1, 1);
    return solid;
}

// unites

TEST(Uniting, BricksWithBoxesWithinTheMarginOfOneHundredthCombinesThem) {
    ox_solid solid = unit_brick();
    ox_solid near = brick_at(1.009f, 0, 0);
    solid.unites(near);
    EXPECT_GT(solid.get_chrono(0), 0.0);
    EXPECT_NEAR(volume_of(solid), 2.0, 1e-4);
}

TEST(Uniting, BricksFartherApartConcatenatesThem) {
    ox_solid solid = unit_brick();
    ox_solid far = brick_at(1.02f, 0, 0);
    solid.unites(far);
    EXPECT_EQ(solid.get_chrono(0), 0.0);
    EXPECT_EQ(solid.get_faces().size(), 12);
    EXPECT_EQ(solid.get_contours()[24], 24u);
    EXPECT_EQ(solid.get_contours()[47], 47u);
    EXPECT_EQ(solid.get_contour_sizes().size(), 12);
}

TEST(Uniting, ConcatenationAppendsTheListsAsTheyAre) {
    ox_solid far;
    far.set_vertices(ox_test::list_of({ox_3dvector(9, 9, 9)}));
    far.set_contours(ox_test::list_of({5u, 0u}));
    far.set_contour_sizes(ox_test::list_of({-3, 0, 7}));
    ox_solid solid = unit_brick();
    solid.unites(far);
    EXPECT_EQ(solid.get_vertices().size(), 25);
    EXPECT_EQ(solid.get_contours()[24], 29u);
    EXPECT_EQ(solid.get_contours()[25], 24u);
    EXPECT_EQ(solid.get_contour_sizes()[6], -3);
    EXPECT_EQ(solid.get_contour_sizes()[8], 7);
}

TEST(Uniting, IntoAnEmptySolidCopiesTheOther) {
    ox_solid solid;
    ox_solid other = brick_at(3, 0, 0);
    solid.unites(other);
    expect_same_storage(solid, other);
}

TEST(Uniting, WithAnEmptySolidChangesNothing) {
    ox_solid solid = unit_brick();
    ox_polygon* face = solid.get_faces()[0];
    ox_solid empty;
    solid.unites(empty);
    EXPECT_EQ(solid.get_faces()[0], face);
}

TEST(Uniting, OverlappingBricksAddsTheirVolumes) {
    ox_solid solid = unit_brick();
    ox_solid other = brick_at(0.5f, 0.25f, 0.25f);
    solid.unites(other);
    EXPECT_NEAR(volume_of(solid), 2.0 - 0.5 * 0.75 * 0.75, 1e-4);
    EXPECT_TRUE(support::is_closed(solid));
}

TEST(Uniting, WithItselfKeepsTheSolid) {
    ox_solid solid = unit_brick();
    solid.unites(solid);
    EXPECT_EQ(solid.get_faces().size(), 6);
    EXPECT_NEAR(volume_of(solid), 1.0, 1e-5);
}

TEST(Uniting, LeavesTheStorageOfTheOtherAlone) {
    ox_solid solid = unit_brick();
    ox_solid other = brick_at(0.5f, 0.5f, 0.5f);
    const ox_solid before(other);
    solid.unites(other);
    solid.substracts(other);
    solid.intersects(other);
    expect_same_storage(other, before);
}

// substracts

TEST(Substracting, ASolidWhoseBoxOnlyTouchesChangesNothing) {
    ox_solid solid = unit_brick();
    ox_polygon* face = solid.get_faces()[0];
    ox_solid touching = brick_at(1, 0, 0);
    solid.substracts(touching);
    EXPECT_EQ(solid.get_faces()[0], face);
    EXPECT_EQ(solid.get_chrono(0), 0.0);
}

TEST(Substracting, AnEmptySolidOrFromOneChangesNothing) {
    ox_solid solid = unit_brick();
    ox_solid empty;
    solid.substracts(empty);
    expect_same_storage(solid, unit_brick());
    empty.substracts(solid);
    EXPECT_EQ(empty.get_vertices().size(), 0);
}

TEST(Substracting, ACornerTakesItsVolume) {
    ox_solid solid = unit_brick();
    ox_solid other = brick_at(0.5f, 0.5f, 0.5f);
    solid.substracts(other);
    EXPECT_NEAR(volume_of(solid), 0.875, 1e-4);
    EXPECT_EQ(solid.get_faces().size(), 9);
    EXPECT_TRUE(support::is_closed(solid));
}

TEST(Substracting, ItselfLeavesNothing) {
    ox_solid solid = unit_brick();
    solid.substracts(solid);
    EXPECT_EQ(solid.get_vertices().size(), 0);
}

// intersects

TEST(Intersecting, WithADisjointSolidEmptiesTheSolid) {
    ox_solid solid = unit_brick();
    ox_solid far = brick_at(5, 5, 5);
    solid.intersects(far);
    EXPECT_EQ(solid.get_vertices().size(), 0);
    EXPECT_EQ(solid.get_contours().size(), 0);
    EXPECT_EQ(solid.get_contour_sizes().size(), 0);
    EXPECT_TRUE(solid.get_bounding_box().is_empty());
}

TEST(Intersecting, WithATouchingOrAnEmptySolidEmptiesTheSolid) {
    ox_solid solid = unit_brick();
    ox_solid touching = brick_at(1, 0, 0);
    solid.intersects(touching);
    EXPECT_EQ(solid.get_vertices().size(), 0);
    solid = unit_brick();
    ox_solid empty;
    solid.intersects(empty);
    EXPECT_EQ(solid.get_vertices().size(), 0);
}

TEST(Intersecting, AnEmptySolidChangesNothing) {
    ox_solid solid;
    ox_solid other = unit_brick();
    solid.intersects(other);
    EXPECT_EQ(solid.get_vertices().size(), 0);
}

TEST(Intersecting, OverlappingBricksLeavesTheirCommonVolume) {
    ox_solid solid = unit_brick();
    ox_solid other = brick_at(0.5f, 0.25f, 0.25f);
    solid.intersects(other);
    EXPECT_NEAR(volume_of(solid), 0.5 * 0.75 * 0.75, 1e-4);
    EXPECT_EQ(solid.get_faces().size(), 6);
}

TEST(Intersecting, KeepsFacesThatCoincideAndFaceTheSameWayTwice) {
    ox_solid solid = unit_brick();
    solid.intersects(solid);
    EXPECT_EQ(solid.get_faces().size(), 12);
}

} // namespace
