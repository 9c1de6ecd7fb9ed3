#ifndef OX_BENCH_SUPPORT_WORKLOAD_H
#define OX_BENCH_SUPPORT_WORKLOAD_H

#include <functional>
#include <string>
#include <vector>

#include <bench/support/contestant.h>

namespace bench {

/// The library beside its peers on one input.
struct contest {
    contestant ours;
    std::vector<contestant> peers; ///< the first is the one that the goal is about
    double goal = 0.0;             ///< at most this share of the first peer's time; 0: none
    double seconds_goal = 0.0;     ///< at most this time, whatever the peers need; 0: none
    double stretch = 0.0;          ///< what would be still better; 0: none
    std::vector<fact> expected;    ///< what the library must come to, from a formula
};

/// Something that users do, at several sizes.
struct workload {
    std::string name;
    std::string unit; ///< what the size counts
    std::vector<long> sizes;
    std::vector<long> quick_sizes;
    std::function<contest(long size)> make;
    double growth_goal = 0.0; ///< at most this exponent of the size; 0: none
    long goal_from = 0;       ///< smaller sizes are measured for the growth only: no goal

    /// The same with a goal for its growth.
    workload growing_at_most(double exponent) const {
        workload changed = *this;
        changed.growth_goal = exponent;
        return changed;
    }

    /// The same without goals for sizes below `size`.
    workload judged_from(long size) const {
        workload changed = *this;
        changed.goal_from = size;
        return changed;
    }
};

} // namespace bench

#endif
