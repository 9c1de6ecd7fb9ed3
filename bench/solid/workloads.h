#ifndef OX_BENCH_SOLID_WORKLOADS_H
#define OX_BENCH_SOLID_WORKLOADS_H

#include <vector>

#include <bench/support/workload.h>

namespace bench {

/// Openings cut out of a wall, one after another and at once, and sections of the wall.
std::vector<workload> wall_workloads();

/// A row of overlapping cubes that becomes one bar.
workload row_of_cubes();

/// One finely faceted sphere subtracted from another.
workload subtracted_spheres();

/// Sections of a finely faceted sphere.
workload sphere_sections();

/// A whole building: its walls cut, united, clipped by a roof, and sectioned storey by storey.
workload whole_building();

/// Openings, walls and rows of other shapes, each beside its twin of the shapes above.
std::vector<workload> solid_variants();

} // namespace bench

#endif
