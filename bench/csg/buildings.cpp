// The surveyed buildings that are closed within two centimetres: a dormer and a cellar are united
// with each, a brick in general position is cut out, and a plane clips its roof.

#include <memory>

#include <ox/solid/ox_csg.h>
#include <tests/support/buildings.h>

#include "workloads.h"

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_csg;
using ox::ox_solid;

struct surveyed {
    std::shared_ptr<const std::vector<ox_solid>> solids;
    double volume = 0.0;
    int computed = 0;
};

std::shared_ptr<const std::vector<ox_solid>> read_closed(long count) {
    const auto solids = std::make_shared<std::vector<ox_solid>>();
    for (const support::building& building : support::read_surveyed_buildings()) {
        ox_solid solid = support::exact_solid(building);
        if (solid.get_open_edges(support::survey_tolerance).size() == 0 &&
            static_cast<long>(solids->size()) < count) {
            solids->push_back(solid);
        }
    }
    return solids;
}

ox_solid brick_at(const ox_3dvector& centre, const ox_3dvector& size, float lift) {
    const ox_3dvector x(0.8f, 0.6f, 0.0f);
    const ox_3dvector y(-0.6f, 0.8f, 0.0f);
    const ox_3dvector z(0.0f, 0.0f, 1.0f);
    const ox_3dvector edges = size * 0.3f;
    ox_solid brick;
    brick.brick(centre + z * (lift * size.z) - (x * edges.x + y * edges.y + z * edges.z) * 0.5f,
                x * edges.x, y * edges.y, z * edges.z);
    return brick;
}

void rebuild(surveyed& town) {
    for (const ox_solid& given : *town.solids) {
        ox_solid solid = given;
        const ox::ox_box box = solid.get_bounding_box();
        const ox_3dvector centre = box.origin + box.size * 0.5f;
        ox_csg csg(support::survey_tolerance);
        csg.unites(solid);
        csg.unites(brick_at(centre, box.size, 0.3f));
        csg.unites(brick_at(centre, box.size, -0.55f));
        csg.substracts(brick_at(centre, box.size, 0.05f));
        csg.clips(centre + ox_3dvector(0.0f, 0.0f, 0.4f * box.size.z),
                  ox_3dvector(0.2f, 0.1f, 1.0f));
        town.computed += csg.compute() ? 1 : 0;
        town.volume += csg.get_solid().get_volume();
    }
}

contest rebuild_town(long count) {
    const auto solids = read_closed(count);
    contest rules;
    rules.ours = make_contestant(
        "ox_csg",
        [solids] {
            return surveyed{solids, 0.0, 0};
        },
        rebuild,
        [](surveyed& town) {
            return std::vector<fact>{{"computed", static_cast<double>(town.computed), 0.0},
                                     {"volume", town.volume, 1e-6}};
        });
    rules.expected = {{"computed", static_cast<double>(solids->size()), 0.0}};
    return rules;
}

} // namespace

std::vector<workload> csg_building_workloads() {
    return {workload{"surveyed buildings with dormer, cellar, brick and plane",
                     "buildings",
                     {10, 50, 106},
                     {10, 50},
                     rebuild_town}};
}

} // namespace bench
