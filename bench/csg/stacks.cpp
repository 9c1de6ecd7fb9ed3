#include <bench/peers/cgal.h>
#include <tests/solid/csg/shapes.h>

#include "parts.h"
#include "workloads.h"

namespace bench {
namespace {

using csg_test::brick_in;
using ox::ox_3dvector;
using ox::ox_solid;
using support::frame;

frame askew() {
    support::generator random(91);
    return support::random_frame(random);
}

contest unite(const parts& pieces) {
    std::vector<ox_solid> all = pieces.added;
    all.insert(all.begin(), pieces.body);
    contest rules;
    rules.ours = in_one_pass(pieces);
    rules.peers = {peers::cgal_unions(meshes_of(all))};
    rules.goal = 0.5;
    rules.stretch = 0.25;
    return rules;
}

parts split_off_first(std::vector<ox_solid> solids) {
    parts made;
    made.body = solids.front();
    made.added.assign(solids.begin() + 1, solids.end());
    return made;
}

/// Cubes that overlap the next one by a quarter.
contest unite_row(long count, const frame& axes) {
    std::vector<ox_solid> cubes;
    for (long i = 0; i < count; ++i) {
        const float x = 0.75f * static_cast<float>(i);
        cubes.push_back(
            brick_in(axes, ox_3dvector(x, 0.0f, 0.0f), ox_3dvector(x + 1.0f, 1.0f, 1.0f)));
    }
    contest rules = unite(split_off_first(cubes));
    rules.expected = {{"volume", 0.75 * static_cast<double>(count - 1) + 1.0, 1e-3}};
    return rules;
}

/// Square storeys with a slab each that sticks out all round.
contest stack_storeys(long count, const frame& axes) {
    std::vector<ox_solid> solids;
    for (long i = 0; i < count; ++i) {
        const float floor = 3.0f * static_cast<float>(i);
        solids.push_back(
            brick_in(axes, ox_3dvector(0.0f, 0.0f, floor), ox_3dvector(4.0f, 4.0f, floor + 2.8f)));
        solids.push_back(brick_in(axes, ox_3dvector(-0.5f, -0.5f, floor + 2.8f),
                                  ox_3dvector(4.5f, 4.5f, floor + 3.0f)));
    }
    contest rules = unite(split_off_first(solids));
    rules.expected = {{"volume", 49.8 * static_cast<double>(count), 1e-3}};
    return rules;
}

} // namespace

std::vector<workload> csg_stack_workloads() {
    const frame turned = askew();
    std::vector<workload> workloads;
    const std::vector<long> row_sizes = {10, 100, 400};
    const std::vector<long> storey_sizes = {5, 20, 80};
    for (const bool is_askew : {false, true}) {
        const frame axes = is_askew ? turned : frame();
        const std::string suffix = is_askew ? " askew" : "";
        workloads.push_back(workload{
            "row of overlapping cubes" + suffix + ", one pass",
            "cubes",
            row_sizes,
            {10, 100},
            [axes](long count) {
                return unite_row(count, axes);
            }}.growing_at_most(1.1));
        workloads.push_back(workload{
            "storeys on top of each other" + suffix + ", one pass",
            "storeys",
            storey_sizes,
            {5, 20},
            [axes](long count) {
                return stack_storeys(count, axes);
            }}.growing_at_most(1.1));
    }
    return workloads;
}

} // namespace bench
