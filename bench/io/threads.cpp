#include <array>
#include <memory>
#include <numeric>

#include <ox/progress/ox_thread.h>

#include "workloads.h"

namespace bench {
namespace {

constexpr unsigned int nb_threads = 2;

// A turn waits for the one before: about 4 cycles, so that a step takes about a microsecond.
constexpr int turns_a_step = 750;

/// Steps that each keep their thread busy, and add to a sum of that thread's own.
class busy_steps : public ox::ox_thread {
public:
    explicit busy_steps(unsigned int count) : nb_steps(count) {}

    bool run(unsigned int step, unsigned int thread) override {
        if (step >= nb_steps) {
            return false;
        }
        unsigned int x = step;
        for (int turn = 0; turn < turns_a_step; ++turn) {
            x = x * 1664525u + 1013904223u;
        }
        sums[thread].value += x >> 16;
        return true;
    }

    double sum() const {
        double total = 0.0;
        for (const padded_sum& part : sums) {
            total += static_cast<double>(part.value);
        }
        return total;
    }

private:
    struct alignas(64) padded_sum { // one cache line each
        unsigned long long value = 0;
    };

    unsigned int nb_steps;
    std::array<padded_sum, nb_threads> sums;
};

contestant run_on(unsigned int threads, const char* name, long steps) {
    return make_contestant(
        name, [=] { return std::make_unique<busy_steps>(static_cast<unsigned int>(steps)); },
        [=](const std::unique_ptr<busy_steps>& work) { work->start(threads); },
        [](const std::unique_ptr<busy_steps>& work) {
            return std::vector<fact>{{"sum", work->sum(), 0.0}};
        });
}

contest run_steps(long steps) {
    contest rules;
    rules.ours = run_on(nb_threads, "ox_thread, two threads", steps);
    rules.peers = {run_on(1, "ox_thread, one thread", steps)};
    rules.goal = 1.0 / 1.8;
    return rules;
}

} // namespace

workload threaded_steps() {
    return workload{"steps of a microsecond on two threads",
                    "steps",
                    {10000, 100000, 1000000},
                    {10000, 30000, 100000},
                    run_steps}
        .judged_from(1000000);
}

} // namespace bench
