#ifndef OX_BENCH_SUPPORT_MEASUREMENT_H
#define OX_BENCH_SUPPORT_MEASUREMENT_H

#include <string>
#include <vector>

#include "workload.h"

namespace bench {

/// What one contestant needed.
struct cost {
    std::string name;
    double seconds = 0.0; ///< the least of all rounds
    double mebibytes = 0.0;
};

/// What a contest came to.
struct measurement {
    std::vector<cost> costs;  ///< the library's first, then those of the peers that are present
    std::vector<cost> phases; ///< of the library's runs, the least of each
    int rounds = 0;
    std::vector<std::string> disagreements; ///< empty when all facts agree
};

/// What is measured: the time that passes, or the time that the processors spend on the process,
/// which other work on the machine disturbs less, but which hides what threads win.
enum class clock_kind { wall, processor };

/// How long to measure: `least_rounds` in any case (fewer only beyond `longest_seconds`), then
/// until `enough_seconds` have been spent or `most_rounds` are done.
struct patience {
    int least_rounds;
    int most_rounds;
    double enough_seconds;
    double longest_seconds;
};

/// Runs a contest in a process of its own. The peak memory of each contestant is taken first, from
/// one run in another process; then all run in turn, round after round.
measurement measure(const contest& measured, const patience& limits, clock_kind clock);

} // namespace bench

#endif
