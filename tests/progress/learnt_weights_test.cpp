#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ox/progress/ox_progress_manager.h>
#include <string>

#include <tests/support/log_capture.h>

// Durations are measured with the system clock. On Linux the program puts a clock of its own before
// the C library's; sanitizers that do the same leave no room for it.
#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#if !defined(__has_feature)
#define OX_CAN_SET_CLOCK
#elif !__has_feature(address_sanitizer) && !__has_feature(thread_sanitizer)
#define OX_CAN_SET_CLOCK
#endif
#endif

#ifdef OX_CAN_SET_CLOCK

#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

namespace {

/// While it lives, the clock stands still but for the seconds that pass by its word.
class still_clock {
public:
    still_clock() { seconds = 1000000000; }
    ~still_clock() { seconds = 0; }
    still_clock(const still_clock&) = delete;
    still_clock& operator=(const still_clock&) = delete;

    void pass(long span) { seconds += span; }

    static long seconds; // 0 when the system's clock counts
};

long still_clock::seconds = 0;

} // namespace

extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept {
    if (still_clock::seconds > 0 && clock == CLOCK_REALTIME) {
        time->tv_sec = still_clock::seconds;
        time->tv_nsec = 0;
        return 0;
    }
    return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
}

namespace {

TEST(LearntWeights, AnExperienceOf10AndARunOf20SecondsAreWrittenAs11) {
    const std::string path = support::own_file(".txt");
    support::write_text(path, "load 10.000000\n");
    still_clock clock;
    ox::ox_progress_manager manager;
    manager.set_experience_learning_file(path);
    manager.add_phase("load", "", 1.0);
    manager.set_current_phase("load");
    clock.pass(20);
    EXPECT_EQ(manager.get_current_phase_duration(), 20.0);
    manager.finalize();
    EXPECT_EQ(support::text_of_file(path), "load 11.000000\n");
}

TEST(LearntWeights, OnlyTheLastStayInAPhaseCounts) {
    const std::string path = support::own_file(".txt");
    still_clock clock;
    ox::ox_progress_manager manager;
    const support::log_capture log;
    manager.set_experience_learning_file(path);
    manager.add_phase("load", "", 1.0);
    manager.set_current_phase("load");
    clock.pass(20);
    manager.set_current_phase("load");
    clock.pass(3);
    manager.finalize();
    EXPECT_EQ(support::text_of_file(path), "load 3.000000\n");
}

TEST(LearntWeights, AParentLastsAsLongAsItsChildren) {
    const std::string path = support::own_file(".txt");
    still_clock clock;
    ox::ox_progress_manager manager;
    const support::log_capture log;
    manager.set_experience_learning_file(path);
    manager.add_phase("all", "", 1.0);
    manager.add_phase("load", "all", 1.0);
    manager.add_phase("save", "all", 1.0);
    manager.set_current_phase("all");
    clock.pass(100);
    manager.set_current_phase("load");
    clock.pass(2);
    manager.set_current_phase("save");
    clock.pass(6);
    manager.finalize();
    EXPECT_EQ(support::text_of_file(path), "all 8.000000\nload 2.000000\nsave 6.000000\n");
}

TEST(LearntWeights, TheNextRunTilesTheBarByTheLearntSeconds) {
    const std::string path = support::own_file(".txt");
    support::write_text(path, "load 2.000000\nsave 6.000000\n");
    ox::ox_progress_manager manager;
    manager.set_experience_learning_file(path);
    manager.add_phase("load", "", 1.0);
    manager.add_phase("save", "", 1.0);
    manager.set_current_phase("save");
    EXPECT_EQ(manager.compute_phase_progress(0.0), 0.25);
}

TEST(LearntWeights, ASecondFinalizeBlendsWithWhatTheFirstOneLearnt) {
    const std::string path = support::own_file(".txt");
    support::write_text(path, "load 10.000000\n");
    still_clock clock;
    ox::ox_progress_manager manager;
    manager.set_experience_learning_file(path);
    manager.add_phase("load", "", 1.0);
    manager.set_current_phase("load");
    clock.pass(20);
    manager.finalize();
    manager.finalize(); // the duration is still 20
    EXPECT_EQ(support::text_of_file(path), "load 11.900000\n");
}

} // namespace

#endif
