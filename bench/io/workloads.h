#ifndef OX_BENCH_IO_WORKLOADS_H
#define OX_BENCH_IO_WORKLOADS_H

#include <vector>

#include <bench/support/workload.h>

namespace bench {

/// Tables of eight columns, read and written.
std::vector<workload> table_workloads();

/// Base64, both ways.
std::vector<workload> base64_workloads();

/// Steps of a microsecond on two threads.
workload threaded_steps();

} // namespace bench

#endif
