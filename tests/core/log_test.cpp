#include "fresh_process.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <ox/core/ox_log.h>
#include <ox/geometry/ox_matrix.h>
#include <ox/io/ox_csv.h>
#include <sstream>
#include <string>
#include <tests/support/comma_locale.h>
#include <thread>
#include <vector>

#if !defined(_WIN32)
#include <sys/stat.h>
#endif

extern "C" bool log_from_c(const char* path, const char* message);

namespace {

/// What the log file holds; its lines end as usual on the system.
std::string text_of(const std::string& path) {
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

void write_file(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

std::string echo_of(const char* message) {
    ox_log_std_output(true);
    ::testing::internal::CaptureStdout();
    ox_log(message);
    ox_log_std_output(false);
    return ::testing::internal::GetCapturedStdout();
}

TEST(OxLog, FirstMessageCreatesTheDefaultFileAndTheSecondIsAppended) {
    fresh_process::run([] {
        ox_log("first");
        EXPECT_EQ(text_of("ox_log.txt"), "first\n");
        ox_log("second");
        EXPECT_EQ(text_of("ox_log.txt"), "first\nsecond\n");
    });
}

TEST(OxLog, FirstMessageTruncatesTheLogOfThePreviousRun) {
    fresh_process::run([] {
        write_file("ox_log.txt", "previous run\n");
        ox_log("first");
        EXPECT_EQ(text_of("ox_log.txt"), "first\n");
    });
}

TEST(OxLog, IsOnAndNotEchoedByDefault) {
    fresh_process::run([] {
        EXPECT_TRUE(ox_log_get());
        ::testing::internal::CaptureStdout();
        ox_log("quiet");
        EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
    });
}

TEST(OxLog, SwitchedOffWritesNoFileButStillEchoes) {
    fresh_process::run([] {
        ox_log_set(false);
        EXPECT_FALSE(ox_log_get());
        EXPECT_EQ(echo_of("echoed"), "echoed");
        EXPECT_FALSE(std::filesystem::exists("ox_log.txt"));
    });
}

TEST(OxLog, MessageLostWhileSwitchedOffDoesNotCountAsTheFirst) {
    fresh_process::run([] {
        write_file("ox_log.txt", "previous run\n");
        ox_log_set(false);
        ox_log("lost");
        ox_log_set(true);
        ox_log("first");
        EXPECT_EQ(text_of("ox_log.txt"), "first\n");
    });
}

TEST(OxLog, FileChosenBeforeAnyMessageIsTruncatedByTheFirst) {
    fresh_process::run([] {
        write_file("chosen.txt", "previous run\n");
        ox_set_log_file("chosen.txt");
        ox_log("first");
        EXPECT_EQ(text_of("chosen.txt"), "first\n");
        EXPECT_FALSE(std::filesystem::exists("ox_log.txt"));
    });
}

TEST(OxLog, FileChosenAfterAMessageIsAppendedTo) {
    fresh_process::run([] {
        write_file("chosen.txt", "kept\n");
        ox_log("first");
        ox_set_log_file("chosen.txt");
        ox_log("second");
        EXPECT_EQ(text_of("ox_log.txt"), "first\n");
        EXPECT_EQ(text_of("chosen.txt"), "kept\nsecond\n");
    });
}

TEST(OxLog, TruncationWaitsUntilAFileCanBeOpened) {
    fresh_process::run([] {
        write_file("chosen.txt", "previous run\n");
        ox_set_log_file("no_such_folder/log.txt");
        ox_log("lost");
        ox_set_log_file("chosen.txt");
        ox_log("first");
        EXPECT_EQ(text_of("chosen.txt"), "first\n");
    });
}

TEST(OxLog, FileThatCannotBeOpenedLosesTheMessageAfterTheEcho) {
    fresh_process::run([] {
        ox_set_log_file(".");
        EXPECT_EQ(echo_of("heard"), "heard");
        ox_set_log_file("");
        EXPECT_EQ(echo_of("heard"), "heard");
    });
}

TEST(OxLog, PathIsCopied) {
    fresh_process::run([] {
        std::string path = "chosen.txt";
        ox_set_log_file(path.c_str());
        path.assign("another.sv");
        ox_log("first");
        EXPECT_EQ(text_of("chosen.txt"), "first\n");
    });
}

#if !defined(_WIN32)
TEST(OxLog, PipeThatNobodyReadsLosesTheMessage) {
    fresh_process::run([] {
        ASSERT_EQ(mkfifo("log.pipe", 0600), 0);
        ox_set_log_file("log.pipe");
        ox_log("lost");
        ox_set_log_file("chosen.txt");
        ox_log("first");
        EXPECT_EQ(text_of("chosen.txt"), "first\n");
    });
}

TEST(OxLog, DeviceTakesMessages) {
    fresh_process::run([] {
        write_file("chosen.txt", "kept\n");
        ox_set_log_file("/dev/null");
        ox_log("swallowed");
        ox_set_log_file("chosen.txt");
        ox_log("second");
        EXPECT_EQ(text_of("chosen.txt"), "kept\nsecond\n");
    });
}
#endif

TEST(OxLog, LinesOfNumbersHaveAPointWhateverTheLocale) {
    fresh_process::run([] {
        const support::comma_locale locale;
        if (!locale.is_chosen()) {
            return;
        }
        ox::ox_matrix().log();
        EXPECT_EQ(text_of("ox_log.txt"), "\t1.000000 - 0.000000 - 0.000000\n"
                                         "\t0.000000 - 1.000000 - 0.000000\n"
                                         "\t0.000000 - 0.000000 - 1.000000\n"
                                         "\t0.000000 - 0.000000 - 0.000000\n");
        ox::ox_csv().read_string("1,5\n");
        EXPECT_EQ(text_of("ox_log.txt").find("1,000000"), std::string::npos);
    });
}

TEST(OxLog, NameMayBeChangedWhileThreadsLog) {
    fresh_process::run([] {
        std::thread logging([] {
            for (int i = 0; i < 500; ++i) {
                ox_log_thread_safe("line");
            }
        });
        for (int i = 0; i < 500; ++i) {
            ox_set_log_file(i % 2 == 0 ? "even.txt" : "odd.txt");
        }
        logging.join();
        const std::string lines = text_of("ox_log.txt") + text_of("even.txt") + text_of("odd.txt");
        EXPECT_EQ(lines.size(), 500 * std::string("line\n").size());
    });
}

TEST(OxLog, NullPathChoosesTheDefaultNameAgain) {
    fresh_process::run([] {
        ox_set_log_file("chosen.txt");
        ox_log("first");
        ox_set_log_file(nullptr);
        ox_log("second");
        EXPECT_EQ(text_of("ox_log.txt"), "second\n");
    });
}

TEST(OxLog, NullMessageIsAnEmptyMessage) {
    fresh_process::run([] {
        EXPECT_EQ(echo_of(nullptr), "");
        ox_log_thread_safe(nullptr);
        EXPECT_EQ(text_of("ox_log.txt"), "\n\n");
    });
}

TEST(OxLog, ConversionIsEchoedAsItStandsAndWrittenLiterally) {
    fresh_process::run([] {
        EXPECT_EQ(echo_of("%d of %s, %n, %*d"), "%d of %s, %n, %*d");
        EXPECT_EQ(text_of("ox_log.txt"), "%d of %s, %n, %*d\n");
    });
}

TEST(OxLog, DoubledPercentSignIsEchoedOnceAndWrittenTwice) {
    fresh_process::run([] {
        EXPECT_EQ(echo_of("100%% of 5%%%%"), "100% of 5%%");
        EXPECT_EQ(text_of("ox_log.txt"), "100%% of 5%%%%\n");
    });
}

TEST(OxLog, LonePercentSignAtTheEndIsEchoedAsItStands) {
    fresh_process::run([] {
        EXPECT_EQ(echo_of("100%"), "100%");
        EXPECT_EQ(echo_of("100%%%"), "100%%");
    });
}

TEST(OxLog, EchoedMessagesRunTogetherOnOneLine) {
    fresh_process::run([] {
        ox_log_std_output(true);
        ::testing::internal::CaptureStdout();
        ox_log("one");
        ox_log("two\n");
        ox_log("three");
        EXPECT_EQ(::testing::internal::GetCapturedStdout(), "onetwo\nthree");
    });
}

TEST(OxLog, LongMessageIsWrittenWhole) {
    fresh_process::run([] {
        const std::string message(1000000, 'x');
        ox_log(message.c_str());
        EXPECT_EQ(text_of("ox_log.txt"), message + "\n");
    });
}

TEST(OxLog, ThreadSafeMessagesOfSeveralThreadsAllArriveWhole) {
    fresh_process::run([] {
        constexpr std::size_t threads = 4;
        constexpr std::size_t messages = 200;
        std::vector<std::thread> team;
        for (std::size_t i = 0; i < threads; ++i) {
            team.emplace_back([i] {
                const std::string message(40, static_cast<char>('a' + i));
                for (std::size_t j = 0; j < messages; ++j) {
                    ox_log_thread_safe(message.c_str());
                }
            });
        }
        for (std::thread& member : team) {
            member.join();
        }
        std::ifstream file("ox_log.txt");
        std::vector<std::size_t> arrived(threads, 0);
        for (std::string line; std::getline(file, line);) {
            ASSERT_EQ(line, std::string(40, line.empty() ? '?' : line[0]));
            ++arrived.at(static_cast<std::size_t>(line[0] - 'a'));
        }
        EXPECT_EQ(arrived, std::vector<std::size_t>(threads, messages));
    });
}

TEST(OxLog, CanBeCalledFromC) {
    fresh_process::run([] {
        EXPECT_TRUE(log_from_c("from_c.txt", "C"));
        EXPECT_EQ(text_of("from_c.txt"), "C\nC\n");
    });
}

TEST(OxLog, QualifiedAndGlobalNamesAreOneFunction) {
    EXPECT_EQ(&ox::ox_log, &::ox_log);
    EXPECT_EQ(&ox::ox_log_get, &::ox_log_get);
    EXPECT_EQ(&ox::ox_log_set, &::ox_log_set);
    EXPECT_EQ(&ox::ox_log_std_output, &::ox_log_std_output);
    EXPECT_EQ(&ox::ox_log_thread_safe, &::ox_log_thread_safe);
    EXPECT_EQ(&ox::ox_set_log_file, &::ox_set_log_file);
    using namespace ox;
    EXPECT_EQ(&ox_log, &::ox_log);
}

} // namespace
