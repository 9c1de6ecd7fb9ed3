// Walls with openings: the everyday work of the solid booleans. Every wall is 4 long, 0.3
// thick and 3 high, its long faces look along -y and +y.

#include <cmath>
#include <initializer_list>

#include <gtest/gtest.h>

#include <ox/solid/ox_solid.h>
#include <tests/support/dump.h>
#include <tests/support/measures.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_solid;
using support::brick_between;

constexpr float thickness = 0.3f;
constexpr double wall_volume = 4.0 * 0.3 * 3.0;

/// A volume may be off by the grid step of 0.0001 on the faces of an opening.
constexpr double volume_tolerance = 0.001;

ox_solid wall() {
    return brick_between(ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(4.0f, thickness, 3.0f));
}

/// An opening in the wall: x and z of its corners, y from front to back.
ox_solid opening(float x0, float z0, float x1, float z1, float front = -0.1f,
                 float back = thickness + 0.1f) {
    return brick_between(ox_3dvector(x0, front, z0), ox_3dvector(x1, back, z1));
}

void expect_solid(ox_solid& solid, int faces, double volume) {
    EXPECT_EQ(support::count_faces(solid), faces) << support::seen(solid, "solid");
    EXPECT_NEAR(support::volume_of(solid), volume, volume_tolerance)
        << support::seen(solid, "solid");
    EXPECT_EQ(support::count_open_edges(solid), 0) << support::seen(solid, "solid");
}

TEST(WallWithOpening, ThroughOpeningAddsFourReveals) {
    ox_solid solid = wall();
    ox_solid window = opening(1.0f, 1.0f, 2.0f, 2.0f);
    solid.substracts(window);
    expect_solid(solid, 10, wall_volume - 1.0 * 0.3 * 1.0);
}

TEST(WallWithOpening, OpeningFlushWithBothSidesIsTheSameAsOneThatSticksOut) {
    ox_solid solid = wall();
    ox_solid window = opening(1.0f, 1.0f, 2.0f, 2.0f, 0.0f, thickness);
    solid.substracts(window);
    expect_solid(solid, 10, wall_volume - 1.0 * 0.3 * 1.0);
}

TEST(WallWithOpening, OpeningFlushWithOneSideGoesThrough) {
    ox_solid solid = wall();
    ox_solid window = opening(1.0f, 1.0f, 2.0f, 2.0f, -0.1f, thickness);
    solid.substracts(window);
    expect_solid(solid, 10, wall_volume - 1.0 * 0.3 * 1.0);
}

TEST(WallWithOpening, BlindOpeningHasABottom) {
    ox_solid solid = wall();
    ox_solid niche = opening(1.0f, 1.0f, 2.0f, 2.0f, -0.1f, 0.1f);
    solid.substracts(niche);
    expect_solid(solid, 11, wall_volume - 1.0 * 0.1 * 1.0);
}

TEST(WallWithOpening, BlindOpeningFlushWithTheFrontHasABottom) {
    ox_solid solid = wall();
    ox_solid niche = opening(1.0f, 1.0f, 2.0f, 2.0f, 0.0f, 0.1f);
    solid.substracts(niche);
    expect_solid(solid, 11, wall_volume - 1.0 * 0.1 * 1.0);
}

TEST(WallWithOpening, OpeningInsideTheWallIsACavity) {
    ox_solid solid = wall();
    ox_solid cavity = opening(1.0f, 1.0f, 2.0f, 2.0f, 0.1f, 0.2f);
    solid.substracts(cavity);
    expect_solid(solid, 12, wall_volume - 1.0 * 0.1 * 1.0);
}

TEST(WallWithOpening, DoorFlushWithTheFloorSplitsTheBottomFace) {
    ox_solid solid = wall();
    ox_solid door = opening(1.0f, 0.0f, 2.0f, 2.0f);
    solid.substracts(door);
    expect_solid(solid, 10, wall_volume - 1.0 * 0.3 * 2.0);
}

TEST(WallWithOpening, DoorThatReachesBelowTheFloorSplitsTheBottomFace) {
    ox_solid solid = wall();
    ox_solid door = opening(1.0f, -0.5f, 2.0f, 2.0f);
    solid.substracts(door);
    expect_solid(solid, 10, wall_volume - 1.0 * 0.3 * 2.0);
}

TEST(WallWithOpening, OpeningAtACornerLeavesAnLShapedWall) {
    ox_solid solid = wall();
    ox_solid corner = opening(3.0f, 2.0f, 4.5f, 3.5f);
    solid.substracts(corner);
    expect_solid(solid, 8, wall_volume - 1.0 * 0.3 * 1.0);
}

TEST(WallWithOpening, FlushOpeningAtACornerLeavesAnLShapedWall) {
    ox_solid solid = wall();
    ox_solid corner = opening(3.0f, 2.0f, 4.0f, 3.0f, 0.0f, thickness);
    solid.substracts(corner);
    expect_solid(solid, 8, wall_volume - 1.0 * 0.3 * 1.0);
}

TEST(WallWithOpening, SlotOverTheWholeHeightLeavesTwoWalls) {
    ox_solid solid = wall();
    ox_solid slot = opening(1.0f, 0.0f, 2.0f, 3.0f, 0.0f, thickness);
    solid.substracts(slot);
    expect_solid(solid, 12, wall_volume - 1.0 * 0.3 * 3.0);
}

TEST(WallWithOpening, AbuttingOpeningsCutOneAfterTheOtherLoseTheFaceBetween) {
    ox_solid solid = wall();
    ox_solid left = opening(1.0f, 1.0f, 2.0f, 2.0f);
    ox_solid right = opening(2.0f, 1.0f, 3.0f, 2.0f);
    solid.substracts(left);
    solid.substracts(right);
    // Two jambs, and a sill and a lintel of two pieces each: a difference merges no faces.
    expect_solid(solid, 12, wall_volume - 2.0 * 0.3 * 1.0);
}

TEST(WallWithOpening, AbuttingFlushOpeningsLoseTheFaceBetween) {
    ox_solid solid = wall();
    ox_solid left = opening(1.0f, 1.0f, 2.0f, 2.0f, 0.0f, thickness);
    ox_solid right = opening(2.0f, 1.0f, 3.0f, 2.0f, 0.0f, thickness);
    solid.substracts(left);
    solid.substracts(right);
    expect_solid(solid, 12, wall_volume - 2.0 * 0.3 * 1.0);
}

TEST(WallWithOpening, SeparateOpeningsLeaveAFaceWithTwoHoles) {
    ox_solid solid = wall();
    ox_solid left = opening(0.5f, 1.0f, 1.5f, 2.0f);
    ox_solid right = opening(2.5f, 1.0f, 3.5f, 2.0f);
    solid.substracts(left);
    solid.substracts(right);
    expect_solid(solid, 14, wall_volume - 2.0 * 0.3 * 1.0);
}

TEST(WallWithOpening, OverlappingOpeningsCutOneAfterTheOtherGiveTheirUnion) {
    ox_solid solid = wall();
    ox_solid low = opening(1.0f, 1.0f, 2.0f, 2.0f);
    ox_solid high = opening(1.5f, 1.5f, 2.5f, 2.5f);
    solid.substracts(low);
    solid.substracts(high);
    expect_solid(solid, 14, wall_volume - 0.3 * 1.75);
}

TEST(WallWithOpening, ManyOpeningsInARowComeOutRight) {
    ox_solid solid =
        brick_between(ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(40.0f, thickness, 3.0f));
    for (int i = 0; i < 20; ++i) {
        const float x = 2.0f * static_cast<float>(i) + 0.5f;
        ox_solid window = opening(x, 1.0f, x + 1.0f, 2.0f);
        solid.substracts(window);
    }
    expect_solid(solid, 6 + 20 * 4, 40.0 * 0.3 * 3.0 - 20.0 * 0.3);
}

TEST(WallWithOpening, TurnedAndMovedWallsComeOutLikeTheStraightOne) {
    support::generator random(2024);
    for (int i = 0; i < 200; ++i) {
        const support::frame axes = support::random_frame(random);
        const ox_3dvector origin = support::random_point(random, 20.0);
        ox_solid solid;
        solid.brick(origin, axes.x * 4.0f, axes.y * thickness, axes.z * 3.0f);
        ox_solid window;
        window.brick(origin + axes.x + axes.z - axes.y * 0.1f, axes.x, axes.y * 0.5f, axes.z);
        solid.substracts(window);
        SCOPED_TRACE(::testing::Message() << "seed 2024, wall " << i);
        expect_solid(solid, 10, wall_volume - 1.0 * 0.3 * 1.0);
    }
}

TEST(WallWithOpening, TwoWallsOfACornerUniteToOneLShapedSolid) {
    ox_solid solid = wall();
    ox_solid other =
        brick_between(ox_3dvector(0.0f, thickness, 0.0f), ox_3dvector(thickness, 4.0f, 3.0f));
    solid.unites(other);
    // Floor and ceiling are merged to one L each, and so are the two halves of the end face.
    expect_solid(solid, 8, wall_volume + 0.3 * 3.7 * 3.0);
}

} // namespace
