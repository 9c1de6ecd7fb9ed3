// All pairs of bricks between four values along each axis: every way in which two boxes can touch,
// share a face, nest or cross. Unit cubes say what is right.

#include <algorithm>
#include <cmath>
#include <iostream>
#include <vector>

#include <gtest/gtest.h>

#include <tests/solid/csg/block_model.h>
#include <tests/solid/csg/judged_results.h>
#include <tests/solid/csg/whole_boxes.h>

namespace {

using csg_test::block_model;
using csg_test::operation;
using csg_test::whole_box;
using ox::ox_3dvector;
using ox::ox_solid;

constexpr int grid_side = 3;

/// The usual run takes every 37th pair, so that all first and second boxes have their turn.
constexpr int pair_stride = 37;

/// How many results were judged, and how many were wrong in what.
struct verdicts {
    int results = 0;
    int wrong_volumes = 0;
    int open_shells = 0;
    int other_face_counts = 0;

    void print(const char* what) const {
        std::cout << what << ": " << results << " results, " << wrong_volumes << " wrong volumes, "
                  << open_shells << " open shells, " << other_face_counts << " other face counts\n";
    }
};

/// Where the bricks of a pair lie: their frame, and the origin of the grid.
struct placement {
    support::frame frame;
    ox_3dvector origin;
};

void judge(const whole_box& a, operation with, const whole_box& b, const placement& place,
           verdicts& counts) {
    block_model model(grid_side);
    model.unites(a);
    apply(model, with, b);
    const ox_solid result =
        csg_test::combine(csg_test::to_brick(a, place.frame, place.origin), with,
                          csg_test::to_brick(b, place.frame, place.origin));
    const double bound =
        csg_test::volume_bound(area_of(a) + area_of(b), std::min(area_of(a), area_of(b)));
    ++counts.results;
    if (!(std::fabs(result.get_volume() - model.get_volume()) <= bound)) {
        ++counts.wrong_volumes;
    }
    if (!csg_test::is_closed(result)) {
        ++counts.open_shells;
    }
    if (support::count_faces(result) != model.count_faces()) {
        ++counts.other_face_counts;
    }
}

/// Judges the four results of every pair, or of every 37th; `place_of` says where each lies.
template <typename Placing>
verdicts judge_pairs(Placing place_of) {
    const std::vector<whole_box> boxes = csg_test::all_boxes(grid_side);
    const int count = static_cast<int>(boxes.size());
    verdicts counts;
    for (int pair = 0; pair < count * count; pair += support::all_or(1, pair_stride)) {
        const whole_box& a = boxes[static_cast<std::size_t>(pair / count)];
        const whole_box& b = boxes[static_cast<std::size_t>(pair % count)];
        const placement place = place_of();
        judge(a, operation::unites, b, place, counts);
        judge(a, operation::substracts, b, place, counts);
        judge(b, operation::substracts, a, place, counts);
        judge(a, operation::intersects, b, place, counts);
    }
    return counts;
}

TEST(CsgBrickPairs, AxisParallelPairsAreRightClosedAndHaveTheFewestFaces) {
    const verdicts counts = judge_pairs([] { return placement(); });
    counts.print("axis-parallel pairs");
    EXPECT_EQ(counts.wrong_volumes, 0);
    EXPECT_EQ(counts.open_shells, 0);
    EXPECT_EQ(counts.other_face_counts, 0);
}

/// Pairs turned about general axes, and moved by up to `reach` along each axis.
verdicts judge_turned_pairs(double reach) {
    support::generator random(71);
    return judge_pairs([&random, reach] {
        const support::frame frame = support::random_frame(random);
        return placement{frame, support::random_point(random, reach)};
    });
}

void expect_right(const verdicts& counts) {
    EXPECT_EQ(counts.wrong_volumes, 0);
    EXPECT_EQ(counts.open_shells, 0);
}

TEST(CsgBrickPairs, PairsTurnedAboutGeneralAxesAreRightAndClosed) {
    const verdicts counts = judge_turned_pairs(1.0);
    counts.print("turned pairs");
    expect_right(counts);
    EXPECT_LE(counts.other_face_counts, counts.results / 100);
}

// So far away coordinates are rounded by more than a tenth of the tolerance, from where on a face
// may come back as several.
TEST(CsgBrickPairs, TurnedPairsUpToAThousandUnitsAwayAreRightAndClosed) {
    const verdicts counts = judge_turned_pairs(1000.0);
    counts.print("turned pairs up to 1000 units away");
    expect_right(counts);
    EXPECT_LE(counts.other_face_counts, counts.results / 100);
}

} // namespace
