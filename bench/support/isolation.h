#ifndef OX_BENCH_SUPPORT_ISOLATION_H
#define OX_BENCH_SUPPORT_ISOLATION_H

#include <functional>
#include <string>

namespace bench {

/// Runs `work` in a process of its own, so that no measurement inherits another's heap, and
/// returns the text that it returned. Throws `std::runtime_error` when the process ends otherwise.
std::string run_isolated(const std::function<std::string()>& work);

/// Calls `work` and returns how much more memory the process held resident at its peak than
/// before, in MiB. Memory that earlier work has freed goes back to the system first.
double peak_mebibytes(const std::function<void()>& work);

} // namespace bench

#endif
