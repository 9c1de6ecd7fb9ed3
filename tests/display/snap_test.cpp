#include <gtest/gtest.h>
#include <limits>
#include <ox/display/ox_snap.h>

namespace {

using ox::ox_3dvector;
using ox::ox_snap;

const ox_3dvector origin;
const ox_3dvector x_axis(1, 0, 0);
const ox_3dvector y_axis(0, 1, 0);
const ox_3dvector z_axis(0, 0, 1);

ox_snap free_pick(float tolerance) {
    return ox_snap(ox_3dvector(0, 0, 1), tolerance, 3, origin);
}

TEST(OxSnap, FreePickLosesADegreeOfFreedomWithEachOfThreePlanes) {
    ox_snap snap = free_pick(2);
    EXPECT_TRUE(snap.check_plane(origin, z_axis));
    EXPECT_EQ(snap.position, origin);
    EXPECT_EQ(snap.freedom, 2);
    EXPECT_EQ(snap.direction, z_axis);
    EXPECT_TRUE(snap.check_plane(ox_3dvector(0.5f, 9, 9), x_axis));
    EXPECT_EQ(snap.position, ox_3dvector(0.5f, 0, 0));
    EXPECT_EQ(snap.freedom, 1);
    EXPECT_EQ(snap.direction, -y_axis); // new normal x old one
    EXPECT_TRUE(snap.check_plane(ox_3dvector(9, -0.5f, 9), y_axis));
    EXPECT_EQ(snap.position, ox_3dvector(0.5f, -0.5f, 0));
    EXPECT_EQ(snap.freedom, 0);
    EXPECT_FALSE(snap.check_plane(origin, ox_3dvector(0.6f, 0.8f, 0)));
    EXPECT_EQ(snap.reference, ox_3dvector(0, 0, 1));
}

TEST(OxSnap, PlaneFartherThanTheToleranceIsRefused) {
    ox_snap snap = free_pick(0.5f);
    EXPECT_FALSE(snap.check_plane(origin, z_axis));
    EXPECT_EQ(snap.position, ox_3dvector(0, 0, 1));
    EXPECT_EQ(snap.freedom, 3);
}

TEST(OxSnap, DistanceOfExactlyTheToleranceIsAccepted) {
    ox_snap snap = free_pick(1);
    EXPECT_TRUE(snap.check_plane(origin, z_axis));
}

TEST(OxSnap, SecondPlaneParallelToTheFirstIsRefused) {
    ox_snap snap = free_pick(2);
    ASSERT_TRUE(snap.check_plane(origin, z_axis));
    for (const ox_3dvector& normal : {z_axis, -z_axis, ox_3dvector(0.005f, 0, 1)}) {
        EXPECT_FALSE(snap.check_plane(ox_3dvector(0, 0, 0.5f), normal));
    }
    EXPECT_EQ(snap.freedom, 2);
    EXPECT_EQ(snap.position, origin);
}

TEST(OxSnap, PlaneParallelToTheLineIsRefused) {
    ox_snap snap(origin, 5, 1, x_axis);
    EXPECT_FALSE(snap.check_plane(ox_3dvector(0, 1, 0), y_axis));
    EXPECT_EQ(snap.freedom, 1);
}

TEST(OxSnap, FixedPointRefusesEveryPlane) {
    for (const int freedom : {0, -1, (std::numeric_limits<int>::min)()}) {
        ox_snap snap(origin, 5, freedom, z_axis);
        EXPECT_FALSE(snap.check_plane(origin, z_axis));
    }
}

TEST(OxSnap, FreedomAbove3IsFree) {
    ox_snap snap(ox_3dvector(0, 0, 1), 2, 17, origin);
    EXPECT_TRUE(snap.check_plane(origin, z_axis));
    EXPECT_EQ(snap.freedom, 2);
}

TEST(OxSnap, NumbersThatAreNotFiniteAreRefused) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const int freedom : {1, 2, 3}) {
        ox_snap snap(origin, 2, freedom, x_axis);
        EXPECT_FALSE(snap.check_plane(origin, ox_3dvector(nan, 0, 0)));
        EXPECT_FALSE(snap.check_plane(ox_3dvector(nan, 0, 0), ox_3dvector(0.6f, 0.8f, 0)));
        snap.tolerance = nan;
        EXPECT_FALSE(snap.check_plane(origin, ox_3dvector(0.6f, 0.8f, 0)));
        EXPECT_EQ(snap.freedom, freedom);
    }
}

TEST(OxSnap, AnInfiniteToleranceAcceptsSnapsToInfinity) {
    const float infinity = std::numeric_limits<float>::infinity();
    ox_snap snap(origin, infinity, 3, x_axis);
    EXPECT_TRUE(
        snap.check_plane(ox_3dvector(3e38f, 3e38f, 3e38f), ox_3dvector(0.58f, 0.58f, 0.58f)));
    EXPECT_EQ(snap.position.x, infinity);
}

TEST(OxSnap, ItsOwnFieldsMayBeThePlane) {
    ox_snap snap(origin, 2, 2, ox_3dvector(0, 0, 1));
    snap.reference = ox_3dvector(0, 0, 0);
    EXPECT_FALSE(snap.check_plane(snap.position, snap.direction));
    EXPECT_TRUE(ox_snap(snap).check_plane(snap.reference, x_axis));
}

} // namespace
