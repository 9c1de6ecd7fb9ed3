#ifndef OX_BENCH_PEERS_MESHOPTIMIZER_H
#define OX_BENCH_PEERS_MESHOPTIMIZER_H

#include <bench/support/contestant.h>
#include <ox/mesh/ox_triangle_set.h>

namespace peers {

/// Welds equal positions of a soup, without tolerance and normals, and fills new vertex and index
/// buffers. Fact: vertices.
bench::contestant meshoptimizer_weld(const ox::ox_triangle_set& soup);

} // namespace peers

#endif
