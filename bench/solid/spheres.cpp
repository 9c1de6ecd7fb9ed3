#include <bench/peers/cgal.h>

#include <bench/support/shape_facts.h>

#include "sphere.h"
#include "workloads.h"

namespace bench {
namespace {

using ox::ox_solid;

// Where the goal beside corefinement holds.
constexpr long goal_size = 5120;

struct two_spheres {
    ox_solid body;
    ox_solid tool;
};

// The second centre is in no special direction, so that no faces coincide.
contest subtract_spheres(long faces) {
    const peers::triangle_mesh body = sphere_mesh(faces, {0.0, 0.0, 0.0});
    const peers::triangle_mesh tool = sphere_mesh(faces, {6.13, 4.37, 2.71});
    contest rules;
    rules.ours = make_contestant(
        "ox_solid",
        [=] {
            return two_spheres{to_solid(body), to_solid(tool)};
        },
        [](two_spheres& s) { s.body.substracts(s.tool); },
        [](two_spheres& s) {
            return std::vector<fact>{{"volume", volume_of(s.body), 1e-3}};
        });
    rules.peers = {peers::cgal_differences(body, {tool})};
    if (faces == goal_size) {
        rules.goal = 1.0;
        rules.stretch = 0.5;
    }
    return rules;
}

} // namespace

workload subtracted_spheres() {
    return workload{"sphere subtracted from a sphere",
                    "faces each",
                    {180, 980, 5120, 50000},
                    {180, 500, 980},
                    subtract_spheres}
        .growing_at_most(1.3);
}

} // namespace bench
