#ifndef OX_BENCH_SOLID_SPHERE_H
#define OX_BENCH_SOLID_SPHERE_H

#include <array>

#include <bench/peers/triangle_mesh.h>
#include <ox/solid/ox_solid.h>

namespace bench {

constexpr double sphere_radius = 10.0;

/// A geodesic sphere of about so many faces.
peers::triangle_mesh sphere_mesh(long faces, const std::array<double, 3>& centre);

/// The solid with the faces of a mesh.
ox::ox_solid to_solid(const peers::triangle_mesh& mesh);

} // namespace bench

#endif
