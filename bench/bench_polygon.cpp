// Polygons of growing size beside the bare clipping library, the bare tessellator, and plain
// versions of what the polygons do.

#include <bench/polygon/workloads.h>
#include <bench/support/program.h>

int main(int argc, char** argv) {
    std::vector<bench::workload> workloads = bench::merging_workloads();
    workloads.push_back(bench::tessellation_with_holes());
    workloads.push_back(bench::tessellation_of_a_row());
    workloads.push_back(bench::tessellation_of_a_comb());
    workloads.push_back(bench::points_in_a_region());
    workloads.push_back(bench::faces_of_a_model());
    workloads.push_back(bench::best_center_of_a_slab());
    const std::vector<bench::workload> distributions = bench::distribution_workloads();
    workloads.insert(workloads.end(), distributions.begin(), distributions.end());
    return bench::run_program(argc, argv, workloads);
}
