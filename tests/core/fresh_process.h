#ifndef TESTS_CORE_FRESH_PROCESS_H
#define TESTS_CORE_FRESH_PROCESS_H

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace fresh_process {

/// Makes an empty folder for the running test case, below the working folder, and works in it.
inline void enter_empty_folder() {
    const ::testing::TestInfo& test = *::testing::UnitTest::GetInstance()->current_test_info();
    const std::filesystem::path folder =
        std::filesystem::current_path() / "fresh_process" / test.test_suite_name() / test.name();
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    std::filesystem::current_path(folder);
}

/// Runs `check` in an empty folder of a process started anew, where the process-wide state of the
/// library has its initial values whatever ran before. Once per test case.
inline void run(void (*check)()) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            enter_empty_folder();
            check();
            std::exit(::testing::Test::HasFailure() ? 1 : 0);
        },
        ::testing::ExitedWithCode(0), "");
}

} // namespace fresh_process

#endif
