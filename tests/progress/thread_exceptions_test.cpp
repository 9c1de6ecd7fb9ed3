#include "numbered_work.h"

#include <atomic>
#include <gtest/gtest.h>
#include <stdexcept>

#include <tests/support/recording_manager.h>

namespace {

/// Throws from one of its steps.
class failing_work : public numbered_work {
public:
    failing_work(int nb_steps, unsigned int step) : numbered_work(nb_steps), failing_step(step) {}

    bool run(unsigned int step, unsigned int thread) override {
        ++running;
        const leave_step guard{running};
        if (step == failing_step) {
            throw std::runtime_error("step failed");
        }
        return numbered_work::run(step, thread);
    }

    std::atomic<int> running{0};
    unsigned int failing_step;

private:
    struct leave_step {
        std::atomic<int>& running;
        ~leave_step() { --running; }
    };
};

TEST(ThreadExceptions, OneFromAnyStepReachesTheCallerWhenEveryWorkerHasStopped) {
    for (unsigned int nb_threads : {1u, 2u, 8u}) {
        for (unsigned int step = 0; step < 20; ++step) {
            failing_work work(20, step);
            EXPECT_THROW(work.start(nb_threads), std::runtime_error);
            EXPECT_EQ(work.running, 0);
            EXPECT_FALSE(work.was_interrupted());
        }
    }
}

TEST(ThreadExceptions, OnesFromAllWorkersReachTheCallerAsOne) {
    struct all_fail : ox::ox_thread {
        bool run(unsigned int, unsigned int) override { throw 7; }
    };
    all_fail work;
    EXPECT_THROW(work.start(8), int);
}

TEST(ThreadExceptions, OneFromProgressReachesTheCaller) {
    struct progress_fails : numbered_work {
        using numbered_work::numbered_work;
        int get_last_step() override { return 1; }
        bool run(unsigned int, unsigned int) override { return true; } // without end
        bool progress(unsigned int) override { throw std::runtime_error("progress failed"); }
    };
    for (unsigned int nb_threads : {1u, 4u}) {
        progress_fails work(0);
        EXPECT_THROW(work.start(nb_threads), std::runtime_error);
    }
}

TEST(ThreadExceptions, OneFromTheManagerReachesTheCaller) {
    struct manager_fails : ox::ox_progress_manager {
        bool set_progress(double) override { throw std::runtime_error("manager failed"); }
    };
    manager_fails manager;
    numbered_work work(10);
    work.set_progress_manager(&manager, 0.0, 1.0);
    EXPECT_THROW(work.start(1), std::runtime_error);
    EXPECT_THROW(work.start(4), std::runtime_error);
}

TEST(ThreadExceptions, AnObjectWorksAgainAfterOne) {
    failing_work work(20, 5);
    EXPECT_THROW(work.start(2), std::runtime_error);
    work.failing_step = 1000;
    work.times.assign(20, 0);
    EXPECT_TRUE(work.start(2));
    EXPECT_EQ(work.count_done(), 20);
}

} // namespace
