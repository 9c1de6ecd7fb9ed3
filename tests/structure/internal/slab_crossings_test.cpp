// How the outline of a slab is crossed by the lines of the sweep, rule by rule. Every slab lies
// between the heights -1 and 1 and is swept by the lines at -1, which only touches it, and 0: a
// beam's weight is then the length of the stretch of slab that it stands in on the line at 0.

#include <gtest/gtest.h>
#include <initializer_list>
#include <ox/geometry/ox_2dvector.h>
#include <ox/structure/ox_loadshare.h>
#include <vector>

namespace {

using ox::ox_2dvector;
using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_loadshare;
using points = std::vector<ox_2dvector>;

ox_list<ox_3dvector> contour(const points& given) {
    ox_list<ox_3dvector> result;
    for (const ox_2dvector& p : given) {
        result.push_right(ox_3dvector(p.x, p.y, 0));
    }
    return result;
}

/// The lengths on the line at 0 of the stretches in which the beams stand.
std::vector<float> lengths(std::initializer_list<points> contours,
                           std::initializer_list<float> beams) {
    ox_loadshare slab;
    for (const points& c : contours) {
        slab.add_slab_contour(contour(c));
    }
    for (const float x : beams) {
        slab.add_beam(ox_3dvector(x, -9, 0), ox_3dvector(x, 9, 0));
    }
    slab.compute_weights(1);
    std::vector<float> result;
    for (int beam = 0; beam < static_cast<int>(beams.size()); ++beam) {
        result.push_back(slab.get_weight(beam));
    }
    return result;
}

/// The same for one contour and a beam at 1, in both directions and from every first point.
void expect_length(const points& given, float length) {
    points turned = given;
    for (std::size_t first = 0; first < given.size(); ++first) {
        turned.push_back(turned.front());
        turned.erase(turned.begin());
        EXPECT_EQ(lengths({turned}, {1.f}), std::vector<float>{length}) << "from " << first;
        const points reversed(turned.rbegin(), turned.rend());
        EXPECT_EQ(lengths({reversed}, {1.f}), std::vector<float>{length}) << "back from " << first;
    }
}

TEST(OxLoadshareCrossings, SlopingSidesAreCrossedWhereTheyMeetTheLine) {
    expect_length({{0, -1}, {4, -1}, {8, 1}, {-2, 1}}, 6 - -1);
}

TEST(OxLoadshareCrossings, VertexBetweenSidesBelowAndAboveIsCrossedOnce) {
    expect_length({{0, -1}, {4, -1}, {5, 0}, {4, 1}, {0, 1}}, 5);
}

TEST(OxLoadshareCrossings, VertexWithBothSidesAboveIsOnlyTouched) {
    expect_length({{0, -1}, {6, -1}, {6, 1}, {3, 0}, {0, 1}}, 6);
}

TEST(OxLoadshareCrossings, VertexWithBothSidesBelowIsOnlyTouched) {
    expect_length({{0, 1}, {6, 1}, {6, -1}, {3, 0}, {0, -1}}, 6);
}

TEST(OxLoadshareCrossings, EdgeOnTheLineWithBothSidesAboveIsOnlyTouched) {
    expect_length({{0, -1}, {6, -1}, {6, 1}, {4, 1}, {4, 0}, {2, 0}, {2, 1}, {0, 1}}, 6);
}

TEST(OxLoadshareCrossings, EdgeOnTheLineWithBothSidesBelowIsOnlyTouched) {
    expect_length({{0, 1}, {6, 1}, {6, -1}, {4, -1}, {4, 0}, {2, 0}, {2, -1}, {0, -1}}, 6);
}

TEST(OxLoadshareCrossings, StepInwardsIsCrossedAtItsLowerSide) {
    expect_length({{0, -1}, {6, -1}, {6, 0}, {5, 0}, {5, 1}, {0, 1}}, 6);
}

TEST(OxLoadshareCrossings, StepOutwardsIsCrossedAtItsLowerSide) {
    expect_length({{0, -1}, {5, -1}, {5, 0}, {6, 0}, {6, 1}, {0, 1}}, 5);
}

TEST(OxLoadshareCrossings, StepOfSeveralPointsIsCrossedWhereItsLowerSideArrives) {
    expect_length({{0, -1}, {6, -1}, {6, 0}, {5.5f, 0}, {5.25f, 0}, {5, 0}, {5, 1}, {0, 1}}, 6);
    expect_length({{0, -1}, {5, -1}, {5, 0}, {5.25f, 0}, {5.5f, 0}, {6, 0}, {6, 1}, {0, 1}}, 5);
}

TEST(OxLoadshareCrossings, PlateauOfSeveralPointsIsOnlyTouched) {
    expect_length(
        {{0, -1}, {6, -1}, {6, 1}, {4, 1}, {4, 0}, {3, 0}, {2.5f, 0}, {2, 0}, {2, 1}, {0, 1}}, 6);
}

TEST(OxLoadshareCrossings, RepeatedPointsOnTheLineAreOneVertex) {
    expect_length({{0, -1}, {4, -1}, {5, 0}, {5, 0}, {5, 0}, {4, 1}, {0, 1}}, 5);
}

TEST(OxLoadshareCrossings, StepsOnBothSidesAreCrossedAtTheirLowerSides) {
    expect_length({{0, -1}, {4, -1}, {4, 0}, {5, 0}, {5, 1}, {-1, 1}, {-1, 0}, {0, 0}}, 4);
}

TEST(OxLoadshareCrossings, ContourWhollyOnTheLineIsNotCrossed) {
    const points slab = {{0, -1}, {6, -1}, {6, 1}, {0, 1}};
    EXPECT_EQ(lengths({slab, {{1, 0}, {2, 0}, {3, 0}}}, {1.f}), std::vector<float>{6});
    EXPECT_EQ(lengths({slab, {{1, 0}}}, {1.f}), std::vector<float>{6});
    EXPECT_EQ(lengths({slab, {{1, 0}, {2, 0}}}, {1.f}), std::vector<float>{6});
}

TEST(OxLoadshareCrossings, HoleDividesTheLineIntoTwoStretches) {
    const points slab = {{0, -1}, {6, -1}, {6, 1}, {0, 1}};
    const points hole = {{2, -0.5f}, {3, -0.5f}, {3, 0.5f}, {2, 0.5f}};
    EXPECT_EQ(lengths({slab, hole}, {1.f, 4.f}), (std::vector<float>{2, 3}));
}

TEST(OxLoadshareCrossings, BeamInAHoleTakesFromTheStretchBehindIt) {
    const points slab = {{0, -1}, {6, -1}, {6, 1}, {0, 1}};
    const points hole = {{2, -0.5f}, {3, -0.5f}, {3, 0.5f}, {2, 0.5f}};
    EXPECT_EQ(lengths({slab, hole}, {1.f, 2.5f, 4.f}), (std::vector<float>{2, 0.25f, 2.75f}));
}

TEST(OxLoadshareCrossings, BeamLeftOfTheSlabGetsNothingAndOneRightOfItEndsTheLine) {
    const points slab = {{0, -1}, {6, -1}, {6, 1}, {0, 1}};
    EXPECT_EQ(lengths({slab}, {-1.f, 1.f, 7.f}), (std::vector<float>{0, 6, 0}));
}

TEST(OxLoadshareCrossings, NeighboursInOneStretchMeetHalfWay) {
    const points slab = {{0, -1}, {6, -1}, {6, 1}, {0, 1}};
    EXPECT_EQ(lengths({slab}, {4.f, 1.f}), (std::vector<float>{3.5f, 2.5f}));
}

TEST(OxLoadshareCrossings, BeamThatEndsOnTheLineDoesNotCrossIt) {
    ox_loadshare slab;
    slab.add_slab_contour(contour({{0, -1}, {6, -1}, {6, 1}, {0, 1}}));
    slab.add_beam(ox_3dvector(1, 0, 0), ox_3dvector(1, 1, 0));
    slab.add_beam(ox_3dvector(2, 0, 0), ox_3dvector(2, -1, 0));
    slab.add_beam(ox_3dvector(3, 1, 0), ox_3dvector(3, -1, 0));
    slab.compute_weights(1);
    EXPECT_EQ(slab.get_weight(0), 0);
    EXPECT_EQ(slab.get_weight(1), 0);
    EXPECT_EQ(slab.get_weight(2), 6);
}

} // namespace
