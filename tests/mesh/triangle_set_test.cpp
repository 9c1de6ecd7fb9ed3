#include "mesh_support.h"

#include <gtest/gtest.h>
#include <new>
#include <ox/mesh/ox_triangle_set.h>
#include <type_traits>

#include <tests/support/allocation_meter.h>

namespace {

using mesh_support::contents_of;
using mesh_support::cube;
using mesh_support::same_bits;
using mesh_support::set_of;
using ox::ox_3dvector;
using ox::ox_triangle_set;

static_assert(std::has_virtual_destructor_v<ox_triangle_set>);

TEST(OxTriangleSet, BeginsWithoutVerticesAndTriangles) {
    const ox_triangle_set set;
    EXPECT_EQ(set.get_nb_vertices(), 0u);
    EXPECT_EQ(set.get_nb_triangles(), 0u);
    EXPECT_EQ(set.get_vertices(), nullptr);
    EXPECT_EQ(set.get_triangles(), nullptr);
}

TEST(OxTriangleSet, SizedConstructionPutsAllVerticesAtTheOrigin) {
    const ox_triangle_set set(5, 2);
    EXPECT_EQ(set.get_nb_vertices(), 5u);
    EXPECT_EQ(set.get_nb_triangles(), 2u);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(set.get_vertices()[i], ox_3dvector());
    }
    ASSERT_NE(set.get_triangles(), nullptr);
    set.get_triangles()[5] = 4;
    EXPECT_EQ(set.get_triangles()[5], 4u);
}

TEST(OxTriangleSet, AllocateKeepsAnArrayWhoseCountStays) {
    ox_triangle_set set = set_of(cube());
    ox_3dvector* const vertices = set.get_vertices();
    set.allocate(8, 1);
    EXPECT_EQ(set.get_vertices(), vertices);
    EXPECT_EQ(set.get_vertices()[7], ox_3dvector(1.f, 1.f, 1.f));
    set = set_of(cube());
    unsigned int* const kept = set.get_triangles();
    set.allocate(9, 12);
    EXPECT_EQ(set.get_triangles(), kept);
    EXPECT_EQ(set.get_vertices()[7], ox_3dvector());
}

TEST(OxTriangleSet, AllocateOfNothingReleasesBothArrays) {
    ox_triangle_set set = set_of(cube());
    set.allocate(0, 0);
    EXPECT_EQ(set.get_vertices(), nullptr);
    EXPECT_EQ(set.get_triangles(), nullptr);
}

TEST(OxTriangleSet, MovedFromSetIsEmptyAndSwapExchanges) {
    ox_triangle_set set = set_of(cube());
    ox_triangle_set taken(std::move(set));
    EXPECT_EQ(taken.get_nb_vertices(), 8u);
    ox_triangle_set other;
    swap(taken, other);
    EXPECT_EQ(taken.get_vertices(), nullptr);
    EXPECT_EQ(taken.get_nb_triangles(), 0u);
    taken = std::move(other);
    EXPECT_EQ(taken.get_nb_triangles(), 12u);
}

TEST(OxTriangleSet, CopiesShareBothArrays) {
    ox_triangle_set set = set_of(cube());
    const ox_triangle_set copy(set);
    ox_triangle_set assigned;
    assigned = set;
    set.get_vertices()[0].x = 7.f;
    EXPECT_EQ(copy.get_vertices()[0].x, 7.f);
    EXPECT_EQ(assigned.get_triangles(), set.get_triangles());
}

TEST(OxTriangleSet, FileWithTheSameCountsIsReadIntoTheSharedArrays) {
    mesh_support::plain_mesh moved = cube();
    moved.vertices[0].x = 7.0f;
    const mesh_support::temporary_file file(mesh_support::raw_bytes(moved));
    ox_triangle_set set = set_of(cube());
    const ox_triangle_set copy(set);
    EXPECT_TRUE(set.read_binary_raw(file.path.c_str()));
    EXPECT_EQ(copy.get_vertices()[0].x, 7.0f);
}

TEST(OxTriangleSet, AllocateReplacesAnArrayForThatObjectOnly) {
    ox_triangle_set set = set_of(cube());
    const ox_triangle_set copy(set);
    set.allocate(2, 12);
    EXPECT_EQ(copy.get_nb_vertices(), 8u);
    EXPECT_EQ(copy.get_vertices()[7], ox_3dvector(1.f, 1.f, 1.f));
    EXPECT_EQ(copy.get_triangles(), set.get_triangles());
}

TEST(OxTriangleSet, ArraysOutliveTheSetThatMadeThem) {
    ox_triangle_set copy;
    {
        const ox_triangle_set set = set_of(cube());
        copy = set;
    }
    EXPECT_EQ(copy.get_vertices()[7], ox_3dvector(1.f, 1.f, 1.f));
}

TEST(OxTriangleSet, AssigningASetToItselfChangesNothing) {
    ox_triangle_set set = set_of(cube());
    const ox_triangle_set& same = set;
    set = same;
    EXPECT_EQ(set.get_nb_vertices(), 8u);
    EXPECT_EQ(set.get_vertices()[7], ox_3dvector(1.f, 1.f, 1.f));
}

TEST(OxTriangleSet, AllocationThatFailsLeavesTheSetAsItWas) {
    ox_triangle_set set = set_of(cube());
    allocation_meter::start(1 << 20);
    EXPECT_THROW(set.allocate(9, 4000000000u), std::bad_alloc);
    allocation_meter::stop();
    EXPECT_EQ(set.get_nb_vertices(), 8u);
    EXPECT_EQ(set.get_nb_triangles(), 12u);
    EXPECT_EQ(set.get_vertices()[7], ox_3dvector(1.f, 1.f, 1.f));
}

/// Whatever the operation has got to when memory runs out, the set is whole.
TEST(OxTriangleSet, MemoryThatRunsOutLeavesTheSetAsItWas) {
    const mesh_support::plain_mesh field = mesh_support::height_field(20);
    int nb_failures = 0;
    for (std::size_t limit = 1 << 10; limit < (1 << 20); limit += 1 << 10) {
        for (const bool welds : {true, false}) {
            ox_triangle_set set = set_of(field);
            bool failed = false;
            allocation_meter::start(limit);
            try {
                welds ? set.optimize(0.1f, 0.01f) : set.subdivide();
            } catch (const std::bad_alloc&) {
                failed = true;
            }
            allocation_meter::stop();
            if (failed) {
                ++nb_failures;
                EXPECT_TRUE(same_bits(contents_of(set).vertices, field.vertices));
                EXPECT_EQ(contents_of(set).triangles, field.triangles);
            }
        }
    }
    EXPECT_GT(nb_failures, 10);
}

} // namespace
