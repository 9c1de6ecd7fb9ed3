#include <chrono>
#include <gtest/gtest.h>
#include <ox/core/ox_chrono.h>

namespace {

using ox::ox_chrono;

/// Waits until a running stopwatch shows at least `seconds`.
void wait_until(const ox_chrono& chrono, double seconds) {
    while (chrono.elapsed() < seconds) {
    }
}

TEST(OxChrono, FreshStopwatchShowsZero) {
    EXPECT_EQ(ox_chrono().elapsed(), 0.0);
}

TEST(OxChrono, PausingTwiceKeepsTheSameValue) {
    ox_chrono chrono;
    chrono.start();
    wait_until(chrono, 0.001);
    chrono.pause();
    const double paused = chrono.elapsed();
    EXPECT_GE(paused, 0.001);
    chrono.pause();
    EXPECT_EQ(chrono.elapsed(), paused);
}

TEST(OxChrono, StartWhileRunningDoesNotRestartTheSpan) {
    ox_chrono chrono;
    chrono.start();
    wait_until(chrono, 0.002);
    chrono.start();
    EXPECT_GE(chrono.elapsed(), 0.002);
}

TEST(OxChrono, SpansAddUp) {
    ox_chrono chrono;
    chrono.start();
    wait_until(chrono, 0.001);
    chrono.pause();
    const double first = chrono.elapsed();
    chrono.start();
    wait_until(chrono, first + 0.001);
    chrono.pause();
    EXPECT_GE(chrono.elapsed(), first + 0.001);
}

TEST(OxChrono, ResetWhileRunningStopsAtZeroUntilTheNextStart) {
    ox_chrono chrono;
    chrono.start();
    wait_until(chrono, 0.001);
    chrono.reset();
    EXPECT_EQ(chrono.elapsed(), 0.0);
    chrono.pause();
    EXPECT_EQ(chrono.elapsed(), 0.0);
    chrono.start();
    wait_until(chrono, 0.001);
    EXPECT_GE(chrono.elapsed(), 0.001);
}

TEST(OxChrono, MovedStopwatchLeavesAStoppedOneBehind) {
    ox_chrono chrono;
    chrono.start();
    while (chrono.elapsed() <= 0.0) {
    }
    ox_chrono taken(std::move(chrono));
    EXPECT_GT(taken.elapsed(), 0.0);
    ox_chrono other;
    swap(taken, other);
    EXPECT_EQ(taken.elapsed(), 0.0);
    taken = std::move(other);
    EXPECT_GT(taken.elapsed(), 0.0);
}

TEST(OxChrono, CopyRunsOnByItself) {
    ox_chrono chrono;
    chrono.start();
    wait_until(chrono, 0.001);
    ox_chrono copy(chrono);
    chrono.reset();
    EXPECT_GE(copy.elapsed(), 0.001);
    EXPECT_EQ(chrono.elapsed(), 0.0);
    copy.pause();
    chrono = copy;
    EXPECT_EQ(chrono.elapsed(), copy.elapsed());
    copy.reset();
    EXPECT_GE(chrono.elapsed(), 0.001);
}

TEST(OxChrono, AssignmentToItselfKeepsTheTime) {
    ox_chrono chrono;
    chrono.start();
    wait_until(chrono, 0.001);
    chrono.pause();
    const double paused = chrono.elapsed();
    const ox_chrono& same = chrono;
    chrono = same;
    EXPECT_EQ(chrono.elapsed(), paused);
}

TEST(OxChrono, NowIsTheCalendarTimeInSecondsAndMilliseconds) {
    using clock = std::chrono::system_clock;
    const long long before =
        std::chrono::duration_cast<std::chrono::seconds>(clock::now().time_since_epoch()).count();
    EXPECT_NEAR(static_cast<double>(ox_chrono::now()), static_cast<double>(before), 60.0);
    EXPECT_NEAR(static_cast<double>(ox_chrono::now_ms()) / 1000.0, static_cast<double>(before),
                60.0);
}

TEST(OxChrono, HoldsOnePointer) {
    EXPECT_EQ(sizeof(ox_chrono), sizeof(void*));
}

} // namespace
