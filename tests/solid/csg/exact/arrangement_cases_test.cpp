#include <gtest/gtest.h>

#include <cmath>
#include <new>

#include <tests/solid/csg/exact/arrangement_laws.h>
#include <tests/solid/csg/exact/arrangement_shapes.h>
#include <tests/support/failing_memory.h>

namespace {

using namespace arrangement_laws;
using namespace arrangement_shapes;
using ox::internal::csg::boundary_piece;

/// Units of the grid along an edge of the bricks.
constexpr std::int64_t unit = 10;

shape bricks(std::int64_t x, std::int64_t y, std::int64_t z, std::int64_t to_x, std::int64_t to_y,
             std::int64_t to_z) {
    return brick({unit * x, unit * y, unit * z}, {unit * to_x, unit * to_y, unit * to_z});
}

/// The volume of the result in bricks, which has to be closed.
double closed_volume(const arrangement_input& input) {
    const arrangement_result result = arranged(input);
    EXPECT_TRUE(is_closed(result)) << described(input);
    return std::round(volume(result)) / static_cast<double>(unit * unit * unit);
}

double combined(const shape& first, operation applied, const shape& second) {
    input_builder builder;
    builder.add(operation::unite, first);
    builder.add(applied, second);
    return closed_volume(builder.input());
}

TEST(CsgArrangementCases, NothingGivesNothing) {
    EXPECT_TRUE(arranged({}).pieces.empty());
    EXPECT_EQ(combined({}, operation::unite, {}), 0.0);
    EXPECT_EQ(combined(bricks(0, 0, 0, 1, 1, 1), operation::intersect, {}), 0.0);
}

TEST(CsgArrangementCases, WhatComesBeforeTheFirstUnionActsOnNothing) {
    input_builder builder;
    builder.add(operation::substract, bricks(0, 0, 0, 3, 3, 3));
    builder.add(operation::intersect, bricks(0, 0, 0, 3, 3, 3));
    EXPECT_TRUE(arranged(builder.input()).pieces.empty());
    builder.add(operation::unite, bricks(1, 1, 1, 2, 2, 2));
    EXPECT_EQ(closed_volume(builder.input()), 1.0);
}

TEST(CsgArrangementCases, CrossingWallsOfOneHeightShareTheirCrossing) {
    EXPECT_EQ(combined(bricks(0, 1, 0, 3, 2, 1), operation::unite, bricks(1, 0, 0, 2, 3, 1)), 5.0);
}

TEST(CsgArrangementCases, AColumnThatTouchesIsNeitherCutNorLeavesASkin) {
    const shape wall = bricks(0, 0, 0, 4, 1, 3);
    EXPECT_EQ(combined(wall, operation::substract, bricks(1, 1, 0, 2, 2, 3)), 12.0);
    EXPECT_EQ(combined(wall, operation::intersect, bricks(1, 1, 0, 2, 2, 3)), 0.0);
    EXPECT_EQ(combined(wall, operation::unite, bricks(1, 1, 0, 2, 2, 3)), 15.0);
}

TEST(CsgArrangementCases, AnOpeningCutTwiceIsCutOnce) {
    input_builder builder;
    builder.add(operation::unite, bricks(0, 0, 0, 4, 1, 3));
    builder.add(operation::substract, bricks(1, 0, 1, 2, 1, 2));
    const std::size_t piece_count = arranged(builder.input()).pieces.size();
    builder.add(operation::substract, bricks(1, 0, 1, 2, 1, 2));
    EXPECT_EQ(arranged(builder.input()).pieces.size(), piece_count);
    EXPECT_EQ(closed_volume(builder.input()), 11.0);
}

TEST(CsgArrangementCases, AnOperandThatIsInsideOutCountsAsWhatItEncloses) {
    const shape turned = turned_inside_out(bricks(1, 0, 0, 3, 1, 1));
    EXPECT_EQ(combined(bricks(0, 0, 0, 2, 1, 1), operation::unite, turned), 3.0);
    EXPECT_EQ(combined(turned, operation::substract, bricks(0, 0, 0, 2, 1, 1)), 1.0);
}

TEST(CsgArrangementCases, TwoShellsOfOneOperandCountAsTheirUnion) {
    shape both = bricks(0, 0, 0, 2, 2, 2);
    const shape second = bricks(1, 0, 0, 3, 2, 2);
    both.insert(both.end(), second.begin(), second.end());
    EXPECT_EQ(combined(both, operation::unite, {}), 12.0);
}

TEST(CsgArrangementCases, AShellInsideAnotherIsACavityWhereItIsSubstracted) {
    EXPECT_EQ(combined(bricks(0, 0, 0, 3, 3, 3), operation::substract, bricks(1, 1, 1, 2, 2, 2)),
              26.0);
    EXPECT_EQ(combined(bricks(0, 0, 0, 3, 3, 3), operation::unite, bricks(1, 1, 1, 2, 2, 2)), 27.0);
    EXPECT_EQ(combined(bricks(1, 1, 1, 2, 2, 2), operation::substract, bricks(0, 0, 0, 3, 3, 3)),
              0.0);
}

TEST(CsgArrangementCases, ShellsThatTouchInACornerAreApart) {
    for (const std::int64_t x : {-1, 1}) {
        for (const std::int64_t y : {-1, 1}) {
            EXPECT_EQ(combined(bricks(0, 0, 0, 1, 1, 1), operation::substract,
                               bricks(x, y, 1, x + 1, y + 1, 2)),
                      1.0);
            EXPECT_EQ(combined(bricks(x, y, 1, x + 1, y + 1, 2), operation::unite,
                               bricks(0, 0, 0, 1, 1, 1)),
                      2.0);
        }
    }
}

TEST(CsgArrangementCases, ATriangleWithoutAreaDividesTheEdgeThatItLiesAlong) {
    // The brick's front face is divided on its upper edge, the top only by the flat triangle.
    const grid_point middle = {5, 0, 10};
    shape divided = brick({0, 0, 0}, {10, 10, 10});
    for (std::array<grid_point, 3>& triangle : divided) {
        if (triangle[0].y == 0 && triangle[1].y == 0 && triangle[2].y == 0 &&
            triangle[0].z + triangle[1].z + triangle[2].z == 20) {
            triangle = {grid_point{0, 0, 0}, {10, 0, 10}, middle};
        }
    }
    divided.push_back({grid_point{0, 0, 0}, middle, {0, 0, 10}});
    divided.push_back({middle, grid_point{10, 0, 10}, {0, 0, 10}});
    EXPECT_EQ(combined(divided, operation::substract, bricks(0, 0, 0, 1, 1, 1)), 0.0);
    EXPECT_EQ(combined(divided, operation::unite, {}), 1.0);
}

TEST(CsgArrangementCases, APieceComesFromTheLowestOperandThatCoversIt) {
    input_builder builder;
    builder.add(operation::unite, bricks(0, 0, 0, 1, 1, 1));
    builder.add(operation::unite, bricks(0, 0, 0, 1, 1, 1));
    builder.add(operation::unite, turned_inside_out(bricks(1, 0, 0, 2, 1, 1)));
    const arrangement_result result = arranged(builder.input());
    EXPECT_EQ(result.pieces.size(), 20u);
    for (const boundary_piece& piece : result.pieces) {
        const auto& triangle = builder.input().triangles[static_cast<std::size_t>(piece.triangle)];
        EXPECT_EQ(triangle.operand, piece.origin);
        EXPECT_NE(piece.origin, 1);
        EXPECT_EQ(piece.reversed, piece.origin == 2);
    }
}

TEST(CsgArrangementCases, TheRevealsOfAnOpeningFaceTheOtherWayThanItsTool) {
    input_builder builder;
    builder.add(operation::unite, bricks(0, 0, 0, 3, 1, 3));
    builder.add(operation::substract, bricks(1, -1, 1, 2, 2, 2));
    const arrangement_result result = arranged(builder.input());
    for (const boundary_piece& piece : result.pieces) {
        EXPECT_EQ(piece.reversed, piece.origin == 1);
    }
}

TEST(CsgArrangementCases, ManyShellsInEachOtherAlternate) {
    input_builder builder;
    double expected = 0.0;
    for (std::int64_t size = 40; size > 0; --size) {
        builder.add(size % 2 == 0 ? operation::unite : operation::substract,
                    bricks(-size, -size, -size, size, size, size));
        const auto side = static_cast<double>(2 * size);
        expected += (size % 2 == 0 ? 1.0 : -1.0) * side * side * side;
    }
    EXPECT_EQ(closed_volume(builder.input()), expected);
}

TEST(CsgArrangementCases, WedgesAboutOneAxisMakeAWhole) {
    // Each wedge reaches over the next; all share the axis.
    const std::vector<grid_point> rim = {{100, 0, 0},  {70, 70, 0},   {0, 100, 0},  {-70, 70, 0},
                                         {-100, 0, 0}, {-70, -70, 0}, {0, -100, 0}, {70, -70, 0}};
    input_builder builder;
    const auto raised = [](grid_point p) { return grid_point{p.x, p.y, 50}; };
    for (std::size_t i = 0; i < rim.size(); ++i) {
        const std::array<grid_point, 4> base = {grid_point{0, 0, 0}, rim[i], rim[(i + 1) % 8],
                                                rim[(i + 2) % 8]};
        std::array<grid_point, 8> corners = {base[0],         base[1],         base[3],
                                             base[2],         raised(base[0]), raised(base[1]),
                                             raised(base[3]), raised(base[2])};
        builder.add(operation::unite, hexahedron(corners, 0));
    }
    const arrangement_result result = arranged(builder.input());
    EXPECT_TRUE(is_closed(result));
    EXPECT_NEAR(volume(result), 8 * 7000.0 / 2 * 50, 1e-6);
}

TEST(CsgArrangementCases, AReportThatSaysNoEndsTheWorkAndLeavesTheResultAsItWas) {
    std::mt19937 engine(5);
    input_builder builder;
    for (int i = 0; i < 12; ++i) {
        builder.add(operation::unite, random_shape(engine, 20, 64));
    }
    int asked_in_all = 0;
    arrangement_result whole;
    const auto count_questions = [&](double) { return ++asked_in_all > 0; };
    ASSERT_TRUE(ox::internal::csg::arrange(builder.input(), count_questions, whole));
    ASSERT_GT(asked_in_all, 4);
    for (int last = 1; last <= asked_in_all; ++last) {
        arrangement_result result;
        result.points = {{1.0, 2.0, 3.0}};
        int asked = 0;
        const auto answer = [&](double) { return ++asked < last; };
        EXPECT_FALSE(ox::internal::csg::arrange(builder.input(), answer, result));
        EXPECT_EQ(asked, last);
        EXPECT_EQ(result.points.size(), 1u);
    }
}

TEST(CsgArrangementCases, TheShareOfTheWorkThatIsDoneOnlyGrows) {
    input_builder builder;
    for (std::int64_t i = 0; i < 30; ++i) {
        builder.add(operation::unite, bricks(i, i, 0, i + 3, i + 2, 2));
    }
    double done = 0.0;
    const auto compare = [&](double share) {
        EXPECT_GE(share, done);
        EXPECT_LE(share, 1.0);
        done = share;
        return true;
    };
    arrangement_result result;
    EXPECT_TRUE(ox::internal::csg::arrange(builder.input(), compare, result));
    EXPECT_GT(done, 0.9);
}

TEST(CsgArrangementCases, AnAllocationThatFailsLeavesTheResultAsItWas) {
    input_builder builder;
    builder.add(operation::unite, bricks(0, 0, 0, 3, 1, 3));
    builder.add(operation::substract, bricks(1, -1, 1, 2, 2, 2));
    int failures = 0;
    for (bool has_failed = true; has_failed; ++failures) {
        arrangement_result result;
        result.points = {{1.0, 2.0, 3.0}};
        bool has_thrown = false;
        failing_memory::start(failures + 1, false);
        try {
            ox::internal::csg::arrange(builder.input(), {}, result);
        } catch (const std::bad_alloc&) {
            has_thrown = true;
        }
        has_failed = failing_memory::stop();
        // A sort that gets no memory does without.
        EXPECT_TRUE(has_failed || !has_thrown);
        EXPECT_EQ(result.points.size() == 1, has_thrown);
        EXPECT_EQ(result.pieces.empty(), has_thrown);
    }
    EXPECT_GT(failures, 20);
}

} // namespace
