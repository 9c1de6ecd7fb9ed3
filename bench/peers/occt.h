#ifndef OX_BENCH_PEERS_OCCT_H
#define OX_BENCH_PEERS_OCCT_H

#include <vector>

#include <bench/peers/triangle_mesh.h>
#include <bench/support/contestant.h>

// Open CASCADE's boundary representation as a contestant. Meshes must come from `box_mesh`: they
// become boxes of six faces before the clock starts.

namespace peers {

/// Subtracts the tools one after another. Fact: volume.
bench::contestant occt_differences(const triangle_mesh& body,
                                   const std::vector<triangle_mesh>& tools);

/// Unites all bodies one after another. Fact: volume.
bench::contestant occt_unions(const std::vector<triangle_mesh>& bodies);

} // namespace peers

#endif
