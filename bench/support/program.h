#ifndef OX_BENCH_SUPPORT_PROGRAM_H
#define OX_BENCH_SUPPORT_PROGRAM_H

#include <vector>

#include "workload.h"

namespace bench {

/// The main function of a benchmark program: measures `workloads` as the command line says.
///
///     --quick        small sizes and fewer rounds
///     --rows=FILE    append the rows to FILE, too
///     --only=TEXT    only the workloads with TEXT in their name
///     --cpu-time     measure processor time, for a machine with other work
///     --list         name the workloads and stop
///
/// The result is the exit status: not zero when a result disagrees with a peer's or a formula's,
/// or a run ended abnormally. A goal that is missed is no failure.
int run_program(int argc, char** argv, const std::vector<workload>& workloads);

} // namespace bench

#endif
