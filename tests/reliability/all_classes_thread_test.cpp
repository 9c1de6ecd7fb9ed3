// Threads with objects of their own: whatever they do at once, each gets what it gets alone.

#include <atomic>
#include <cstdio>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <ox/core/ox_log.h>
#include <ox/progress/ox_thread.h>
#include <tests/reliability/mixed_work.h>
#include <tests/support/all_cases.h>

namespace {

using answers = std::vector<std::string>;

/// One answer of each kind, beginning with another kind on each thread.
answers work_through(int thread, int rounds) {
    answers given(static_cast<std::size_t>(mixed_work::kind_count * rounds));
    for (int i = 0; i < mixed_work::kind_count * rounds; ++i) {
        const int place = (i + thread) % (mixed_work::kind_count * rounds);
        given[static_cast<std::size_t>(place)] =
            mixed_work::run(place % mixed_work::kind_count, place / mixed_work::kind_count);
    }
    return given;
}

class AllClassesThread : public ::testing::TestWithParam<int> {
protected:
    AllClassesThread() { ox_log_set(false); }
    ~AllClassesThread() override { ox_log_set(true); }
};

TEST_P(AllClassesThread, GetsWhatItGetsAlone) {
    const int rounds = support::all_or(50, 2);
    const answers alone = work_through(0, rounds);
    std::vector<answers> together(static_cast<std::size_t>(GetParam()));
    std::vector<std::thread> threads;
    for (int i = 0; i < GetParam(); ++i) {
        threads.emplace_back(
            [&, i] { together[static_cast<std::size_t>(i)] = work_through(i, rounds); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const answers& given : together) {
        EXPECT_EQ(given, alone);
    }
    std::printf("%d threads, %d operations each\n", GetParam(), mixed_work::kind_count * rounds);
}

INSTANTIATE_TEST_SUITE_P(Threads, AllClassesThread, ::testing::Values(8, 16, 32, 64));

/// Counts how often each step runs.
class counted_steps : public ox::ox_thread {
public:
    explicit counted_steps(unsigned int steps)
        : count(steps), runs(new std::atomic<unsigned char>[steps]()) {}

    bool run(unsigned int step, unsigned int) override {
        if (step < count) {
            ++runs[step];
        }
        return step < count;
    }

    unsigned int count_wrong() const {
        unsigned int wrong = 0;
        for (unsigned int i = 0; i < count; ++i) {
            wrong += runs[i] == 1 ? 0u : 1u;
        }
        return wrong;
    }

private:
    unsigned int count;
    std::unique_ptr<std::atomic<unsigned char>[]> runs;
};

TEST(StepsOfAThread, RunExactlyOnceOverAMillion) {
    const unsigned int steps = support::all_or(1000000u, 100000u);
    for (const unsigned int threads : {2u, 8u, 64u}) {
        counted_steps work(steps);
        EXPECT_TRUE(work.start(threads));
        EXPECT_EQ(work.count_wrong(), 0u);
        std::printf("%u threads, %u steps, %u not run once\n", threads, steps, work.count_wrong());
    }
}

} // namespace
