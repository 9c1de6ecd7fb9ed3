#include <ox/mesh/ox_vertex_optimizer.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <new>
#include <type_traits>

#include "mesh_support.h"
#include <tests/support/allocation_meter.h>

namespace {

using mesh_support::list_of;
using ox::ox_3dvector;
using ox::ox_vertex_optimizer;
using ::testing::ElementsAre;

static_assert(std::has_virtual_destructor_v<ox_vertex_optimizer>);

constexpr float nan_value = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

std::vector<unsigned int> mapping_of(const ox_vertex_optimizer& optimizer) {
    return mesh_support::vector_of(optimizer.get_mapping());
}

/// The mapping of points on the x axis.
std::vector<unsigned int> mapping_of_line(float tolerance, const std::vector<float>& xs) {
    ox_vertex_optimizer optimizer(tolerance, 0.1f);
    for (const float x : xs) {
        optimizer.add_vertices(list_of<ox_3dvector>({{x, 0.f, 0.f}}));
    }
    return mapping_of(optimizer);
}

TEST(OxVertexOptimizer, BeginsEmpty) {
    const ox_vertex_optimizer optimizer(0.01f, 0.1f);
    EXPECT_EQ(optimizer.get_mapping().size(), 0);
    EXPECT_EQ(optimizer.get_optimized_vertices().size(), 0);
    EXPECT_EQ(optimizer.get_optimized_normals().size(), 0);
}

TEST(OxVertexOptimizer, LeafSizeIsOneUnitForSmallTolerances) {
    // The root [0, 8) is halved until the leaves are below 1: 0.5 bounds a leaf, 0.25 does not.
    EXPECT_THAT(mapping_of_line(0.01f, {7.f, 0.2499f, 0.2501f}), ElementsAre(0, 1, 1));
    EXPECT_THAT(mapping_of_line(0.01f, {7.f, 0.4999f, 0.5001f}), ElementsAre(0, 1, 2));
}

TEST(OxVertexOptimizer, LeafSizeIsTenTolerancesForLargeOnes) {
    // 10 x 0.5 = 5: leaves of 4 units, so 4 bounds a leaf and 2 does not.
    EXPECT_THAT(mapping_of_line(0.5f, {7.f, 1.9f, 2.1f}), ElementsAre(0, 1, 1));
    EXPECT_THAT(mapping_of_line(0.5f, {7.f, 3.9f, 4.1f}), ElementsAre(0, 1, 2));
}

TEST(OxVertexOptimizer, WeldsWhatIsWithinTheTolerance) {
    ox_vertex_optimizer optimizer(0.01f, 0.1f);
    optimizer.add_vertices(
        list_of<ox_3dvector>({{0.f, 0.f, 0.f}, {0.005f, 0.f, 0.f}, {0.5f, 0.f, 0.f}}));
    EXPECT_THAT(mapping_of(optimizer), ElementsAre(0, 0, 1));
    EXPECT_EQ(optimizer.get_optimized_vertices().size(), 2);
}

TEST(OxVertexOptimizer, DifferencesAreThoseOfFloats) {
    // In double precision the last two are 1.000000001 apart.
    EXPECT_THAT(mapping_of_line(1.0f, {1.5f, -1.9f, 1.0f, -1e-9f}), ElementsAre(0, 1, 2, 2));
}

TEST(OxVertexOptimizer, OppositeNormalsStayApart) {
    ox_vertex_optimizer optimizer(0.01f, 0.1f);
    const auto point = list_of<ox_3dvector>({{0.25f, 0.25f, 0.25f}});
    optimizer.add_vertices(point, ox_3dvector(0.f, 0.f, 1.f));
    optimizer.add_vertices(point, ox_3dvector(0.f, 0.f, -1.f));
    EXPECT_THAT(mapping_of(optimizer), ElementsAre(0, 1));
    EXPECT_EQ(optimizer.get_optimized_normals()[1], ox_3dvector(0.f, 0.f, -1.f));
}

TEST(OxVertexOptimizer, PointAtMinus3And5GrowsTheRootToEdge8) {
    // The leaves of the root [-7, 1) x [0, 8) x [0, 8) lie half a unit apart from -7 on.
    ox_vertex_optimizer optimizer(0.01f, 0.1f);
    optimizer.add_vertices(list_of<ox_3dvector>({{-3.f, 5.f, 0.5f}}));
    EXPECT_THAT(mapping_of(optimizer), ElementsAre(0));
    optimizer.add_vertices(list_of<ox_3dvector>({{-3.001f, 5.f, 0.5f}, {-2.999f, 5.f, 0.5f}}));
    EXPECT_THAT(mapping_of(optimizer), ElementsAre(0, 1, 0));
}

TEST(OxVertexOptimizer, ClosePointsOnEitherSideOfOneStayApart) {
    EXPECT_THAT(mapping_of_line(0.01f, {0.9995f, 1.0005f}), ElementsAre(0, 1));
}

TEST(OxVertexOptimizer, RootBelowTheLeafSizeIsTheLeafUntilItGrows) {
    // With leaves below 5 units the first root holds its points itself; so does the root of edge
    // 4, where the points of the smaller root are no longer looked for.
    EXPECT_THAT(mapping_of_line(0.5f, {0.2f, 0.3f, 3.f, 0.2f, 3.1f}), ElementsAre(0, 0, 1, 2, 1));
}

TEST(OxVertexOptimizer, FirstOfSeveralCandidatesWins) {
    EXPECT_THAT(mapping_of_line(0.01f, {0.1f, 0.115f, 0.1075f}), ElementsAre(0, 1, 0));
}

TEST(OxVertexOptimizer, WithoutNormalAllNormalsAreZero) {
    ox_vertex_optimizer optimizer(0.01f, 0.f);
    optimizer.add_vertices(list_of<ox_3dvector>({{1.f, 2.f, 3.f}, {1.f, 2.f, 3.f}}));
    EXPECT_THAT(mapping_of(optimizer), ElementsAre(0, 0));
    EXPECT_EQ(optimizer.get_optimized_normals()[0], ox_3dvector());
}

TEST(OxVertexOptimizer, CallsWithAndWithoutNormalMayBeMixed) {
    ox_vertex_optimizer optimizer(0.01f, 0.1f);
    const auto point = list_of<ox_3dvector>({{1.f, 2.f, 3.f}});
    optimizer.add_vertices(point);
    optimizer.add_vertices(point, ox_3dvector(0.f, 0.f, 1.f));
    optimizer.add_vertices(point, ox_3dvector(0.f, 0.05f, 0.f));
    EXPECT_THAT(mapping_of(optimizer), ElementsAre(0, 1, 0));
}

TEST(OxVertexOptimizer, NanOrInfiniteVertexIsAWeldedVertexOfItsOwn) {
    for (const float broken : {nan_value, infinity, -infinity}) {
        ox_vertex_optimizer optimizer(0.01f, 0.1f);
        const auto points = list_of<ox_3dvector>({{0.f, broken, 0.f}, {0.5f, 0.f, 0.f}});
        optimizer.add_vertices(points);
        optimizer.add_vertices(points);
        EXPECT_THAT(mapping_of(optimizer), ElementsAre(0, 1, 2, 1));
        EXPECT_EQ(optimizer.get_optimized_vertices().size(), 3);
        EXPECT_EQ(optimizer.get_optimized_normals().size(), 3);
    }
}

TEST(OxVertexOptimizer, VertexBeyondEveryFiniteRootIsAWeldedVertexOfItsOwn) {
    EXPECT_THAT(mapping_of_line(0.01f, {3e38f, 3e38f, 0.5f, 0.5f, -3e38f, 0.5f}),
                ElementsAre(0, 1, 2, 2, 3, 2));
}

TEST(OxVertexOptimizer, HugeVerticesThatARootContainsAreWelded) {
    EXPECT_THAT(mapping_of_line(0.01f, {1e38f, 1e38f, 0.5f}), ElementsAre(0, 0, 1));
    EXPECT_THAT(mapping_of_line(0.01f, {-1e37f, 1e37f, -1e37f, 1e37f}), ElementsAre(0, 1, 0, 1));
}

TEST(OxVertexOptimizer, NanNormalJoinsNothing) {
    ox_vertex_optimizer optimizer(0.01f, 10.f);
    const auto point = list_of<ox_3dvector>({{0.f, 0.f, 0.f}});
    optimizer.add_vertices(point, ox_3dvector(nan_value, 0.f, 0.f));
    optimizer.add_vertices(point, ox_3dvector(nan_value, 0.f, 0.f));
    optimizer.add_vertices(point);
    EXPECT_THAT(mapping_of(optimizer), ElementsAre(0, 1, 2));
}

TEST(OxVertexOptimizer, NegativeOrNanTolerancesWeldNothing) {
    EXPECT_THAT(mapping_of_line(-1.f, {0.5f, 0.5f}), ElementsAre(0, 1));
    EXPECT_THAT(mapping_of_line(nan_value, {0.5f, 0.5f}), ElementsAre(0, 1));
}

TEST(OxVertexOptimizer, InfiniteToleranceWeldsEachRoot) {
    EXPECT_THAT(mapping_of_line(infinity, {0.5f, 0.1f, 0.9f}), ElementsAre(0, 0, 0));
}

TEST(OxVertexOptimizer, ItsOwnListsMayBeAdded) {
    ox_vertex_optimizer optimizer(-1.f, 0.f);
    optimizer.add_vertices(list_of<ox_3dvector>({{1.f, 0.f, 0.f}, {2.f, 0.f, 0.f}}),
                           ox_3dvector(0.f, 0.f, 1.f));
    optimizer.add_vertices(optimizer.get_optimized_vertices(),
                           optimizer.get_optimized_normals().at(0));
    EXPECT_THAT(mapping_of(optimizer), ElementsAre(0, 1, 2, 3));
    EXPECT_EQ(optimizer.get_optimized_vertices()[3], ox_3dvector(2.f, 0.f, 0.f));
    EXPECT_EQ(optimizer.get_optimized_normals()[3], ox_3dvector(0.f, 0.f, 1.f));
}

TEST(OxVertexOptimizer, ListOfNegativeSizeAddsNothing) {
    ox_vertex_optimizer optimizer(0.01f, 0.1f);
    ox::ox_list<ox_3dvector> list;
    list.set_size(-2);
    optimizer.add_vertices(list);
    EXPECT_EQ(optimizer.get_mapping().size(), 0);
}

TEST(OxVertexOptimizer, CopiesShareOneState) {
    ox_vertex_optimizer copy(0.5f, 0.5f);
    {
        ox_vertex_optimizer optimizer(0.01f, 0.1f);
        copy = optimizer;
        const ox_vertex_optimizer second(optimizer);
        optimizer.add_vertices(list_of<ox_3dvector>({{1.f, 2.f, 3.f}}));
        EXPECT_EQ(second.get_mapping().size(), 1);
    }
    EXPECT_EQ(copy.get_optimized_vertices().size(), 1);
}

/// Whatever has been welded when memory runs out, the lists fit each other and work goes on.
TEST(OxVertexOptimizer, MemoryThatRunsOutKeepsWhatWasWelded) {
    const auto vertices = list_of(mesh_support::height_field(20).vertices);
    int nb_failures = 0;
    for (std::size_t limit = 1 << 10; limit < (1 << 18); limit += 1 << 10) {
        ox_vertex_optimizer optimizer(0.1f, 0.1f);
        optimizer.add_vertices(list_of<ox_3dvector>({{1e7f, -1e7f, 0.f}}), ox_3dvector(0, 0, 1));
        allocation_meter::start(limit);
        try {
            optimizer.add_vertices(vertices, ox_3dvector(0, 1, 0));
        } catch (const std::bad_alloc&) {
            ++nb_failures;
        }
        allocation_meter::stop();
        EXPECT_EQ(optimizer.get_optimized_normals().size(),
                  optimizer.get_optimized_vertices().size());
        optimizer.add_vertices(vertices, ox_3dvector(0, 1, 0));
        EXPECT_EQ(optimizer.get_optimized_vertices().size(), 1 + vertices.size());
        EXPECT_EQ(optimizer.get_optimized_normals().size(), 1 + vertices.size());
        EXPECT_EQ(optimizer.get_mapping().at(0), 0u);
    }
    EXPECT_GT(nb_failures, 10);
}

} // namespace
