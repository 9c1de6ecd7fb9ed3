#include "mesh_support.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <ox/mesh/ox_triangle_set.h>

namespace {

using mesh_support::contents_of;
using mesh_support::cube;
using mesh_support::height_field;
using mesh_support::log_capture;
using mesh_support::plain_mesh;
using mesh_support::same_bits;
using mesh_support::set_of;
using mesh_support::stl_bytes;
using mesh_support::temporary_file;
using ox::ox_3dvector;
using ox::ox_triangle_set;
using ::testing::ElementsAre;

constexpr float nan_value = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

const plain_mesh one_triangle{{{0.f, 0.f, 0.f}, {2.f, 0.f, 0.f}, {0.f, 2.f, 0.f}}, {0, 1, 2}};

ox_triangle_set cube_from_stl() {
    const temporary_file file(stl_bytes(cube()));
    ox_triangle_set set;
    EXPECT_TRUE(set.read_binary_stl(file.path.c_str()));
    return set;
}

void expect_too_many_octrees(const plain_mesh& mesh) {
    ox_triangle_set set = set_of(mesh);
    const log_capture log;
    set.optimize(0.001f, 10.f);
    EXPECT_THAT(log.lines(), ElementsAre("too many octrees"));
    EXPECT_TRUE(same_bits(contents_of(set).vertices, mesh.vertices));
    EXPECT_EQ(contents_of(set).triangles, mesh.triangles);
}

TEST(Welding, CubeKeeps24VerticesSplitByItsNormals) {
    ox_triangle_set set = cube_from_stl();
    set.optimize(0.001f, 0.01f);
    EXPECT_EQ(set.get_nb_vertices(), 24u);
    EXPECT_EQ(set.get_nb_triangles(), 12u);
}

TEST(Welding, CubeKeeps8VerticesWhenNormalsDoNotCount) {
    ox_triangle_set set = cube_from_stl();
    set.optimize(0.001f, 10.f);
    EXPECT_EQ(set.get_nb_vertices(), 8u);
    for (unsigned int i = 0; i < 36; ++i) {
        EXPECT_EQ(set.get_vertices()[set.get_triangles()[i]], cube().vertices[cube().triangles[i]]);
    }
}

TEST(Welding, LogsNothingWhenItSucceeds) {
    ox_triangle_set set = set_of(cube());
    const log_capture log;
    set.optimize(0.001f, 10.f);
    EXPECT_TRUE(log.lines().empty());
}

TEST(Welding, VerticesOfNoTriangleAreDropped) {
    plain_mesh mesh = one_triangle;
    mesh.vertices.push_back(ox_3dvector(9.f, 9.f, 9.f));
    ox_triangle_set set = set_of(mesh);
    set.optimize(0.f, 0.f);
    EXPECT_EQ(set.get_nb_vertices(), 3u);
}

TEST(Welding, EmptySetStaysEmpty) {
    ox_triangle_set set;
    set.optimize(0.001f, 10.f);
    EXPECT_EQ(set.get_nb_vertices(), 0u);
    EXPECT_EQ(set.get_vertices(), nullptr);
}

TEST(Welding, FirstVertexWithinTheToleranceWinsOverANearerOne) {
    // Within one cell of 1/512: 0 and 0.0006 stay apart with tolerance 0.0005, 0.0004 is nearer
    // to the second of them.
    const plain_mesh mesh{{{0.f, 0.f, 0.f}, {0.0006f, 0.f, 0.f}, {0.0004f, 0.f, 0.f}}, {0, 1, 2}};
    ox_triangle_set set = set_of(mesh);
    set.optimize(0.0005f, 10.f);
    EXPECT_THAT(contents_of(set).triangles, ElementsAre(0, 1, 0));
}

TEST(Welding, CloseVerticesOnEitherSideOfACellBoundaryStayApart) {
    const plain_mesh mesh{{{0.4999f, 0.f, 0.f}, {0.5001f, 0.f, 0.f}, {0.9f, 0.9f, 0.f}}, {0, 1, 2}};
    ox_triangle_set set = set_of(mesh);
    set.optimize(0.01f, 10.f);
    EXPECT_EQ(set.get_nb_vertices(), 3u);
}

TEST(Welding, DegenerateTrianglesAreKept) {
    ox_triangle_set set = set_of({one_triangle.vertices, {0, 0, 0, 1, 1, 2}});
    set.optimize(0.f, 10.f);
    EXPECT_EQ(set.get_nb_triangles(), 2u);
    EXPECT_THAT(contents_of(set).triangles, ElementsAre(0, 0, 0, 1, 1, 2));
}

TEST(Welding, NanOrInfiniteVertexLogsTooManyOctreesAndChangesNothing) {
    for (const float broken : {nan_value, infinity, -infinity}) {
        plain_mesh mesh = one_triangle;
        mesh.vertices.push_back(ox_3dvector(0.f, broken, 0.f));
        expect_too_many_octrees(mesh);
    }
}

TEST(Welding, RootIsDoubledAHundredTimesAndNotOnceMore) {
    plain_mesh mesh = one_triangle;
    mesh.vertices[1].x = std::nextafter(std::ldexp(1.f, 100), 0.f);
    ox_triangle_set set = set_of(mesh);
    const log_capture log;
    set.optimize(0.f, 0.f);
    EXPECT_TRUE(log.lines().empty());
    mesh.vertices[1].x = std::ldexp(1.f, 100);
    expect_too_many_octrees(mesh);
}

TEST(Welding, DoublingsAreCountedOverAllVertices) {
    plain_mesh mesh = one_triangle;
    mesh.vertices[1].x = std::ldexp(0.9f, 60);  // 60 doublings
    mesh.vertices[2].y = std::ldexp(-0.9f, 99); // 40 more: 2^100 reaches 2^100 - 1 below 0
    ox_triangle_set set = set_of(mesh);
    const log_capture log;
    set.optimize(0.f, 0.f);
    EXPECT_TRUE(log.lines().empty());
    mesh.vertices[2].y = std::ldexp(-1.1f, 100);
    expect_too_many_octrees(mesh);
}

TEST(Welding, IndexNotBelowTheVertexCountIsLoggedAndChangesNothing) {
    plain_mesh mesh = one_triangle;
    mesh.triangles[1] = 4294967295u;
    ox_triangle_set set = set_of(mesh);
    const log_capture log;
    set.optimize(0.001f, 10.f);
    EXPECT_THAT(log.lines(), ElementsAre("invalid triangle index"));
    EXPECT_EQ(contents_of(set).triangles, mesh.triangles);
    EXPECT_EQ(set.get_nb_vertices(), 3u);
}

TEST(Welding, NegativeOrNanTolerancesWeldNothing) {
    const float tolerances[][2] = {
        {-1.f, 10.f}, {nan_value, 10.f}, {0.1f, -1.f}, {0.1f, nan_value}};
    for (const auto& [position, normal] : tolerances) {
        ox_triangle_set set = set_of(cube());
        set.optimize(position, normal);
        EXPECT_EQ(set.get_nb_vertices(), 36u);
    }
}

TEST(Welding, InfiniteToleranceWeldsEachCell) {
    ox_triangle_set set = cube_from_stl();
    set.optimize(infinity, infinity);
    EXPECT_EQ(set.get_nb_vertices(), 8u);
}

TEST(Welding, CopiesKeepTheOldVerticesAndShareTheIndices) {
    ox_triangle_set set = cube_from_stl();
    const ox_triangle_set copy(set);
    set.optimize(0.001f, 10.f);
    EXPECT_EQ(copy.get_nb_vertices(), 36u);
    EXPECT_EQ(copy.get_triangles(), set.get_triangles());
}

TEST(Welding, ModelFarFromTheOriginInOneCellIsWeldedInReasonableTime) {
    // 180 000 corners share one cell of 16 km: a scan of the cell would compare 10^9 pairs.
    plain_mesh mesh = height_field(173);
    for (ox_3dvector& vertex : mesh.vertices) {
        vertex += ox_3dvector(6856000.f, 6856000.f, 0.f);
    }
    const std::size_t nb_vertices = mesh.vertices.size();
    ox_triangle_set set = set_of(mesh);
    set.optimize(0.f, 10.f);
    EXPECT_EQ(set.get_nb_vertices(), nb_vertices);
}

TEST(Welding, BrokenNormalsAtOnePlaceAreNotComparedWithEachOther) {
    // Cross products that overflow: every normal is NaN or zero.
    plain_mesh mesh;
    mesh.vertices = {{0.f, 0.f, 0.f}, {1e25f, 2e25f, 1e25f}, {3e25f, 1e25f, 1e25f}};
    for (int i = 0; i < 60000; ++i) {
        mesh.triangles.insert(mesh.triangles.end(), {0, 1, 2});
    }
    ox_triangle_set set = set_of(mesh);
    set.optimize(0.f, 0.f);
    EXPECT_GE(set.get_nb_vertices(), 3u);
}

} // namespace
