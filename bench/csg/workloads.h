#ifndef OX_BENCH_CSG_WORKLOADS_H
#define OX_BENCH_CSG_WORKLOADS_H

#include <vector>

#include <bench/support/workload.h>

namespace bench {

/// A wall with openings of every kind, along the axes and askew.
std::vector<workload> csg_wall_workloads();

/// Rows of cubes and storeys on top of each other, along the axes and askew.
std::vector<workload> csg_stack_workloads();

/// Spheres, prisms, a drilled plate and a terrain.
std::vector<workload> csg_shape_workloads();

/// The surveyed buildings, each with a dormer, a cellar and a plane cut out.
std::vector<workload> csg_building_workloads();

} // namespace bench

#endif
