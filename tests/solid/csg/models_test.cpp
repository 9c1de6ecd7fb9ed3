// What users build: walls with openings, rows, storeys, roofs, columns, along the axes and askew.
// The right volumes come from formulas.

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include <tests/solid/csg/block_model.h>
#include <tests/solid/csg/judged_results.h>
#include <tests/solid/csg/shapes.h>

namespace {

using csg_test::brick_in;
using csg_test::operation;
using ox::ox_3dvector;
using ox::ox_csg;
using ox::ox_solid;
using support::frame;
using support::generator;

frame general_frame() {
    generator random(91);
    return support::random_frame(random);
}

/// Both placings that the models are built in.
std::vector<frame> both_frames() {
    return {frame(), general_frame()};
}

/// The body without the tools, in one computation.
ox_solid cut(const ox_solid& body, const std::vector<ox_solid>& tools) {
    ox_csg csg;
    csg.unites(body);
    for (const ox_solid& tool : tools) {
        csg.substracts(tool);
    }
    EXPECT_TRUE(csg.compute());
    return csg.get_solid();
}

/// The bound is what is promised for the surface of the model; the tools have little more.
void expect_model(const ox_solid& model, double volume, int faces) {
    EXPECT_NEAR(model.get_volume(), volume, csg_test::volume_bound(model.get_surface_area(), 0.0));
    EXPECT_TRUE(csg_test::is_closed(model));
    EXPECT_EQ(support::count_faces(model), faces);
}

TEST(CsgModels, TwoCrossingWallsOfOneHeightHaveFiveCubicMetresAndFourteenFaces) {
    for (const frame& axes : both_frames()) {
        const ox_solid model = csg_test::unite_all(
            {brick_in(axes, ox_3dvector(0.0f, 1.0f, 0.0f), ox_3dvector(3.0f, 2.0f, 1.0f)),
             brick_in(axes, ox_3dvector(1.0f, 0.0f, 0.0f), ox_3dvector(2.0f, 3.0f, 1.0f))});
        expect_model(model, 5.0, 14);
    }
}

TEST(CsgModels, TwoHundredOverlappingCubesInARowAreOneBar) {
    for (const frame& axes : both_frames()) {
        std::vector<ox_solid> cubes;
        for (int i = 0; i < 200; ++i) {
            const float x = 0.75f * static_cast<float>(i);
            cubes.push_back(
                brick_in(axes, ox_3dvector(x, 0.0f, 0.0f), ox_3dvector(x + 1.0f, 1.0f, 1.0f)));
        }
        expect_model(csg_test::unite_all(cubes), 0.75 * 199.0 + 1.0, 6);
    }
}

/// Sixty blocks that overlap the next one by a quarter and are shifted aside by multiples of 1/8:
/// of the union, each section across the row is one rectangle or the union of two.
TEST(CsgModels, SixtyJitteredBlocksUniteToTheSumOfTheirSections) {
    generator random(92);
    std::vector<ox_solid> blocks;
    double volume = 0.0;
    float last_y = 0.0f;
    float last_z = 0.0f;
    for (int i = 0; i < 60; ++i) {
        const float x = 0.75f * static_cast<float>(i);
        const float y = static_cast<float>(random.between(0, 4)) / 8.0f;
        const float z = static_cast<float>(random.between(0, 4)) / 8.0f;
        blocks.push_back(
            brick_in(frame(), ox_3dvector(x, y, z), ox_3dvector(x + 1.0f, y + 1.0f, z + 1.0f)));
        const double common = i == 0 ? 0.0
                                     : 0.25 * (1.0 - std::fabs(static_cast<double>(y - last_y))) *
                                           (1.0 - std::fabs(static_cast<double>(z - last_z)));
        volume += 1.0 - common;
        last_y = y;
        last_z = z;
    }
    ox_solid one_after_another;
    for (const ox_solid& block : blocks) {
        one_after_another = csg_test::combine(one_after_another, operation::unites, block);
    }
    const ox_solid at_once = csg_test::unite_all(blocks);
    EXPECT_NEAR(at_once.get_volume(), volume, 1e-3);
    EXPECT_NEAR(one_after_another.get_volume(), volume, 1e-3);
    EXPECT_TRUE(csg_test::is_closed(at_once));
    EXPECT_TRUE(csg_test::is_closed(one_after_another));
}

/// A storey of a square core with a slab above it that sticks out all round.
std::vector<ox_solid> storeys(const frame& axes, int count) {
    std::vector<ox_solid> parts;
    for (int i = 0; i < count; ++i) {
        const float floor = 3.0f * static_cast<float>(i);
        parts.push_back(
            brick_in(axes, ox_3dvector(0.0f, 0.0f, floor), ox_3dvector(4.0f, 4.0f, floor + 2.8f)));
        parts.push_back(brick_in(axes, ox_3dvector(-0.5f, -0.5f, floor + 2.8f),
                                 ox_3dvector(4.5f, 4.5f, floor + 3.0f)));
    }
    return parts;
}

/// Of each storey four walls, four sides of its slab, the slab's soffit with a hole, and the top of
/// the slab: with a hole below the next storey. The lowest floor has one more.
TEST(CsgModels, FortyStoreysStackedAreTheSumOfTheirParts) {
    for (const frame& axes : both_frames()) {
        const ox_solid tower = csg_test::unite_all(storeys(axes, 40));
        expect_model(tower, 40.0 * (16.0 * 2.8 + 25.0 * 0.2), 40 * 10 + 1);
    }
}

std::vector<ox_solid> openings(const frame& axes, int count, float pitch, float width) {
    std::vector<ox_solid> tools;
    for (int i = 0; i < count; ++i) {
        const float x = 0.25f + pitch * static_cast<float>(i);
        tools.push_back(
            brick_in(axes, ox_3dvector(x, -0.05f, 1.0f), ox_3dvector(x + width, 0.35f, 2.0f)));
    }
    return tools;
}

ox_solid wall(const frame& axes, float length) {
    return brick_in(axes, ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(length, 0.3f, 3.0f));
}

TEST(CsgModels, AWallWithTwoHundredOpeningsHasFourFacesMoreForEach) {
    for (const frame& axes : both_frames()) {
        expect_model(cut(wall(axes, 300.0f), openings(axes, 200, 1.5f, 1.0f)),
                     0.3 * (900.0 - 200.0), 6 + 4 * 200);
    }
}

TEST(CsgModels, OverlappingAndAbuttingOpeningsAreOneOpening) {
    for (const frame& axes : both_frames()) {
        for (const float pitch : {0.5f, 1.0f}) {
            const ox_solid model = cut(wall(axes, 120.0f), openings(axes, 100, pitch, 1.0f));
            const double opened = 99.0 * static_cast<double>(pitch) + 1.0;
            expect_model(model, 0.3 * (360.0 - opened), 10);
        }
    }
}

TEST(CsgModels, AnOpeningCutTwiceIsCutOnce) {
    for (const frame& axes : both_frames()) {
        std::vector<ox_solid> tools = openings(axes, 3, 1.5f, 1.0f);
        tools.insert(tools.end(), tools.begin(), tools.end());
        expect_model(cut(wall(axes, 6.0f), tools), 0.3 * 15.0, 6 + 4 * 3);
    }
}

TEST(CsgModels, DoorsThatReachTheFloorCutTheOutlineOfTheWall) {
    for (const frame& axes : both_frames()) {
        std::vector<ox_solid> doors;
        for (int i = 0; i < 10; ++i) {
            const float x = 0.25f + 1.5f * static_cast<float>(i);
            doors.push_back(
                brick_in(axes, ox_3dvector(x, 0.0f, 0.0f), ox_3dvector(x + 1.0f, 0.3f, 2.0f)));
        }
        // Jambs and a lintel for each door; eleven pieces of floor instead of one.
        expect_model(cut(wall(axes, 15.0f), doors), 0.3 * (45.0 - 20.0), 6 + 3 * 10 + 10);
    }
}

TEST(CsgModels, RoundOpeningsLeaveAFaceForEachSide) {
    constexpr int sides = 24;
    for (const frame& axes : both_frames()) {
        const frame across = {axes.x, -axes.z, axes.y}; // the axis of the openings is y
        std::vector<ox_solid> tools;
        for (int i = 0; i < 20; ++i) {
            const double x = 0.75 + 1.5 * i;
            tools.push_back(csg_test::column(
                across, csg_test::point_in(axes, ox_3dvector(), x, 0.15, 1.5), sides, 0.5, 0.4));
        }
        expect_model(cut(wall(axes, 30.0f), tools),
                     0.3 * 90.0 - 20.0 * csg_test::column_volume(sides, 0.5, 0.3), 6 + sides * 20);
    }
}

/// A wall along a circle, of 64 straight segments, with three openings in each of the first fifty.
TEST(CsgModels, ACurvedWallWithOpeningsLosesTheirVolumeExactly) {
    constexpr int segments = 64;
    constexpr double radius = 60.0;
    const double half_angle = csg_test::full_turn / segments / 2.0;
    const ox_solid body = csg_test::ring(frame(), ox_3dvector(0.0f, 0.0f, 1.5f), segments,
                                         (radius + 0.15) / std::cos(half_angle),
                                         (radius - 0.15) / std::cos(half_angle), 3.0);
    std::vector<ox_solid> tools;
    for (int segment = 0; segment < 50; ++segment) {
        const double angle = half_angle * (2 * segment + 1);
        const frame axes = {ox_3dvector(static_cast<float>(-std::sin(angle)),
                                        static_cast<float>(std::cos(angle)), 0.0f),
                            ox_3dvector(static_cast<float>(-std::cos(angle)),
                                        static_cast<float>(-std::sin(angle)), 0.0f),
                            ox_3dvector(0.0f, 0.0f, 1.0f)};
        for (const float x : {-1.8f, -0.4f, 1.0f}) {
            tools.push_back(
                brick_in(axes, ox_3dvector(x, -60.4f, 1.0f), ox_3dvector(x + 0.8f, -59.6f, 2.0f)));
        }
    }
    const double volume =
        csg_test::column_volume(segments, (radius + 0.15) / std::cos(half_angle), 3.0) -
        csg_test::column_volume(segments, (radius - 0.15) / std::cos(half_angle), 3.0);
    expect_model(cut(body, tools), volume - 150.0 * 0.8 * 0.3, 2 * segments + 2 + 4 * 150);
}

TEST(CsgModels, AGableRoofOnFourWallsLeavesNoSliver) {
    for (const frame& axes : both_frames()) {
        ox_csg csg;
        csg.unites(brick_in(axes, ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(8.0f, 6.0f, 3.0f)));
        ox::ox_polygon gable;
        gable.add_contour(
            support::contour({csg_test::point_in(axes, ox_3dvector(), 0.0, 0.0, 3.0),
                              csg_test::point_in(axes, ox_3dvector(), 0.0, 6.0, 3.0),
                              csg_test::point_in(axes, ox_3dvector(), 0.0, 3.0, 5.0)}));
        ox_solid roof;
        roof.extrusion(gable, axes.x * 8.0f);
        csg.unites(roof);
        ASSERT_TRUE(csg.compute());
        expect_model(csg.get_solid(), 8.0 * 6.0 * 3.0 + 8.0 * 6.0, 7);
    }
}

TEST(CsgModels, AWallMinusAColumnBesideItKeepsNoSkin) {
    for (const frame& axes : both_frames()) {
        const ox_solid column =
            brick_in(axes, ox_3dvector(1.0f, 0.3f, 0.0f), ox_3dvector(1.4f, 0.7f, 3.0f));
        expect_model(cut(wall(axes, 4.0f), {column}), 3.6, 6);
    }
}

TEST(CsgModels, ARoofCutByTwoPlanesHasTheVolumeOfAHouse) {
    for (const frame& axes : both_frames()) {
        ox_csg csg;
        csg.unites(brick_in(axes, ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(8.0f, 6.0f, 5.0f)));
        const ox_3dvector ridge = csg_test::point_in(axes, ox_3dvector(), 4.0, 3.0, 5.0);
        csg.clips(ridge, axes.y * 2.0f + axes.z * 3.0f);
        csg.clips(ridge, axes.y * -2.0f + axes.z * 3.0f);
        ASSERT_TRUE(csg.compute());
        expect_model(csg.get_solid(), 8.0 * 6.0 * 3.0 + 8.0 * 6.0, 7);
    }
}

TEST(CsgModels, APlateDrilledAHundredAndFortyFourTimesKeepsItsHoles) {
    constexpr int sides = 16;
    for (const frame& axes : both_frames()) {
        std::vector<ox_solid> drills;
        for (int i = 0; i < 144; ++i) {
            drills.push_back(csg_test::column(
                axes, csg_test::point_in(axes, ox_3dvector(), 1.0 + i % 12, 1.0 + i / 12, 0.1),
                sides, 0.3, 0.4));
        }
        const ox_solid plate =
            brick_in(axes, ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(13.0f, 13.0f, 0.2f));
        expect_model(cut(plate, drills),
                     169.0 * 0.2 - 144.0 * csg_test::column_volume(sides, 0.3, 0.2),
                     6 + sides * 144);
    }
}

TEST(CsgModels, ASphereMinusASphereAndTheirCommonPartMakeUpTheSphere) {
    const ox_solid ball = csg_test::sphere(ox_3dvector(), 32, 10.0);
    const ox_solid tool = csg_test::sphere(ox_3dvector(6.13f, 4.37f, 2.71f), 32, 10.0);
    const ox_solid rest = csg_test::combine(ball, operation::substracts, tool);
    const ox_solid common = csg_test::combine(ball, operation::intersects, tool);
    EXPECT_NEAR(rest.get_volume() + common.get_volume(), ball.get_volume(), 0.3);
    EXPECT_GT(common.get_volume(), 900.0);
    EXPECT_TRUE(csg_test::is_closed(rest));
    EXPECT_TRUE(csg_test::is_closed(common));
}

} // namespace
