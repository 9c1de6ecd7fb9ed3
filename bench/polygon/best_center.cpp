#include <ox/polygon/ox_polygon.h>
#include <tests/reference/best_center.h>

#include "contours.h"
#include "workloads.h"

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_polygon;

// From this length on the plain scan is slow enough for the goal.
constexpr long goal_length = 100;

// A slab 0.6 times as wide as long, with 30 openings.
ox_polygon slab(long length) {
    const float scale = static_cast<float>(length) / 100.0f;
    ox_polygon polygon;
    polygon.add_contour(rectangle(0.0f, 0.0f, 100.0f * scale, 60.0f * scale));
    for (int i = 0; i < 30; ++i) {
        polygon.add_contour(rectangle(scale * (3.0f + 16.0f * static_cast<float>(i % 6)),
                                      scale * (3.0f + 11.0f * static_cast<float>(i / 6)),
                                      4.0f * scale, 2.5f * scale));
    }
    return polygon;
}

std::vector<fact> facts_of(const ox_3dvector& center) {
    return {{"x", static_cast<double>(center.x), 0.0},
            {"y", static_cast<double>(center.y), 0.0},
            {"z", static_cast<double>(center.z), 0.0}};
}

struct scanned_slab {
    ox_polygon polygon;
    ox_3dvector center;
};

contest find_center(long length) {
    const auto merged = std::make_shared<const ox_polygon>(slab(length));
    contest rules;
    rules.ours = make_contestant(
        "ox_polygon", [=] { return ox_polygon(*merged); },
        [](ox_polygon& polygon) { polygon.get_best_center(); },
        [](ox_polygon& polygon) { return facts_of(polygon.get_best_center()); });
    rules.peers = {make_contestant(
        "plain scan",
        [=] {
            return scanned_slab{*merged, {}};
        },
        [](scanned_slab& s) { s.center = reference::best_center(s.polygon); },
        [](const scanned_slab& s) { return facts_of(s.center); })};
    rules.goal = 1.0 / 300.0;
    return rules;
}

} // namespace

workload best_center_of_a_slab() {
    return workload{"best centre of a slab with 30 openings",
                    "model units long",
                    {25, 50, 100},
                    {10, 15, 25},
                    find_center}
        .judged_from(goal_length);
}

} // namespace bench
