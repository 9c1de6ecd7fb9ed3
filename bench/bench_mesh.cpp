// Meshes of growing size beside assimp, meshoptimizer, CGAL, OpenMesh and a plain fread.

#include <bench/mesh/workloads.h>
#include <bench/support/program.h>
#include <ox/core/ox_log.h>

int main(int argc, char** argv) {
    ox_log_set(false);
    std::vector<bench::workload> workloads = bench::reading_workloads();
    for (const auto& more : {bench::welding_workloads(), bench::refining_workloads()}) {
        workloads.insert(workloads.end(), more.begin(), more.end());
    }
    return bench::run_program(argc, argv, workloads);
}
