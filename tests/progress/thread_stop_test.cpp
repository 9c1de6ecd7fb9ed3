#include "numbered_work.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/support/recording_manager.h>

namespace {

using ::testing::ElementsAre;

TEST(ThreadStop, ProgressThatRefusesStep3LeavesSteps0To3Done) {
    numbered_work work(10);
    work.stop_at = 3;
    EXPECT_FALSE(work.start(1));
    EXPECT_TRUE(work.was_interrupted());
    EXPECT_THAT(work.times, ElementsAre(1, 1, 1, 1, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(work.progressed, ElementsAre(0u, 1u, 2u, 3u));
}

TEST(ThreadStop, TheAnswerToTheFirstReportIsIgnored) {
    recording_manager manager(0);
    numbered_work work(10);
    work.set_progress_manager(&manager, 0.0, 1.0);
    EXPECT_TRUE(work.start(1));
    EXPECT_EQ(work.count_done(), 10);
}

TEST(ThreadStop, AManagerThatRefusesAnyLaterReportStopsAfterThatStep) {
    for (int report = 1; report <= 10; ++report) {
        recording_manager manager(report);
        numbered_work work(10);
        work.set_progress_manager(&manager, 0.0, 1.0);
        EXPECT_FALSE(work.start(1));
        EXPECT_TRUE(work.was_interrupted());
        EXPECT_EQ(work.count_done(), report);
        EXPECT_EQ(static_cast<int>(manager.reports.size()), report + 1);
    }
}

TEST(ThreadStop, ATeamStopsWhateverReportIsRefused) {
    for (int report = 0; report <= 40; ++report) {
        recording_manager manager(report);
        numbered_work work(40);
        work.set_progress_manager(&manager, 0.0, 1.0);
        const bool finished = work.start(4);
        const bool refused = static_cast<int>(manager.reports.size()) > report;
        EXPECT_EQ(work.was_interrupted(), refused && report > 0);
        EXPECT_TRUE(finished || work.was_interrupted());
        EXPECT_LE(work.count_done(), 40);
    }
}

TEST(ThreadStop, ATeamAsksTheManagerEvenWhenProgressRefused) {
    struct refusing : numbered_work {
        using numbered_work::numbered_work;
        bool progress(unsigned int) override { return false; }
    };
    recording_manager manager;
    refusing work(100000);
    work.set_progress_manager(&manager, 0.0, 1.0);
    work.start(2);
    if (work.was_interrupted()) {
        EXPECT_EQ(manager.reports.size(), 2u);
    }
}

TEST(ThreadStop, StartingAgainForgetsTheStop) {
    numbered_work work(10);
    work.stop_at = 3;
    EXPECT_FALSE(work.start(1));
    work.stop_at = -1;
    work.times.assign(10, 0);
    EXPECT_TRUE(work.start(2));
    EXPECT_FALSE(work.was_interrupted());
    EXPECT_EQ(work.count_done(), 10);
}

} // namespace
