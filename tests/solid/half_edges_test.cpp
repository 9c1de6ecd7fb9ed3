// Half-edges are not reachable through the public interface: this program compiles their source.

#include <ox/solid/internal/half_edges.h>
#include <ox/solid/internal/ox_solid_state.h>

#include <limits>

#include <gtest/gtest.h>

#include <tests/solid/solid_lists.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_solid_half_edge;
using ox::ox_solid_state;
using ox_test::list_of;

/// A record with `vertex_count` vertices, wherever they are.
struct record : ox_solid_state {
    record(int vertex_count, const ox_list<unsigned int>& indices, const ox_list<int>& sizes)
        : ox_solid_state(nullptr) {
        vertices = ox_list<ox_3dvector>(vertex_count);
        contours = indices;
        contour_sizes = sizes;
    }
};

record tetrahedron() {
    return record(4, list_of({0u, 2u, 1u, 0u, 1u, 3u, 1u, 2u, 3u, 2u, 0u, 3u}),
                  list_of({3, 3, 3, 3}));
}

TEST(HalfEdges, OfATetrahedronAreClosedAndEachOppositeRunsTheOtherWay) {
    auto state = tetrahedron();
    build_half_edges(state);
    ASSERT_EQ(state.half_edges.size(), 12);
    EXPECT_TRUE(state.half_edges_closed);
    for (const ox_solid_half_edge* half_edge : state.half_edges) {
        ASSERT_NE(half_edge->opposite, nullptr);
        EXPECT_EQ(half_edge->opposite->start, half_edge->end);
        EXPECT_EQ(half_edge->opposite->end, half_edge->start);
    }
}

TEST(HalfEdges, KnowTheirPlaceTheirContourAndTheirFace) {
    record state(6, list_of({0u, 1u, 2u, 3u, 4u, 5u}), list_of({3, -3}));
    build_half_edges(state);
    ASSERT_EQ(state.half_edges.size(), 6);
    const ox_solid_half_edge& last = *state.half_edges[5];
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
    build_half_edges(state);
    EXPECT_EQ(state.half_edges.size(), 3);
    EXPECT_FALSE(state.half_edges_closed);
    EXPECT_EQ(state.half_edges[0]->opposite, nullptr);
}

TEST(HalfEdges, AreBuiltOnce) {
    auto state = tetrahedron();
    build_half_edges(state);
    state.half_edges_closed = false;
    build_half_edges(state);
    EXPECT_EQ(state.half_edges.size(), 12);
    EXPECT_FALSE(state.half_edges_closed);
}

TEST(HalfEdges, OfAContourThatLeavesTheListsEndThere) {
    record bad_index(3, list_of({0u, 1u, 9u, 0u, 1u, 2u}), list_of({3, 3}));
    build_half_edges(bad_index);
    EXPECT_EQ(bad_index.half_edges.size(), 1 + 3);
    record cut_short(3, list_of({0u, 1u, 2u}), list_of({4}));
    build_half_edges(cut_short);
    EXPECT_EQ(cut_short.half_edges.size(), 2);
    EXPECT_FALSE(cut_short.half_edges_closed);
}

TEST(HalfEdges, OfHugeSizesStayWithinTheLists) {
    const int lowest = (std::numeric_limits<int>::min)();
    const int highest = (std::numeric_limits<int>::max)();
    record state(3, list_of({0u, 1u, 2u}), list_of({lowest, highest, highest, 0}));
    build_half_edges(state);
    EXPECT_EQ(state.half_edges.size(), 2);
    record empty(0, list_of({0u}), list_of({1}));
    build_half_edges(empty);
    EXPECT_EQ(empty.half_edges.size(), 0);
    EXPECT_TRUE(empty.half_edges_closed);
}

} // namespace
