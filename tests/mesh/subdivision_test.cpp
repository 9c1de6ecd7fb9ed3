#include "mesh_support.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ox/mesh/ox_triangle_set.h>

#include "../reference/mesh_edges.h"
#include <tests/support/generator.h>

namespace {

using mesh_support::contents_of;
using mesh_support::cube;
using mesh_support::log_capture;
using mesh_support::plain_mesh;
using mesh_support::same_bits;
using mesh_support::set_of;
using ox::ox_3dvector;
using ox::ox_triangle_set;
using ::testing::ElementsAre;

const plain_mesh one_triangle{{{0.f, 0.f, 0.f}, {2.f, 0.f, 0.f}, {0.f, 2.f, 0.f}}, {0, 1, 2}};

TEST(Subdivision, SingleTriangleBecomesFourOfSixVertices) {
    ox_triangle_set set = set_of(one_triangle);
    set.subdivide();
    EXPECT_THAT(contents_of(set).vertices,
                ElementsAre(ox_3dvector(0.f, 0.f, 0.f), ox_3dvector(2.f, 0.f, 0.f),
                            ox_3dvector(0.f, 2.f, 0.f), ox_3dvector(1.f, 0.f, 0.f),
                            ox_3dvector(1.f, 1.f, 0.f), ox_3dvector(0.f, 1.f, 0.f)));
    EXPECT_THAT(contents_of(set).triangles, ElementsAre(0, 3, 5, 1, 4, 3, 2, 5, 4, 3, 4, 5));
}

TEST(Subdivision, TwoTrianglesThatShareAnEdgeBecomeEightOfNineVertices) {
    ox_triangle_set set = set_of(
        {{{0.f, 0.f, 0.f}, {2.f, 0.f, 0.f}, {0.f, 2.f, 0.f}, {2.f, 2.f, 0.f}}, {0, 1, 2, 2, 1, 3}});
    set.subdivide();
    EXPECT_EQ(set.get_nb_vertices(), 9u);
    EXPECT_EQ(set.get_nb_triangles(), 8u);
}

TEST(Subdivision, ClosedCubeGainsOneVertexForEachOfIts18Edges) {
    ox_triangle_set set = set_of(cube());
    set.subdivide();
    EXPECT_EQ(set.get_nb_vertices(), 26u);
    EXPECT_EQ(set.get_nb_triangles(), 48u);
}

TEST(Subdivision, EmptySetStaysEmpty) {
    ox_triangle_set set;
    set.subdivide();
    EXPECT_EQ(set.get_nb_vertices(), 0u);
    EXPECT_EQ(set.get_triangles(), nullptr);
}

TEST(Subdivision, VerticesWithoutTrianglesStay) {
    ox_triangle_set set(3, 0);
    set.subdivide();
    EXPECT_EQ(set.get_nb_vertices(), 3u);
}

TEST(Subdivision, RepeatedCornerHasTheMiddleOfItsOwnSide) {
    ox_triangle_set set = set_of({{{1.f, 2.f, 3.f}, {3.f, 2.f, 3.f}}, {0, 0, 1}});
    set.subdivide();
    EXPECT_EQ(set.get_nb_vertices(), 4u);
    EXPECT_EQ(set.get_vertices()[2], ox_3dvector(1.f, 2.f, 3.f));
    EXPECT_THAT(contents_of(set).triangles, ElementsAre(0, 2, 3, 0, 3, 2, 1, 3, 3, 2, 3, 3));
}

TEST(Subdivision, IndexNotBelowTheVertexCountIsLoggedAndChangesNothing) {
    plain_mesh mesh = one_triangle;
    mesh.triangles[2] = 3;
    ox_triangle_set set = set_of(mesh);
    const log_capture log;
    set.subdivide();
    EXPECT_THAT(log.lines(), ElementsAre("invalid triangle index"));
    EXPECT_EQ(contents_of(set).triangles, mesh.triangles);
    EXPECT_EQ(set.get_nb_vertices(), 3u);
}

TEST(Subdivision, CopiesKeepTheCoarseMesh) {
    ox_triangle_set set = set_of(one_triangle);
    const ox_triangle_set copy(set);
    set.subdivide();
    EXPECT_EQ(contents_of(copy).triangles, one_triangle.triangles);
    EXPECT_EQ(copy.get_nb_vertices(), 3u);
}

TEST(Subdivision, EqualsThePlainVersionOnThousandsOfRandomMeshes) {
    support::generator random(631);
    for (int round = 0; round < 10000; ++round) {
        const int nb_vertices = random.between(1, 20);
        plain_mesh mesh;
        for (int i = 0; i < nb_vertices; ++i) {
            // Which of two NaN a sum passes on is the compiler's choice.
            const float any = random.any_float();
            const float x = any == any ? any : 0.f;
            const float y = random.grid(-9, 9);
            const float z = random.grid(-9, 9);
            mesh.vertices.push_back(ox_3dvector(x, y, z));
        }
        const int nb_corners = 3 * random.between(0, 40);
        for (int i = 0; i < nb_corners; ++i) {
            mesh.triangles.push_back(static_cast<unsigned int>(random.between(0, nb_vertices - 1)));
        }
        ox_triangle_set set = set_of(mesh);
        set.subdivide();
        reference::subdivide(mesh);
        ASSERT_TRUE(same_bits(contents_of(set).vertices, mesh.vertices)) << "round " << round;
        ASSERT_EQ(contents_of(set).triangles, mesh.triangles) << "round " << round;
    }
}

} // namespace
