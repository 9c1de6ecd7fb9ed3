#include <examples/building/volumes.h>

#include <gtest/gtest.h>

namespace {

using namespace building;

constexpr double rounding = 1e-12;

wall make_wall(plan_point from, plan_point to, double height) {
    wall w;
    w.from = from;
    w.to = to;
    w.thickness = 0.2;
    w.height = height;
    return w;
}

description one_storey() {
    description d;
    d.storeys.push_back({3});
    return d;
}

TEST(BuildingVolumes, LoneWallIsABox) {
    description d = one_storey();
    d.walls.push_back(make_wall({0, 0}, {4, 3}, 2));
    EXPECT_NEAR(walls_volume(d, 0), 5 * 0.2 * 2, rounding);
}

TEST(BuildingVolumes, CornerIsCountedOnce) {
    description d = one_storey();
    d.walls.push_back(make_wall({0, 0.1}, {4, 0.1}, 2));
    d.walls.push_back(make_wall({0.1, 0}, {0.1, 3}, 2));
    EXPECT_NEAR(walls_volume(d, 0), (4 * 0.2 + 3 * 0.2 - 0.04) * 2, rounding);
}

TEST(BuildingVolumes, PlaceCoveredByThreeWallsIsCountedOnce) {
    description d = one_storey();
    d.walls.push_back(make_wall({0, 0}, {4, 0}, 2));
    d.walls.push_back(make_wall({2, -1}, {2, 1}, 2));
    d.walls.push_back(make_wall({1, 0}, {3, 0}, 2));
    EXPECT_NEAR(walls_volume(d, 0), (4 * 0.2 + 2 * 0.2 - 0.04) * 2, rounding);
}

TEST(BuildingVolumes, CornerOfALowWallIsHeldByTheHighOne) {
    description d = one_storey();
    d.walls.push_back(make_wall({0, 0.1}, {4, 0.1}, 2));
    d.walls.push_back(make_wall({0.1, 0}, {0.1, 3}, 1));
    EXPECT_NEAR(walls_volume(d, 0), 4 * 0.2 * 2 + (3 - 0.2) * 0.2 * 1, rounding);
}

TEST(BuildingVolumes, OpeningIsCutThroughTheThickness) {
    description d = one_storey();
    d.walls.push_back(make_wall({0, 0}, {4, 0}, 2));
    opening o;
    o.distance = 1;
    o.width = 1.5;
    o.height = 0.8;
    d.openings.push_back(o);
    EXPECT_NEAR(walls_volume(d, 0), 4 * 0.2 * 2 - 1.5 * 0.8 * 0.2, rounding);
}

/// What an opening of one metre by two takes out of a wall one metre thick.
double volume_taken_by(opening_shape shape) {
    description d = one_storey();
    d.walls.push_back(make_wall({0, 0}, {4, 0}, 3));
    d.walls.back().thickness = 1;
    const double whole = walls_volume(d, 0);
    opening o;
    o.distance = 1;
    o.width = 1;
    o.height = 2;
    o.shape = shape;
    d.openings.push_back(o);
    return whole - walls_volume(d, 0);
}

TEST(BuildingVolumes, ArchesAndRoundOpeningsTakeLittleLessThanTheirCurves) {
    constexpr double pi = 3.14159265358979323846;
    constexpr double share = 0.994; // of the area of an ellipse, in 32 straight pieces
    EXPECT_NEAR(volume_taken_by(opening_shape::arch), 1.5 + share * pi / 8, 0.001);
    EXPECT_NEAR(volume_taken_by(opening_shape::round), share * pi / 2, 0.001);
}

TEST(BuildingVolumes, GableWallEndsAtTheUndersideOfTheRoof) {
    description d = one_storey();
    d.walls.push_back(make_wall({0, 0}, {0, 8}, 10));
    roof r;
    r.thickness = 0.25;
    // At rise 0.75 a roof 0.25 thick is 0.3125 thick along the vertical.
    r.slopes.push_back({{-1, 0}, {1, 0}, 3.3125, 0.75});
    r.slopes.push_back({{1, 8}, {-1, 8}, 3.3125, 0.75});
    d.roofs.push_back(r);
    EXPECT_NEAR(walls_volume(d, 0), 8 * 3 / 2.0 * 0.2, rounding);
}

TEST(BuildingVolumes, SlabLosesItsHolesInAnyDirection) {
    slab s;
    s.thickness = 0.25;
    s.outline = {{0, 0}, {0, 4}, {5, 4}, {5, 0}};
    s.holes = {{{1, 1}, {2, 1}, {2, 2}, {1, 2}}, {{3, 1}, {3, 2}, {4, 2}, {4, 1}}};
    EXPECT_NEAR(slab_volume(s), (20 - 2) * 0.25, rounding);
}

TEST(BuildingVolumes, RoofIsTheUpperPrismLessTheLowerOne) {
    roof r;
    r.level = 0;
    r.thickness = 0.8;
    r.outline = {{0, 0}, {10, 0}, {10, 8}, {0, 8}};
    // At rise 0.75 a roof 0.8 thick is 1 thick along the vertical.
    r.slopes.push_back({{0, 0}, {10, 0}, 1, 0.75});
    r.slopes.push_back({{10, 8}, {0, 8}, 1, 0.75});
    EXPECT_NEAR(roof_volume(r), 10 * 8 * 1.0, rounding * 100);
}

} // namespace
