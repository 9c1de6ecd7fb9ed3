// Solids of growing size beside CGAL and the bare clipping library.

#include <bench/solid/workloads.h>
#include <bench/support/program.h>

int main(int argc, char** argv) {
    std::vector<bench::workload> workloads = bench::wall_workloads();
    workloads.push_back(bench::row_of_cubes());
    workloads.push_back(bench::whole_building());
    workloads.push_back(bench::subtracted_spheres());
    workloads.push_back(bench::sphere_sections());
    const std::vector<bench::workload> variants = bench::solid_variants();
    workloads.insert(workloads.end(), variants.begin(), variants.end());
    return bench::run_program(argc, argv, workloads);
}
