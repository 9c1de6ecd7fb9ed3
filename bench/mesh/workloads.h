#ifndef OX_BENCH_MESH_WORKLOADS_H
#define OX_BENCH_MESH_WORKLOADS_H

#include <vector>

#include <bench/support/workload.h>

namespace bench {

/// Reading of STL and raw files.
std::vector<workload> reading_workloads();

/// Welding of sets and streams, of ordered and of shuffled triangles.
std::vector<workload> welding_workloads();

/// Subdivision and half-edges of a welded field.
std::vector<workload> refining_workloads();

} // namespace bench

#endif
