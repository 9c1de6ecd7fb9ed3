#ifndef OX_BENCH_PEERS_OPENMESH_H
#define OX_BENCH_PEERS_OPENMESH_H

#include <bench/peers/triangle_mesh.h>
#include <bench/support/contestant.h>

namespace peers {

/// Adds the vertices and triangles of a mesh to one with half-edges. Fact: triangles.
bench::contestant openmesh_half_edges(std::shared_ptr<const triangle_mesh> mesh);

} // namespace peers

#endif
