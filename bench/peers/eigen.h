#ifndef OX_BENCH_PEERS_EIGEN_H
#define OX_BENCH_PEERS_EIGEN_H

#include <memory>
#include <vector>

#include <bench/support/contestant.h>

namespace peers {

/// Linear systems of one order: matrices row after row, and right-hand sides.
struct linear_systems {
    int order = 0;
    std::vector<std::vector<float>> matrices;
    std::vector<std::vector<float>> right_sides;
};

/// Solves `count` systems, each of the given ones in turn, by PartialPivLU with an order known at
/// run time only; decomposition and solution are fresh objects each time. Fact: sum of all
/// unknowns.
bench::contestant eigen_solve(std::shared_ptr<const linear_systems> systems, long count);

} // namespace peers

#endif
