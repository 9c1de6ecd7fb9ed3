#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#if !defined(_WIN32)
#include <sys/stat.h>
#endif

#include <tests/support/comma_locale.h>
#include <tests/support/generator.h>
#include <tests/support/log_capture.h>
#include <tests/support/recording_manager.h>

namespace {

/// The weight that a phase gets when a manager has learnt from a file with the given text.
double learnt_weight(const std::string& text, const std::string& name) {
    const std::string path = support::own_file(".txt");
    support::write_text(path, text);
    ox::ox_progress_manager manager;
    manager.set_experience_learning_file(path);
    manager.add_phase(name, "", 1.0);
    ox::ox_list<std::string> names;
    ox::ox_list<std::string> parents;
    ox::ox_list<double> weights;
    ox::ox_list<double> durations;
    manager.get_all_phases(names, parents, weights, durations);
    return weights[0];
}

TEST(Experience, ALineOfTheFileReplacesTheGivenWeight) {
    EXPECT_EQ(learnt_weight("load 10.000000\n", "load"), 10.0);
    EXPECT_EQ(learnt_weight("load 10.000000\n", "save"), 1.0);
}

TEST(Experience, OfSeveralLinesOfOneNameTheFirstCounts) {
    EXPECT_EQ(learnt_weight("load 10\nload 20\n", "load"), 10.0);
}

TEST(Experience, ABrokenLineEndsTheReadingAndKeepsTheLinesBeforeIt) {
    const std::string text = "load 10\nsave many\nprint 5\n";
    EXPECT_EQ(learnt_weight(text, "load"), 10.0);
    EXPECT_EQ(learnt_weight(text, "print"), 1.0);
}

TEST(Experience, ALastLineWithoutALineBreakCounts) {
    EXPECT_EQ(learnt_weight("load 10\nsave 20", "save"), 20.0);
    EXPECT_EQ(learnt_weight("load 10\nsave", "save"), 1.0);
}

TEST(Experience, ANumberThatIsNotFiniteIsNotLearntAndTheReadingGoesOn) {
    for (const char* number : {"nan", "inf", "-inf", "1e999"}) {
        EXPECT_EQ(learnt_weight(std::string("load ") + number + "\nsave 5\n", "load"), 1.0);
        EXPECT_EQ(learnt_weight(std::string("load ") + number + "\nsave 5\n", "save"), 5.0);
    }
}

TEST(Experience, NamesOf255BytesAreReadAndLongerOnesEndTheReading) {
    const std::string longest(255, 'n');
    EXPECT_EQ(learnt_weight(longest + " 10\n", longest), 10.0);
    const std::string too_long(300, 'n');
    EXPECT_EQ(learnt_weight(too_long + " 10\nload 10\n", too_long), 1.0);
    EXPECT_EQ(learnt_weight(too_long + " 10\nload 10\n", "load"), 1.0);
}

TEST(Experience, DigitsAtTheEndOfANameTooLongAreNoNumber) {
    const std::string start(255, 'n');
    EXPECT_EQ(learnt_weight(start + "12 7.5\nload 10\n", start), 1.0);
    EXPECT_EQ(learnt_weight(start + "12 7.5\nload 10\n", "load"), 1.0);
    EXPECT_EQ(learnt_weight(start + "1 7.5\nload 10\n", start), 1.0);
}

TEST(Experience, TheLocaleOfTheProcessDoesNotChangeTheFile) {
    const support::comma_locale locale;
    if (!locale.is_chosen()) {
        GTEST_SKIP() << "this machine has no locale with a decimal comma";
    }
    const support::log_capture log;
    const std::string path = support::own_file(".txt");
    support::write_text(path, "load 10.500000\n");
    ox::ox_progress_manager manager;
    manager.set_experience_learning_file(path);
    manager.add_phase("load", "", 1.0);
    manager.finalize();
    EXPECT_EQ(support::text_of_file(path), "load 9.450000\n");
}

TEST(Experience, APathWithANulInItIsNotOpened) {
    const support::log_capture log;
    const std::string path = support::own_file(".txt");
    support::write_text(path, "kept 1\n");
    ox::ox_progress_manager manager;
    manager.set_experience_learning_file(path + '\0' + "tail");
    EXPECT_EQ(log.text(), "Could not read from experience file\n");
    manager.finalize();
    EXPECT_EQ(support::text_of_file(path), "kept 1\n");
}

#if !defined(_WIN32)
TEST(Experience, APipeIsNeitherReadNorWaitedFor) {
    const support::log_capture log;
    const std::string path = support::own_file(".pipe");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    ox::ox_progress_manager manager;
    manager.set_experience_learning_file(path);
    EXPECT_EQ(log.text(), "Could not read from experience file\n");
    manager.finalize();
}
#endif

TEST(Experience, AFileThatCannotBeReadIsLoggedAndTheGivenWeightsCount) {
    const support::log_capture log;
    recording_manager manager;
    manager.set_experience_learning_file("no-such-folder/experience.txt");
    EXPECT_EQ(log.text(), "Could not read from experience file\n");
    manager.add_phase("load", "", 1.0);
    manager.finalize(); // cannot be written either
    EXPECT_THAT(manager.reports, ::testing::ElementsAre(1.0));
}

TEST(Experience, AMissingFileIsStillWrittenAtTheEnd) {
    const support::log_capture log;
    const std::string path = support::own_file(".txt");
    ox::ox_progress_manager manager;
    manager.set_experience_learning_file(path);
    manager.add_phase("load", "", 1.0);
    manager.finalize();
    EXPECT_EQ(support::text_of_file(path), "load 0.000000\n");
}

TEST(Experience, PhasesNoLongerDefinedDropOutOfTheFile) {
    const std::string path = support::own_file(".txt");
    support::write_text(path, "gone 5\nload 10\n");
    ox::ox_progress_manager manager;
    manager.set_experience_learning_file(path);
    manager.add_phase("load", "", 1.0);
    manager.finalize();
    EXPECT_EQ(support::text_of_file(path), "load 9.000000\n");
}

TEST(Experience, WithoutAFileNothingIsWritten) {
    recording_manager manager;
    manager.add_phase("load", "", 1.0);
    manager.set_current_phase("load");
    manager.finalize();
    EXPECT_THAT(manager.reports, ::testing::ElementsAre(0.0, 1.0));
    EXPECT_EQ(manager.get_current_phase(), "");
}

TEST(Experience, FinalizingMakesAPhaseWithAnEmptyNameCurrent) {
    recording_manager manager;
    manager.add_phase("load", "", 1.0);
    manager.add_phase("", "", 1.0);
    manager.finalize();
    EXPECT_THAT(manager.reports, ::testing::ElementsAre(1.0, 0.5));
}

TEST(Experience, AFileOfRandomBytesIsHarmless) {
    support::generator random(81);
    for (int i = 0; i < 300; ++i) {
        std::string text;
        for (int n = random.between(0, 600); n > 0; --n) {
            // Half of the files are made of what lines are made of.
            text += i % 2 == 0 ? static_cast<char>(random.between(0, 255))
                               : "ab 1.e-+\n\t\0nif"[random.between(0, 14)];
        }
        learnt_weight(text, "ab");
    }
}

TEST(Experience, AFolderCannotBeRead) {
    const support::log_capture log;
    ox::ox_progress_manager manager;
    manager.set_experience_learning_file(".");
    EXPECT_EQ(log.text(), "Could not read from experience file\n");
    manager.add_phase("load", "", 1.0);
    manager.finalize();
}

} // namespace
