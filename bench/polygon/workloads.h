#ifndef OX_BENCH_POLYGON_WORKLOADS_H
#define OX_BENCH_POLYGON_WORKLOADS_H

#include <vector>

#include <bench/support/workload.h>

namespace bench {

/// Contours merged by the even-odd rule: overlapping ones, and many that keep apart.
std::vector<workload> merging_workloads();

/// Triangles of an outline with many holes.
workload tessellation_with_holes();

/// The same for many squares in a row, which the tessellator's sweep meets all at once.
workload tessellation_of_a_row();

/// The same for an outline whose sides the sweep meets all at once.
workload tessellation_of_a_comb();

/// Questions whether points lie in a region of many sides.
workload points_in_a_region();

/// The small faces that a model consists of, from lists to triangles.
workload faces_of_a_model();

/// The place for the label of a slab.
workload best_center_of_a_slab();

/// Points scattered over a region, regularly and at random.
std::vector<workload> distribution_workloads();

} // namespace bench

#endif
