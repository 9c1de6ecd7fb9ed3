#include "numbered_work.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <thread>

#include <tests/support/recording_manager.h>

namespace {

using ::testing::ElementsAre;

TEST(OxThread, NothingToDoEndsWellWithoutAProgressCall) {
    for (unsigned int nb_threads : {0u, 1u, 2u, 4u}) {
        numbered_work work(0);
        EXPECT_TRUE(work.start(nb_threads));
        EXPECT_TRUE(work.progressed.empty());
        EXPECT_FALSE(work.was_interrupted());
    }
}

TEST(OxThread, TheBaseClassHasNoWork) {
    ox::ox_thread work;
    EXPECT_EQ(work.get_last_step(), 0);
    EXPECT_FALSE(work.run(0, 0));
    EXPECT_TRUE(work.progress(0));
    EXPECT_TRUE(work.start(1));
    EXPECT_TRUE(work.start(2));
    EXPECT_EQ(work.get_progress_manager(), nullptr);
}

TEST(OxThread, AnyNumberOfThreadsDoesEveryStepOnce) {
    for (unsigned int nb_threads : {0u, 1u, 2u, 3u, 64u, 4000000000u}) {
        numbered_work work(1000);
        EXPECT_TRUE(work.start(nb_threads)) << nb_threads;
        EXPECT_EQ(work.count_done(), 1000) << nb_threads;
    }
}

TEST(OxThread, ZeroThreadsAndOneThreadRunOnTheCallingThread) {
    struct place : ox::ox_thread {
        bool run(unsigned int step, unsigned int thread) override {
            same = same && std::this_thread::get_id() == caller && thread == 0;
            return step < 10;
        }
        std::thread::id caller = std::this_thread::get_id();
        bool same = true;
    };
    for (unsigned int nb_threads : {0u, 1u}) {
        place work;
        EXPECT_TRUE(work.start(nb_threads));
        EXPECT_TRUE(work.same);
    }
}

TEST(OxThread, ThreadsAreNumberedFromZero) {
    struct numbers : ox::ox_thread {
        bool run(unsigned int step, unsigned int thread) override {
            mutex.lock();
            largest = thread > largest ? thread : largest;
            mutex.unlock();
            return step < 100;
        }
        unsigned int largest = 0;
    };
    numbers work;
    EXPECT_TRUE(work.start(4));
    EXPECT_LT(work.largest, 4u);
}

TEST(OxThread, WithoutALastStepNothingIsReported) {
    struct endless : numbered_work {
        using numbered_work::numbered_work;
        int get_last_step() override { return 0; }
    };
    for (unsigned int nb_threads : {1u, 2u}) {
        recording_manager manager;
        endless work(10);
        work.set_progress_manager(&manager, 0.0, 1.0);
        EXPECT_TRUE(work.start(nb_threads));
        EXPECT_TRUE(manager.reports.empty());
    }
}

TEST(OxThread, ANegativeLastStepReportsNothing) {
    struct negative : numbered_work {
        using numbered_work::numbered_work;
        int get_last_step() override { return -10; }
    };
    recording_manager manager;
    negative work(10);
    work.set_progress_manager(&manager, 0.0, 1.0);
    EXPECT_TRUE(work.start(1));
    EXPECT_TRUE(manager.reports.empty());
}

TEST(OxThread, Step5Of10ReportsTheMiddleOfTheShare) {
    recording_manager manager;
    numbered_work work(10);
    work.set_progress_manager(&manager, 0.2, 0.4);
    EXPECT_TRUE(work.start(1));
    ASSERT_EQ(manager.reports.size(), 11u); // the start, then one for each step
    EXPECT_EQ(manager.reports[0], 0.2);
    EXPECT_EQ(manager.reports[1], 0.2);
    EXPECT_DOUBLE_EQ(manager.reports[6], 0.3);
}

TEST(OxThread, ReportsAreMappedIntoTheCurrentPhase) {
    recording_manager manager;
    manager.add_phase("first", "", 1.0);
    manager.add_phase("second", "", 1.0);
    manager.set_current_phase("second");
    manager.reports.clear();
    numbered_work work(2);
    work.set_progress_manager(&manager, 0.0, 1.0);
    EXPECT_TRUE(work.start(1));
    EXPECT_THAT(manager.reports, ElementsAre(0.5, 0.5, 0.75));
}

TEST(OxThread, ReportsOfATeamRiseWithinTheShare) {
    recording_manager manager;
    numbered_work work(500);
    work.set_progress_manager(&manager, 0.25, 0.75);
    EXPECT_TRUE(work.start(4));
    double before = 0.25;
    for (double report : manager.reports) {
        EXPECT_GE(report, before);
        EXPECT_LE(report, 0.75);
        before = report;
    }
}

TEST(OxThread, AnObjectCanBeStartedAgain) {
    numbered_work work(100);
    EXPECT_TRUE(work.start(2));
    work.times.assign(100, 0);
    EXPECT_TRUE(work.start(1));
    EXPECT_EQ(work.count_done(), 100);
}

TEST(OxThread, ACopyTakesTheSettingsAndHasALockOfItsOwn) {
    struct open_work : numbered_work {
        using numbered_work::numbered_work;
        ox::ox_mutex& lock() { return mutex; }
    };
    recording_manager manager;
    open_work work(100);
    work.stop_at = 0;
    work.set_progress_manager(&manager, 0.25, 0.5);
    EXPECT_FALSE(work.start(1));
    work.lock().lock();
    open_work copy(work);
    open_work assigned(1);
    assigned = work;
    copy.lock().lock(); // would wait for ever if it were the same lock
    copy.lock().unlock();
    assigned.lock().lock();
    assigned.lock().unlock();
    work.lock().unlock();
    for (const open_work* other : {&copy, &assigned}) {
        EXPECT_TRUE(other->was_interrupted());
        EXPECT_EQ(other->get_progress_manager(), &manager);
        EXPECT_EQ(other->get_progress_min(), 0.25);
        EXPECT_EQ(other->get_progress_max(), 0.5);
    }
}

TEST(OxThread, AComputationCanStartAnother) {
    struct outer : ox::ox_thread {
        bool run(unsigned int step, unsigned int) override {
            if (step >= 8) {
                return false;
            }
            numbered_work inner(50);
            const bool complete = inner.start(2) && inner.count_done() == 50;
            mutex.lock();
            nb_complete += complete ? 1 : 0;
            mutex.unlock();
            return true;
        }
        int nb_complete = 0;
    };
    outer work;
    EXPECT_TRUE(work.start(2));
    EXPECT_EQ(work.nb_complete, 8);
}

} // namespace
