#include <examples/slab/sharing.h>

#include <gtest/gtest.h>

namespace {

using namespace slab;

/// A slab of 10 by 4 metres that weighs 2 kN/m2, on three beams from south to north.
description three_beams() {
    description d;
    d.name = "test";
    d.weight = 2;
    d.outline.points = {{0, 0}, {10, 0}, {10, 4}, {0, 4}};
    d.spans = {{"x", {1, 0}, 1}};
    d.beams = {{"west", {0, 0}, {0, 4}}, {"middle", {6, 0}, {6, 4}}, {"east", {10, 0}, {10, 4}}};
    return d;
}

/// kN. One line of the sweep over the whole slab, and its like at the ends of the beams.
constexpr double line_load = 10.0 / 1500 * 10 * 2;

TEST(SlabSharing, GivesEachBeamHalfTheWayToItsNeighbours) {
    const sharing shares = share_out(three_beams());
    EXPECT_NEAR(3 * 4 * 2, shares.loads[0], line_load);
    EXPECT_NEAR(5 * 4 * 2, shares.loads[1], line_load);
    EXPECT_NEAR(2 * 4 * 2, shares.loads[2], line_load);
    EXPECT_NEAR(10 * 4 * 2, shares.total(), line_load);
    EXPECT_NEAR(40, shares.area, 0.001);
}

TEST(SlabSharing, SplitsTheWeightBetweenTwoSpans) {
    description d = three_beams();
    d.spans = {{"x", {1, 0}, 0.25}, {"y", {0, 1}, 0.75}};
    d.beams.push_back({"south", {0, 0}, {10, 0}});
    const sharing shares = share_out(d);
    EXPECT_NEAR(0.75 * 80, shares.loads[3], line_load);
    EXPECT_NEAR(0.25 * 40, shares.loads[1], line_load);
    EXPECT_EQ(0, shares.spans[0].loads[3]);
    EXPECT_EQ(0, shares.spans[1].loads[1]);
}

TEST(SlabSharing, LeavesTheHoleToNobody) {
    description d = three_beams();
    d.holes.push_back({{{2, 1}, {4, 1}, {4, 3}, {2, 3}}, 0});
    d.beams.push_back({"hole", {4, 1}, {4, 3}});
    const sharing shares = share_out(d);
    EXPECT_NEAR(36 * 2, shares.total(), line_load);
    EXPECT_NEAR(36, shares.area, 0.001);
}

TEST(SlabSharing, PicturesTheShareOfEachBeamInAColourOfItsOwn) {
    const share_map map = share_out(three_beams()).spans[0].map;
    const unsigned int west = map.colour_at({1, 2});
    const unsigned int middle = map.colour_at({4, 2});
    EXPECT_NE(west, middle);
    EXPECT_EQ(west, map.colour_at({2.9, 3.5}));
    EXPECT_EQ(middle, map.colour_at({7.9, 0.5}));
    EXPECT_EQ(0u, map.colour_at({6, 2}));
    EXPECT_EQ(0xFFFFFFFFu, map.colour_at({-1, 2}));
    EXPECT_EQ(0xFFFFFFFFu, map.colour_at({5, 4.5}));
}

TEST(SlabSharing, FindsTheColoursOfASpanAcrossThePlan) {
    description d = three_beams();
    d.spans = {{"y", {0, 1}, 1}};
    d.beams = {{"south", {0, 0}, {10, 0}}, {"north", {0, 4}, {10, 4}}};
    const share_map map = share_out(d).spans[0].map;
    EXPECT_EQ(map.colour_at({1, 0.5}), map.colour_at({9, 1.9}));
    EXPECT_EQ(map.colour_at({1, 3.5}), map.colour_at({9, 2.1}));
    EXPECT_NE(map.colour_at({5, 1}), map.colour_at({5, 3}));
}

TEST(SlabDescription, CountsPlacesFromTheFirstCorner) {
    const description d = read_description(std::string(OX_TEST_DESCRIPTIONS_DIR) + "/oblique.txt");
    EXPECT_EQ(0, d.outline.points[0].x);
    EXPECT_EQ(4, d.outline.points[1].x);
    EXPECT_EQ(4, d.beams[1].from.x);
    EXPECT_EQ(5, d.beams[0].length());
}

TEST(SlabDescription, ReadsTheFirstFloor) {
    const description d = read_description(std::string(OX_DESCRIPTIONS_DIR) + "/first_floor.txt");
    EXPECT_EQ("first_floor", d.name);
    EXPECT_EQ(8.75, d.weight);
    EXPECT_EQ(6u, d.outline.points.size());
    EXPECT_EQ(1u, d.holes.size());
    EXPECT_EQ(2u, d.spans.size());
    EXPECT_EQ(12u, d.beams.size());
}

} // namespace
