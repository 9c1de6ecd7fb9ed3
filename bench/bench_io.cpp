// Tables, Base64 and threads beside libcsv, OpenSSL and what bare copies need.

#include <bench/io/workloads.h>
#include <bench/support/program.h>
#include <ox/core/ox_log.h>

int main(int argc, char** argv) {
    ox_log_set(false);
    std::vector<bench::workload> workloads = bench::table_workloads();
    const std::vector<bench::workload> base64 = bench::base64_workloads();
    workloads.insert(workloads.end(), base64.begin(), base64.end());
    workloads.push_back(bench::threaded_steps());
    return bench::run_program(argc, argv, workloads);
}
