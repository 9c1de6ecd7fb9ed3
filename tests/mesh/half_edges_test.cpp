#include "mesh_support.h"

#include <gtest/gtest.h>
#include <ox/mesh/ox_mesh.h>
#include <type_traits>

#include "../reference/mesh_edges.h"
#include <tests/support/generator.h>

namespace {

using mesh_support::list_of;
using mesh_support::plain_mesh;
using ox::ox_3dvector;
using ox::ox_mesh;

static_assert(std::has_virtual_destructor_v<ox_mesh>);
static_assert(sizeof(ox_mesh::ox_half_edge) == 16 + sizeof(void*));

/// A mesh of `nb_vertices` vertices at the origin, built.
ox_mesh built(int nb_vertices, const std::vector<unsigned int>& triangles) {
    ox_mesh mesh;
    mesh.set_vertices(
        list_of(std::vector<ox_3dvector>(static_cast<std::size_t>(nb_vertices), ox_3dvector())));
    mesh.set_triangles(list_of(triangles));
    mesh.build_half_edges();
    return mesh;
}

const std::vector<unsigned int> tetrahedron{0, 2, 1, 0, 1, 3, 1, 2, 3, 2, 0, 3};

/// For each half-edge the index of its opposite, -1 for none.
std::vector<int> opposites_of(const ox_mesh& mesh) {
    std::vector<int> found;
    for (const ox_mesh::ox_half_edge* edge : mesh.get_half_edges()) {
        int index = -1;
        for (int i = 0; edge->opposite != nullptr && index < 0; ++i) {
            index = mesh.get_half_edges()[i] == edge->opposite ? i : -1;
        }
        found.push_back(index);
    }
    return found;
}

TEST(OxMesh, BeginsEmptyAndNotClosed) {
    const ox_mesh mesh;
    EXPECT_EQ(mesh.get_vertices().size(), 0);
    EXPECT_EQ(mesh.get_triangles().size(), 0);
    EXPECT_EQ(mesh.get_half_edges().size(), 0);
    EXPECT_FALSE(mesh.is_closed());
}

TEST(OxMesh, OneTriangleHasThreeHalfEdgesWithoutOppositesAndIsNotClosed) {
    const ox_mesh mesh = built(3, {0, 1, 2});
    ASSERT_EQ(mesh.get_half_edges().size(), 3);
    for (int i = 0; i < 3; ++i) {
        const ox_mesh::ox_half_edge& edge = *mesh.get_half_edges()[i];
        EXPECT_EQ(edge.start, static_cast<unsigned int>(i));
        EXPECT_EQ(edge.end, static_cast<unsigned int>((i + 1) % 3));
        EXPECT_EQ(edge.triangle, 0u);
        EXPECT_EQ(edge.reserved, 0u);
        EXPECT_EQ(edge.opposite, nullptr);
    }
    EXPECT_FALSE(mesh.is_closed());
}

TEST(OxMesh, TetrahedronIsClosedAndEveryOppositeIsMutual) {
    const ox_mesh mesh = built(4, tetrahedron);
    ASSERT_EQ(mesh.get_half_edges().size(), 12);
    for (const ox_mesh::ox_half_edge* edge : mesh.get_half_edges()) {
        ASSERT_NE(edge->opposite, nullptr);
        EXPECT_EQ(edge->opposite->opposite, edge);
        EXPECT_EQ(edge->opposite->start, edge->end);
        EXPECT_EQ(edge->opposite->end, edge->start);
        EXPECT_NE(edge->opposite->triangle, edge->triangle);
    }
    EXPECT_TRUE(mesh.is_closed());
}

TEST(OxMesh, BuildingTwiceGivesTheSameStructureWithNewHalfEdges) {
    ox_mesh mesh = built(4, tetrahedron);
    const ox_mesh::ox_half_edge* const first = mesh.get_half_edges()[0];
    const std::vector<int> opposites = opposites_of(mesh);
    mesh.build_half_edges();
    EXPECT_EQ(opposites_of(mesh), opposites);
    EXPECT_NE(mesh.get_half_edges()[0], first);
    EXPECT_TRUE(mesh.is_closed());
}

TEST(OxMesh, SettingTrianglesLeavesTheHalfEdgesUntilTheNextBuild) {
    ox_mesh mesh = built(4, tetrahedron);
    mesh.set_triangles(list_of<unsigned int>({0, 1, 2}));
    EXPECT_EQ(mesh.get_half_edges().size(), 12);
    EXPECT_TRUE(mesh.is_closed());
    mesh.build_half_edges();
    EXPECT_EQ(mesh.get_half_edges().size(), 3);
    EXPECT_FALSE(mesh.is_closed());
}

TEST(OxMesh, SettingTheMeshsOwnListsChangesNothing) {
    ox_mesh mesh = built(4, tetrahedron);
    mesh.set_vertices(mesh.get_vertices());
    mesh.set_triangles(mesh.get_triangles());
    EXPECT_EQ(mesh.get_vertices().size(), 4);
    EXPECT_EQ(mesh_support::vector_of(mesh.get_triangles()), tetrahedron);
}

TEST(OxMesh, CopiesShareOneState) {
    ox_mesh copy;
    {
        ox_mesh mesh = built(4, tetrahedron);
        copy = mesh;
        const ox_mesh second(mesh);
        mesh.set_triangles(list_of<unsigned int>({0, 1, 2}));
        mesh.build_half_edges();
        EXPECT_EQ(second.get_half_edges().size(), 3);
    }
    EXPECT_EQ(copy.get_half_edges().size(), 3);
    EXPECT_EQ(copy.get_vertices().size(), 4);
}

TEST(OxMesh, SideOfThreeTrianglesLinksEachToTheFirstThatRunsBack) {
    const ox_mesh mesh = built(5, {0, 1, 2, 1, 0, 3, 1, 0, 4});
    EXPECT_EQ(opposites_of(mesh), (std::vector<int>{3, -1, -1, 0, -1, -1, 0, -1, -1}));
    EXPECT_FALSE(mesh.is_closed());
}

TEST(OxMesh, NeighboursOfUnequalOrientationFindNoOpposite) {
    const ox_mesh mesh = built(4, {0, 1, 2, 0, 1, 3});
    EXPECT_EQ(opposites_of(mesh), (std::vector<int>{-1, -1, -1, -1, -1, -1}));
    EXPECT_FALSE(mesh.is_closed());
}

TEST(OxMesh, SideFromAVertexToItselfIsItsOwnOpposite) {
    const ox_mesh mesh = built(1, {0, 0, 0});
    EXPECT_EQ(opposites_of(mesh), (std::vector<int>{0, 0, 0}));
    EXPECT_TRUE(mesh.is_closed());
}

TEST(OxMesh, SidesWithAnIndexNotBelowTheVertexCountGetNoOpposite) {
    // A tetrahedron whose vertex 3 does not exist: only the sides of the first triangle run back.
    const ox_mesh mesh = built(3, tetrahedron);
    EXPECT_EQ(opposites_of(mesh), (std::vector<int>{9, 6, 3, 2, -1, -1, 1, -1, -1, 0, -1, -1}));
    EXPECT_FALSE(mesh.is_closed());
    EXPECT_FALSE(built(0, {4294967295u, 4294967295u, 4294967295u}).is_closed());
}

TEST(OxMesh, TrailingIncompleteTriangleIsIgnored) {
    std::vector<unsigned int> triangles = tetrahedron;
    triangles.push_back(0);
    triangles.push_back(1);
    const ox_mesh mesh = built(4, triangles);
    EXPECT_EQ(mesh.get_half_edges().size(), 12);
    EXPECT_TRUE(mesh.is_closed());
}

TEST(OxMesh, BuiltMeshWithoutTrianglesIsClosed) {
    EXPECT_TRUE(built(0, {}).is_closed());
    EXPECT_TRUE(built(2, {0, 1}).is_closed());
}

TEST(OxMesh, ListsOfNegativeSizeAreEmptyMeshes) {
    ox_mesh mesh;
    ox::ox_list<ox_3dvector> vertices;
    vertices.set_size(-3);
    ox::ox_list<unsigned int> triangles;
    triangles.set_size(-1);
    mesh.set_vertices(vertices);
    mesh.set_triangles(triangles);
    mesh.build_half_edges();
    EXPECT_EQ(mesh.get_half_edges().size(), 0);
}

TEST(OxMesh, OppositesEqualThoseOfThePlainVersionOnThousandsOfRandomMeshes) {
    support::generator random(632);
    for (int round = 0; round < 10000; ++round) {
        const int nb_vertices = random.between(1, 12);
        plain_mesh plain;
        plain.vertices.resize(static_cast<std::size_t>(nb_vertices));
        const int nb_corners = random.between(0, 60);
        for (int i = 0; i < nb_corners; ++i) {
            plain.triangles.push_back(
                static_cast<unsigned int>(random.between(0, nb_vertices - 1)));
        }
        ASSERT_EQ(opposites_of(built(nb_vertices, plain.triangles)), reference::opposites(plain))
            << "round " << round;
    }
}

TEST(HalfEdges, AddedSetsKeepTheirTrianglesBehindThoseOfTheMesh) {
    ox::ox_mesh mesh;
    mesh.add(mesh_support::set_of(mesh_support::cube()));
    mesh.add(mesh_support::set_of(mesh_support::cube()));
    ASSERT_EQ(mesh.get_vertices().size(), 16);
    ASSERT_EQ(mesh.get_triangles().size(), 72);
    for (int i = 0; i < 36; ++i) {
        EXPECT_EQ(mesh.get_triangles()[36 + i], mesh.get_triangles()[i] + 8u);
    }
    EXPECT_EQ(mesh.get_vertices()[15], mesh_support::cube().vertices[7]);
}

TEST(HalfEdges, AddedSetsCountFromTheNextBuildOn) {
    ox::ox_mesh mesh;
    mesh.build_half_edges();
    mesh.add(mesh_support::set_of(mesh_support::cube()));
    EXPECT_EQ(mesh.get_half_edges().size(), 0);
    mesh.build_half_edges();
    EXPECT_EQ(mesh.get_half_edges().size(), 36);
    EXPECT_TRUE(mesh.is_closed());
}

TEST(HalfEdges, AnEmptySetAddsNothing) {
    ox::ox_mesh mesh;
    mesh.add(ox::ox_triangle_set());
    EXPECT_EQ(mesh.get_vertices().size(), 0);
    EXPECT_EQ(mesh.get_triangles().size(), 0);
}

} // namespace
