#include <bench/peers/cgal.h>
#include <bench/peers/occt.h>

#include <bench/support/shape_facts.h>

#include "workloads.h"

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_solid;

constexpr float pitch = 0.75f;

// Beyond, Open CASCADE takes minutes.
constexpr long most_for_occt = 100;

struct cubes {
    std::vector<ox_solid> parts;
    ox_solid row;
};

cubes make_cubes(long count) {
    cubes made;
    made.parts.resize(static_cast<std::size_t>(count));
    for (long i = 0; i < count; ++i) {
        made.parts[static_cast<std::size_t>(i)].brick(
            ox_3dvector(pitch * static_cast<float>(i), 0.0f, 0.0f), 1.0f, 1.0f, 1.0f);
    }
    return made;
}

std::vector<peers::triangle_mesh> cube_meshes(long count) {
    std::vector<peers::triangle_mesh> meshes;
    for (long i = 0; i < count; ++i) {
        meshes.push_back(
            peers::box_mesh(static_cast<double>(pitch) * static_cast<double>(i), 0, 0, 1, 1, 1));
    }
    return meshes;
}

contest unite_row(long count) {
    contest rules;
    rules.ours = make_contestant(
        "ox_solid", [=] { return make_cubes(count); },
        [](cubes& c) {
            for (ox_solid& part : c.parts) {
                c.row.unites(part);
            }
        },
        [](cubes& c) {
            return std::vector<fact>{{"volume", volume_of(c.row), 1e-4},
                                     {"faces", static_cast<double>(c.row.get_faces().size()), 0.0}};
        });
    rules.peers = {peers::cgal_unions(cube_meshes(count))};
    if (count <= most_for_occt) {
        rules.peers.push_back(peers::occt_unions(cube_meshes(count)));
    }
    rules.goal = 0.1;
    rules.expected = {
        {"volume", static_cast<double>(pitch) * static_cast<double>(count - 1) + 1.0, 1e-4},
        {"faces", 6.0, 0.0}};
    return rules;
}

} // namespace

workload row_of_cubes() {
    return workload{
        "row of overlapping cubes united", "cubes", {10, 100, 400}, {10, 30, 100}, unite_row}
        .growing_at_most(1.1);
}

} // namespace bench
