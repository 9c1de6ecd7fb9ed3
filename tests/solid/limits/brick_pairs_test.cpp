// Limits of the face-by-face booleans where faces of two bricks coincide: all pairs of bricks
// between four values along each axis, judged by unit cubes.

#include <functional>
#include <vector>

#include <tests/solid/csg/whole_boxes.h>
#include <tests/solid/limits/limits_map.h>

namespace {

using csg_test::block_model;
using csg_test::whole_box;
using limits::combine;
using limits::engine;
using limits::operation;
using limits::verdicts;
using ox::ox_3dvector;
using ox::ox_solid;

constexpr int grid_side = 3;

/// The usual run takes every 37th pair, so that all first and second bricks have their turn.
constexpr int usual_stride = 37;

/// A way to combine two bricks: by an engine, and in the model.
struct expression {
    std::function<ox_solid(engine, const ox_solid&, const ox_solid&)> evaluate;
    std::function<void(block_model&, const whole_box&, const whole_box&)> model;
};

expression single(operation with) {
    return {
        [with](engine by, const ox_solid& a, const ox_solid& b) { return combine(by, a, with, b); },
        [with](block_model& model, const whole_box& a, const whole_box& b) {
            model.unites(a);
            csg_test::apply(model, with, b);
        }};
}

/// A - (A - B), the intersection.
expression doubled_difference() {
    return {[](engine by, const ox_solid& a, const ox_solid& b) {
                return combine(by, a, operation::substracts,
                               combine(by, a, operation::substracts, b));
            },
            single(operation::intersects).model};
}

/// A + (B - A), the union.
expression union_of_parts() {
    return {[](engine by, const ox_solid& a, const ox_solid& b) {
                return combine(by, a, operation::unites, combine(by, b, operation::substracts, a));
            },
            single(operation::unites).model};
}

/// Judges the expression over all pairs; turned ones lie about general axes near the origin.
verdicts judge(const expression& judged, bool turned) {
    const std::vector<whole_box> boxes = csg_test::all_boxes(grid_side);
    const int count = static_cast<int>(boxes.size());
    support::generator random(71);
    verdicts counts;
    for (int pair = 0; pair < count * count; pair += support::all_or(1, usual_stride)) {
        const whole_box& a = boxes[static_cast<std::size_t>(pair / count)];
        const whole_box& b = boxes[static_cast<std::size_t>(pair % count)];
        const support::frame axes = turned ? support::random_frame(random) : support::frame();
        const ox_3dvector origin =
            turned ? support::random_point(random, 1.0) : ox_3dvector(0.0f, 0.0f, 0.0f);
        block_model model(grid_side);
        judged.model(model, a, b);
        ++counts.cases;
        for (const engine by : {engine::face_by_face, engine::csg}) {
            const ox_solid result = judged.evaluate(by, csg_test::to_brick(a, axes, origin),
                                                    csg_test::to_brick(b, axes, origin));
            counts.add(by, limits::is_wrong(result, model.get_volume(),
                                            csg_test::area_of(a) + csg_test::area_of(b)));
        }
    }
    return counts;
}

TEST(LimitsOfBrickPairs, AxisParallelDifferencesAreRight) {
    limits::expect_limit("bricks along the axes, A - B",
                         judge(single(operation::substracts), false), {0, 0});
}

TEST(LimitsOfBrickPairs, SomeAxisParallelUnionsOfCrossingBricksKeepTheOverlapTwice) {
    limits::expect_limit("bricks along the axes, A + B", judge(single(operation::unites), false),
                         {2, 132});
}

TEST(LimitsOfBrickPairs, AxisParallelIntersectionsKeepCoincidentFacesTwice) {
    limits::expect_limit("bricks along the axes, A * B",
                         judge(single(operation::intersects), false), {472, 17512});
}

TEST(LimitsOfBrickPairs, AxisParallelIntersectionsByTwoDifferencesAreRight) {
    limits::expect_limit("bricks along the axes, A - (A - B)", judge(doubled_difference(), false),
                         {0, 0});
}

TEST(LimitsOfBrickPairs, AxisParallelUnionsOfPartsAreRight) {
    limits::expect_limit("bricks along the axes, A + (B - A)", judge(union_of_parts(), false),
                         {0, 0});
}

TEST(LimitsOfBrickPairs, TurnedDifferencesOfBricksThatTouchKeepASkin) {
    limits::expect_limit("turned bricks, A - B", judge(single(operation::substracts), true),
                         {441, 16224});
}

TEST(LimitsOfBrickPairs, TurnedUnionsMayKeepTheOverlapTwice) {
    limits::expect_limit("turned bricks, A + B", judge(single(operation::unites), true),
                         {51, 2518});
}

TEST(LimitsOfBrickPairs, TurnedIntersectionsKeepCoincidentFacesTwice) {
    limits::expect_limit("turned bricks, A * B", judge(single(operation::intersects), true),
                         {472, 17512});
}

TEST(LimitsOfBrickPairs, TurnedIntersectionsByTwoDifferencesMayBeWrong) {
    limits::expect_limit("turned bricks, A - (A - B)", judge(doubled_difference(), true),
                         {100, 3392});
}

TEST(LimitsOfBrickPairs, TurnedUnionsOfPartsMayBeWrong) {
    limits::expect_limit("turned bricks, A + (B - A)", judge(union_of_parts(), true), {29, 1394});
}

} // namespace
