#ifndef OX_BENCH_CSG_PARTS_H
#define OX_BENCH_CSG_PARTS_H

#include <vector>

#include <bench/peers/triangle_mesh.h>
#include <bench/support/workload.h>
#include <ox/solid/ox_solid.h>

namespace bench {

/// What a combination is made of: the first solid, those united with it, and those cut out.
struct parts {
    ox::ox_solid body;
    std::vector<ox::ox_solid> added;
    std::vector<ox::ox_solid> removed;
};

/// All parts in one computation of `ox_csg`.
contestant in_one_pass(const parts& of);

/// The parts one after another, each in a computation of its own that takes the last result.
contestant one_after_another(const parts& of);

/// The removed parts united and then cut out at once, with the booleans of `ox_solid`.
contestant face_by_face(const parts& of);

/// The same shape in triangles, for the peers. One compute of `ox_csg` makes them.
peers::triangle_mesh mesh_of(const ox::ox_solid& solid);
std::vector<peers::triangle_mesh> meshes_of(const std::vector<ox::ox_solid>& solids);

} // namespace bench

#endif
