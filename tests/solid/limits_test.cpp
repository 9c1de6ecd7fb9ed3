// The known limits of the face-by-face booleans, one test each: what comes out where faces of
// the two solids coincide. A change of any of these results is a change of behaviour. The last
// tests show the way round: tools are united first and cut once.

#include <string>

#include <gtest/gtest.h>

#include <ox/solid/ox_solid.h>
#include <tests/support/measures.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_solid;

constexpr double volume_tolerance = 0.001;
constexpr double wall_volume = 4.0 * 0.3 * 3.0;

ox_solid brick(float x0, float y0, float z0, float x1, float y1, float z1) {
    return support::brick_between(ox_3dvector(x0, y0, z0), ox_3dvector(x1, y1, z1));
}

ox_solid wall() {
    return brick(0.0f, 0.0f, 0.0f, 4.0f, 0.3f, 3.0f);
}

/// An opening that goes through the wall and sticks out on both sides.
ox_solid opening(float x0, float z0, float x1, float z1) {
    return brick(x0, -0.1f, z0, x1, 0.4f, z1);
}

void expect_solid(ox_solid& solid, int faces, double volume) {
    EXPECT_EQ(support::count_faces(solid), faces);
    EXPECT_NEAR(support::volume_of(solid), volume, volume_tolerance);
}

TEST(OxSolidLimits, IntersectionWithACopyKeepsCoincidentFacesTwiceAndHasTwiceTheVolume) {
    ox_solid solid = brick(0.0f, 0.0f, 0.0f, 1.0f, 1.0f, 1.0f);
    ox_solid copy = solid;
    solid.intersects(copy);
    expect_solid(solid, 12, 2.0);
}

TEST(OxSolidLimits, UnionWithACopyIsTheSolid) {
    ox_solid solid = brick(0.0f, 0.0f, 0.0f, 1.0f, 1.0f, 1.0f);
    ox_solid copy = solid;
    solid.unites(copy);
    expect_solid(solid, 6, 1.0);
}

TEST(OxSolidLimits, DifferenceWithACopyIsEmpty) {
    ox_solid solid = brick(0.0f, 0.0f, 0.0f, 1.0f, 1.0f, 1.0f);
    ox_solid copy = solid;
    solid.substracts(copy);
    expect_solid(solid, 0, 0.0);
}

// Two beams of one height that cross: floor and ceiling get corners that neither beam had, the
// merge takes it for a divergence and keeps the overlap twice.
TEST(OxSolidLimits, UnionOfCrossingCoplanarOutlinesReportsMergeDivergence) {
    ox_solid solid = brick(0.0f, 1.0f, 0.0f, 3.0f, 2.0f, 1.0f);
    ox_solid across = brick(1.0f, 0.0f, 0.0f, 2.0f, 3.0f, 1.0f);
    ::testing::internal::CaptureStdout();
    solid.unites(across);
    const std::string printed = ::testing::internal::GetCapturedStdout();
    EXPECT_EQ(printed, "Merge divergence for 4\nMerge divergence for 5\n");
    // 5 would be right.
    expect_solid(solid, 16, 6.0);
    EXPECT_FALSE(support::is_closed(solid));
}

TEST(OxSolidLimits, UnionOfShiftedCoplanarOutlinesIsRight) {
    ox_solid solid = brick(0.0f, 0.0f, 0.0f, 2.0f, 2.0f, 1.0f);
    ox_solid shifted = brick(1.0f, 1.0f, 0.0f, 3.0f, 3.0f, 1.0f);
    solid.unites(shifted);
    expect_solid(solid, 10, 7.0);
    EXPECT_TRUE(support::is_closed(solid));
}

TEST(OxSolidLimits, SameOpeningCutTwiceLeavesDoubledReveals) {
    ox_solid solid = wall();
    ox_solid window = opening(1.0f, 1.0f, 2.0f, 2.0f);
    solid.substracts(window);
    expect_solid(solid, 10, wall_volume - 0.3);
    solid.substracts(window);
    EXPECT_EQ(support::count_faces(solid), 14);
    EXPECT_FALSE(support::is_closed(solid));
}

TEST(OxSolidLimits, NestedOpeningsThatShareASideLeaveDoubledReveals) {
    ox_solid solid = wall();
    ox_solid small = opening(1.0f, 1.0f, 2.0f, 2.0f);
    ox_solid large = opening(1.0f, 0.5f, 3.0f, 2.5f);
    solid.substracts(small);
    solid.substracts(large);
    // One reveal more than the ten faces of a wall with one opening.
    EXPECT_EQ(support::count_faces(solid), 11);
    EXPECT_FALSE(support::is_closed(solid));
}

/// The tools cut out of the wall at once.
void expect_closed_cut(ox_solid& tools, int faces, double volume) {
    ox_solid solid = wall();
    solid.substracts(tools);
    expect_solid(solid, faces, volume);
    EXPECT_TRUE(support::is_closed(solid));
}

TEST(OxSolidLimits, SameToolUnitedWithItselfAndCutOnceIsRight) {
    ox_solid tools = opening(1.0f, 1.0f, 2.0f, 2.0f);
    ox_solid copy = tools;
    tools.unites(copy);
    expect_closed_cut(tools, 10, wall_volume - 0.3);
}

TEST(OxSolidLimits, NestedToolsUnitedFirstAndCutOnceAreRight) {
    ox_solid tools = opening(1.0f, 1.0f, 2.0f, 2.0f);
    ox_solid large = opening(1.0f, 0.5f, 3.0f, 2.5f);
    tools.unites(large);
    expect_closed_cut(tools, 10, wall_volume - 0.3 * 4.0);
}

TEST(OxSolidLimits, AbuttingToolsUnitedFirstAndCutOnceGiveOneOpening) {
    ox_solid tools = opening(1.0f, 1.0f, 2.0f, 2.0f);
    ox_solid beside = opening(2.0f, 1.0f, 3.0f, 2.0f);
    tools.unites(beside);
    expect_closed_cut(tools, 10, wall_volume - 0.3 * 2.0);
}

TEST(OxSolidLimits, OverlappingToolsUnitedFirstAndCutOnceAreRight) {
    ox_solid tools = opening(1.0f, 1.0f, 2.0f, 2.0f);
    ox_solid shifted = opening(1.5f, 1.5f, 2.5f, 2.5f);
    tools.unites(shifted);
    expect_closed_cut(tools, 14, wall_volume - 0.3 * 1.75);
}

} // namespace
