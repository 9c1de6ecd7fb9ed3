#ifndef OX_TESTS_SUPPORT_LOG_CAPTURE_H
#define OX_TESTS_SUPPORT_LOG_CAPTURE_H

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

#include <ox/core/ox_log.h>

namespace support {

/// A file name in the working folder that no other test case uses. Removes what a run before left.
inline std::string own_file(const std::string& ending) {
    const ::testing::TestInfo& test = *::testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = std::string(test.test_suite_name()) + "." + test.name() + ending;
    std::filesystem::remove_all(name);
    return name;
}

/// The text in a file, whose lines end as usual on the system.
inline std::string text_of_file(const std::string& path) {
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

inline void write_text(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

/// Sends the log to a file of the test case's own while it lives.
class log_capture {
public:
    log_capture() : path(own_file(".log")) { ox_set_log_file(path.c_str()); }
    ~log_capture() { ox_set_log_file(nullptr); }
    log_capture(const log_capture&) = delete;
    log_capture& operator=(const log_capture&) = delete;

    /// What was logged so far.
    std::string text() const { return text_of_file(path); }

private:
    std::string path;
};

} // namespace support

#endif
