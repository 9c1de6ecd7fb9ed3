// Combinations of closed solids beside CGAL, Open CASCADE and the face-by-face booleans.

#include <bench/csg/workloads.h>
#include <bench/support/program.h>

int main(int argc, char** argv) {
    std::vector<bench::workload> workloads;
    for (const auto& group : {bench::csg_wall_workloads(), bench::csg_stack_workloads(),
                              bench::csg_shape_workloads(), bench::csg_building_workloads()}) {
        workloads.insert(workloads.end(), group.begin(), group.end());
    }
    return bench::run_program(argc, argv, workloads);
}
