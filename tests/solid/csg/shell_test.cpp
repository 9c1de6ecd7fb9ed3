// How the shell of an operand is read, welded and found closed.

#include <gtest/gtest.h>

#include <ox/solid/internal/csg/shell.h>
#include <ox/solid/ox_solid.h>

namespace {

using ox::ox_3dvector;
using ox::ox_csg_problem;
using ox::ox_list;
using ox::ox_solid;
using namespace ox::internal::csg;

constexpr float tolerance = 0.001f;

operand operand_of(const ox_solid& solid) {
    operand given;
    given.vertices = solid.get_vertices();
    given.contours = solid.get_contours();
    given.contour_sizes = solid.get_contour_sizes();
    return given;
}

ox_solid brick() {
    ox_solid solid;
    solid.brick(ox_3dvector(0.1f, 0.2f, 0.3f), 1.0f, 2.0f, 3.0f);
    return solid;
}

/// A shell read, welded and closed, with the problems it has.
struct prepared_shell {
    shell made;
    std::vector<ox_csg_problem> problems;

    explicit prepared_shell(const ox_solid& solid, float reach = tolerance) {
        const working_grid grid({operand_of(solid)}, reach);
        made = read_shell(operand_of(solid), 3, reach, grid, problems);
        if (problems.empty()) {
            weld(made, grid);
            close_shell(made, 3, grid, problems);
        }
    }
};

/// Moves the vertices of a face by a distance along x, so that cracks open around it.
ox_solid with_moved_face(ox_solid solid, int face, float distance) {
    ox_list<ox_3dvector> vertices = solid.get_vertices();
    for (int i = 4 * face; i < 4 * face + 4; ++i) {
        vertices[i].x += distance;
    }
    solid.set_vertices(vertices);
    return solid;
}

/// The front of a unit cube whose top edge is divided in the middle, the top's is not.
ox_solid cube_with_a_vertex_within_an_edge(float height) {
    ox_solid solid;
    ox_list<ox_3dvector> vertices;
    for (int i = 0; i < 8; ++i) {
        vertices.push_right(ox_3dvector(static_cast<float>(i & 1), static_cast<float>(i >> 1 & 1),
                                        static_cast<float>(i >> 2 & 1)));
    }
    vertices.push_right(ox_3dvector(0.5f, 0.0f, height));
    ox_list<unsigned int> contours;
    for (const unsigned int index : {0u, 1u, 5u, 8u, 4u, 4u, 5u, 7u, 6u, 0u, 2u, 3u, 1u,
                                     2u, 6u, 7u, 3u, 0u, 4u, 6u, 2u, 1u, 3u, 7u, 5u}) {
        contours.push_right(index);
    }
    ox_list<int> sizes;
    for (const int size : {5, 4, 4, 4, 4, 4}) {
        sizes.push_right(size);
    }
    solid.set_vertices(vertices);
    solid.set_contours(contours);
    solid.set_contour_sizes(sizes);
    return solid;
}

TEST(CsgShell, TheCopiesOfACornerBecomeOnePoint) {
    const prepared_shell shell(brick());
    EXPECT_TRUE(shell.problems.empty());
    EXPECT_EQ(shell.made.points.size(), 8u);
    EXPECT_EQ(shell.made.faces.size(), 6u);
}

TEST(CsgShell, PointsKeepTheFloatsTheyWereGivenAs) {
    const prepared_shell shell(brick());
    EXPECT_TRUE(shell.made.vertices.front() == brick().get_vertices()[0]);
}

TEST(CsgShell, CracksBelowTheToleranceClose) {
    const prepared_shell shell(with_moved_face(brick(), 2, 0.0009f));
    EXPECT_TRUE(shell.problems.empty());
    EXPECT_EQ(shell.made.points.size(), 8u);
}

TEST(CsgShell, CracksAboveTheToleranceAreOpenEdgesOfBothSides) {
    const prepared_shell shell(with_moved_face(brick(), 2, 0.002f));
    EXPECT_EQ(shell.problems.size(), 8u);
    for (const ox_csg_problem& problem : shell.problems) {
        EXPECT_EQ(problem.operand, 3);
        EXPECT_EQ(problem.kind, ox_csg_problem::problem_open_edge);
    }
}

TEST(CsgShell, AVertexWithinAnEdgeDividesIt) {
    const prepared_shell shell(cube_with_a_vertex_within_an_edge(1.0f));
    EXPECT_TRUE(shell.problems.empty());
    EXPECT_EQ(shell.made.faces[1].size(), 5u);
}

TEST(CsgShell, AVertexWithinTheToleranceOfAnEdgeDividesIt) {
    EXPECT_TRUE(prepared_shell(cube_with_a_vertex_within_an_edge(0.9995f)).problems.empty());
}

TEST(CsgShell, AVertexFartherFromAnEdgeLeavesItOpen) {
    EXPECT_FALSE(prepared_shell(cube_with_a_vertex_within_an_edge(0.99f)).problems.empty());
}

TEST(CsgShell, WithToleranceZeroNearPointsStayApart) {
    EXPECT_TRUE(prepared_shell(brick(), 0.0f).problems.empty());
    EXPECT_FALSE(prepared_shell(with_moved_face(brick(), 2, 0.00001f), 0.0f).problems.empty());
}

TEST(CsgShell, AnIndexOutOfRangeEndsTheFaces) {
    ox_solid solid = brick();
    ox_list<unsigned int> contours = solid.get_contours();
    contours[9] = 24;
    solid.set_contours(contours);
    std::vector<ox_csg_problem> problems;
    const working_grid grid({operand_of(solid)}, tolerance);
    EXPECT_EQ(read_shell(operand_of(solid), 0, tolerance, grid, problems).faces.size(), 2u);
}

TEST(CsgShell, ARingOfTwoVerticesAddsNoEdges) {
    ox_solid solid = brick();
    ox_list<unsigned int> contours = solid.get_contours();
    contours.push_right(0);
    contours.push_right(1);
    ox_list<int> sizes = solid.get_contour_sizes();
    sizes.push_right(2);
    solid.set_contours(contours);
    solid.set_contour_sizes(sizes);
    EXPECT_TRUE(prepared_shell(solid).problems.empty());
}

} // namespace
