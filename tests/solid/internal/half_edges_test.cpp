// Half-edges are not reachable through the public interface: this program compiles their source.

#include <ox/solid/internal/half_edges.h>

#include <limits>

#include <gtest/gtest.h>

#include <tests/solid/solid_lists.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_solid_half_edge;
using ox::internal::half_edge_set;
using ox::internal::solid_storage;
using ox_test::list_of;

/// The half-edges of a storage with `vertex_count` vertices, wherever they are.
struct record : half_edge_set {
    record(int vertex_count, const ox_list<unsigned int>& indices, const ox_list<int>& sizes)
        : storage{ox_list<ox_3dvector>(vertex_count), indices, sizes} {}

    void build() { half_edge_set::build(storage); }

    solid_storage storage;
};

record tetrahedron() {
    return record(4, list_of({0u, 2u, 1u, 0u, 1u, 3u, 1u, 2u, 3u, 2u, 0u, 3u}),
                  list_of({3, 3, 3, 3}));
}

TEST(HalfEdges, OfATetrahedronAreClosedAndEachOppositeRunsTheOtherWay) {
    auto state = tetrahedron();
    state.build();
    ASSERT_EQ(state.edges.size(), 12u);
    EXPECT_TRUE(state.is_closed);
    for (const auto& half_edge : state.edges) {
        ASSERT_NE(half_edge->opposite, nullptr);
        EXPECT_EQ(half_edge->opposite->start, half_edge->end);
        EXPECT_EQ(half_edge->opposite->end, half_edge->start);
    }
}

TEST(HalfEdges, KnowTheirPlaceTheirContourAndTheirFace) {
    record state(6, list_of({0u, 1u, 2u, 3u, 4u, 5u}), list_of({3, -3}));
    state.build();
    ASSERT_EQ(state.edges.size(), 6u);
    const ox_solid_half_edge& last = *state.edges[5];
    EXPECT_EQ(last.start, 5u);
    EXPECT_EQ(last.end, 3u);
    EXPECT_EQ(last.position, 2u);
    EXPECT_EQ(last.contour, 1u);
    EXPECT_EQ(last.face, 0u);
    EXPECT_EQ(last.vertices.size(), 0);
    EXPECT_EQ(last.parameters.size(), 0);
}

TEST(HalfEdges, OfAFaceAloneAreNotClosed) {
    record state(3, list_of({0u, 1u, 2u}), list_of({3}));
    state.build();
    EXPECT_EQ(state.edges.size(), 3u);
    EXPECT_FALSE(state.is_closed);
    EXPECT_EQ(state.edges[0]->opposite, nullptr);
}

TEST(HalfEdges, AreBuiltOnce) {
    auto state = tetrahedron();
    state.build();
    state.is_closed = false;
    state.build();
    EXPECT_EQ(state.edges.size(), 12u);
    EXPECT_FALSE(state.is_closed);
}

TEST(HalfEdges, OfAContourThatLeavesTheListsEndThere) {
    record bad_index(3, list_of({0u, 1u, 9u, 0u, 1u, 2u}), list_of({3, 3}));
    bad_index.build();
    EXPECT_EQ(bad_index.edges.size(), 1u + 3u);
    record cut_short(3, list_of({0u, 1u, 2u}), list_of({4}));
    cut_short.build();
    EXPECT_EQ(cut_short.edges.size(), 2u);
    EXPECT_FALSE(cut_short.is_closed);
}

TEST(HalfEdges, OfHugeSizesStayWithinTheLists) {
    const int lowest = (std::numeric_limits<int>::min)();
    const int highest = (std::numeric_limits<int>::max)();
    record state(3, list_of({0u, 1u, 2u}), list_of({lowest, highest, highest, 0}));
    state.build();
    EXPECT_EQ(state.edges.size(), 2u);
    record empty(0, list_of({0u}), list_of({1}));
    empty.build();
    EXPECT_EQ(empty.edges.size(), 0u);
    EXPECT_TRUE(empty.is_closed);
}

} // namespace
