#ifndef OX_BENCH_SOLID_WALL_H
#define OX_BENCH_SOLID_WALL_H

#include <vector>

#include <bench/peers/triangle_mesh.h>
#include <ox/solid/ox_solid.h>

// A wall with room for n openings: 1.5 n long, 0.3 thick and 3 high. The tool of an opening is 1
// wide and 1 high, and 0.4 thick, so that it sticks out of the wall on both sides.

namespace bench {

constexpr float opening_pitch = 1.5f;
constexpr float wall_thickness = 0.3f;
constexpr float wall_height = 3.0f;
constexpr float tool_thickness = 0.4f;
constexpr float tool_x = 0.25f; ///< from the start of its pitch
constexpr float tool_z = 1.0f;

ox::ox_solid wall_solid(long openings);
std::vector<ox::ox_solid> opening_tools(long openings);

/// The wall after all tools have been united and subtracted.
ox::ox_solid wall_with_openings(long openings);

peers::triangle_mesh wall_mesh(long openings);
std::vector<peers::triangle_mesh> opening_meshes(long openings);

} // namespace bench

#endif
