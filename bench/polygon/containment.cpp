#include <bench/support/outline.h>
#include <ox/polygon/ox_polygon.h>
#include <tests/reference/contains.h>

#include "workloads.h"

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_polygon;

constexpr int nb_questions = 2000;
constexpr double inner_radius = 9.0;
constexpr double outer_radius = 10.0;

/// A region and how many of the points asked for lie in it.
struct questions {
    ox_polygon polygon;
    std::vector<std::vector<ox::ox_2dvector>> contours; ///< in the polygon's frame
    double inside = 0.0;
};

// Points of the square around the outline.
std::vector<ox_3dvector> asked_points() {
    ox::ox_random random(13);
    std::vector<ox_3dvector> points;
    for (int i = 0; i < nb_questions; ++i) {
        const float x = 20.0f * random.dice_0_1() - 10.0f;
        const float y = 20.0f * random.dice_0_1() - 10.0f;
        points.push_back(ox_3dvector(x, y, 0.0f));
    }
    return points;
}

std::vector<fact> facts_of(questions& q) {
    return {{"points inside", q.inside, 0.0}};
}

// What earlier questions left behind is gone with every copy.
contest ask(long corners) {
    const auto region = std::make_shared<ox_polygon>(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
    region->add_contour(random_outline(static_cast<int>(corners), inner_radius, outer_radius));
    const std::vector<ox_3dvector> points = asked_points();
    const auto contours = reference::plane_contours(*region, reference::plane_frame(*region));
    const auto make = [=] { return questions{*region, contours}; };
    contest rules;
    rules.ours = make_contestant(
        "ox_polygon", make,
        [=](questions& q) {
            for (const ox_3dvector& p : points) {
                q.inside += q.polygon.contains(p) ? 1.0 : 0.0;
            }
        },
        facts_of);
    rules.peers = {make_contestant(
        "plain version", make,
        [=](questions& q) {
            const reference::plane_frame frame(q.polygon);
            for (const ox_3dvector& p : points) {
                q.inside += reference::contains(q.contours, frame.coordinates(p)) ? 1.0 : 0.0;
            }
        },
        facts_of)};
    rules.goal = 1.0 / 30.0;
    return rules;
}

} // namespace

workload points_in_a_region() {
    return workload{"points found in a jagged outline",
                    "corners",
                    {1000, 10000, 100000},
                    {1000, 3000, 10000},
                    ask}
        .growing_at_most(1.0)
        .judged_from(10000);
}

} // namespace bench
