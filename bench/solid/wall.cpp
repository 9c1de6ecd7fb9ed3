#include "wall.h"

#include <algorithm>

namespace bench {
namespace {

constexpr float tool_y = (wall_thickness - tool_thickness) / 2.0f;

float tool_start(long opening) {
    return opening_pitch * static_cast<float>(opening) + tool_x;
}

} // namespace

ox::ox_solid wall_solid(long openings) {
    ox::ox_solid wall;
    wall.brick(ox::ox_3dvector(), opening_pitch * static_cast<float>(openings), wall_thickness,
               wall_height);
    return wall;
}

std::vector<ox::ox_solid> opening_tools(long openings) {
    std::vector<ox::ox_solid> tools(static_cast<std::size_t>(openings));
    for (long i = 0; i < openings; ++i) {
        tools[static_cast<std::size_t>(i)].brick(ox::ox_3dvector(tool_start(i), tool_y, tool_z),
                                                 1.0f, tool_thickness, 1.0f);
    }
    return tools;
}

ox::ox_solid wall_with_openings(long openings) {
    ox::ox_solid united;
    for (ox::ox_solid& tool : opening_tools(openings)) {
        united.unites(tool);
    }
    ox::ox_solid wall = wall_solid(openings);
    wall.substracts(united);
    return wall;
}

peers::triangle_mesh wall_mesh(long openings) {
    return peers::box_mesh(0, 0, 0,
                           static_cast<double>(opening_pitch) * static_cast<double>(openings),
                           static_cast<double>(wall_thickness), static_cast<double>(wall_height));
}

std::vector<peers::triangle_mesh> opening_meshes(long openings) {
    std::vector<peers::triangle_mesh> meshes;
    for (long i = 0; i < openings; ++i) {
        meshes.push_back(peers::box_mesh(static_cast<double>(tool_start(i)),
                                         static_cast<double>(tool_y), static_cast<double>(tool_z),
                                         1.0, static_cast<double>(tool_thickness), 1.0));
    }
    return meshes;
}

} // namespace bench
