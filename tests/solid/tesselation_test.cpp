#include <ox/solid/ox_solid.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/solid/solid_lists.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;
using ox_test::unit_brick;

/// Adds `count` triangles, each a face of three vertices, far enough apart.
ox_solid triangles(int count) {
    ox_solid solid;
    for (int i = 0; i < count; ++i) {
        const float x = static_cast<float>(2 * i);
        ox_polygon triangle;
        triangle.add_contour(support::contour(
            {ox_3dvector(x, 0, 0), ox_3dvector(x + 1, 0, 0), ox_3dvector(x, 1, 0)}));
        solid.add_face(triangle);
    }
    return solid;
}

TEST(SolidTesselation, OfABrickHasFourVerticesAndTwoTrianglesPerFace) {
    ox_solid solid = unit_brick();
    const ox_list<unsigned int>& indices = solid.get_tesselation_triangles();
    EXPECT_EQ(solid.get_tesselation_vertices().size(), 24);
    ASSERT_EQ(indices.size(), 36);
    for (int i = 0; i < indices.size(); ++i) {
        const int face = i / 6;
        EXPECT_GE(static_cast<int>(indices[i]), 4 * face);
        EXPECT_LT(static_cast<int>(indices[i]), 4 * face + 4);
    }
}

TEST(SolidTesselation, IsTheConcatenationOfTheFaces) {
    ox_solid solid = unit_brick();
    int vertex = 0;
    int index = 0;
    for (ox_polygon* face : solid.get_faces()) {
        const unsigned int base = static_cast<unsigned int>(vertex);
        for (const unsigned int of_face : face->get_tesselation_triangles()) {
            EXPECT_EQ(solid.get_tesselation_triangles()[index++], of_face + base);
        }
        for (const ox_3dvector& of_face : face->get_tesselation_vertices()) {
            EXPECT_EQ(solid.get_tesselation_vertices()[vertex++], of_face);
        }
    }
    EXPECT_EQ(index, solid.get_tesselation_triangles().size());
    EXPECT_EQ(vertex, solid.get_tesselation_vertices().size());
}

TEST(SolidTesselation, OfAnEmptySolidIsEmptyAndAskingAgainBuildsNothing) {
    ox_solid solid;
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(solid.get_tesselation_vertices().size(), 0);
        EXPECT_EQ(solid.get_tesselation_triangles().size(), 0);
        EXPECT_EQ(solid.get_tesselation_vertices().get_data(), nullptr);
    }
}

TEST(SolidTesselation, IsKeptUntilAChange) {
    ox_solid solid = unit_brick();
    const ox_3dvector* data = solid.get_tesselation_vertices().get_data();
    EXPECT_EQ(solid.get_tesselation_vertices().get_data(), data);
}

TEST(SolidTesselation, IsRebuiltAfterAFaceWasAdded) {
    ox_solid solid = unit_brick();
    EXPECT_EQ(solid.get_tesselation_vertices().size(), 24);
    ox_polygon square = support::rectangle_polygon(5, 5, 6, 6);
    solid.add_face(square);
    EXPECT_EQ(solid.get_tesselation_vertices().size(), 28);
    EXPECT_EQ(solid.get_tesselation_triangles().size(), 42);
}

TEST(SolidTesselation, VertexCapacityIsExactBelow16AndGrowsByHalvesFromThere) {
    EXPECT_EQ(triangles(1).get_tesselation_vertices().get_capacity(), 3);
    EXPECT_EQ(triangles(4).get_tesselation_vertices().get_capacity(), 12);
    EXPECT_EQ(triangles(5).get_tesselation_vertices().get_capacity(), 15);
    EXPECT_EQ(triangles(6).get_tesselation_vertices().get_capacity(), 18); // 15 was below 16
    EXPECT_EQ(triangles(7).get_tesselation_vertices().get_capacity(), 27); // 18 + 9
    EXPECT_EQ(triangles(9).get_tesselation_vertices().get_capacity(), 27);
    EXPECT_EQ(triangles(10).get_tesselation_vertices().get_capacity(), 40); // 27 + 13
}

TEST(SolidTesselation, VertexCapacityGrowsByHalvesUntilALargeFaceFits) {
    ox_solid solid = triangles(6); // capacity 18
    ox_polygon large;
    for (int i = 0; i < 30; ++i) {
        const float x = static_cast<float>(2 * i);
        large.add_contour(support::rectangle(x, 10, x + 1, 11));
    }
    const int added = large.get_tesselation_vertices().size();
    ASSERT_GE(added, 120);
    int expected = 18;
    while (expected < 18 + added) {
        expected += expected / 2;
    }
    // One face of all squares: an outer contour, the others as holes, which even-odd makes islands.
    ox_list<ox_3dvector> vertices = solid.get_vertices();
    ox_list<unsigned int> contours = solid.get_contours();
    ox_list<int> sizes = solid.get_contour_sizes();
    for (const ox_3dvector& vertex : large.get_contour_vertices()) {
        contours.push_right(static_cast<unsigned int>(vertices.size()));
        vertices.push_right(vertex);
    }
    for (int i = 0; i < 30; ++i) {
        sizes.push_right(i == 0 ? 4 : -4);
    }
    solid.set_vertices(vertices);
    solid.set_contours(contours);
    solid.set_contour_sizes(sizes);
    ASSERT_EQ(solid.get_faces().size(), 7);
    EXPECT_EQ(solid.get_tesselation_vertices().size(), 18 + added);
    EXPECT_EQ(solid.get_tesselation_vertices().get_capacity(), expected);
}

TEST(SolidTesselation, IndexCapacityGrowsLikeAnyList) {
    ox_list<unsigned int> grown;
    for (unsigned int i = 0; i < 36; ++i) {
        grown.push_right(i);
    }
    EXPECT_EQ(unit_brick().get_tesselation_triangles().get_capacity(), grown.get_capacity());
}

} // namespace
