// Files that fail: call number k on a file, to open, read, write, flush or close it, fails, for k
// from 1 until none is reached. Each test is the table of what is answered, kept and logged then.

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ox/core/ox_log.h>
#include <ox/io/ox_csv.h>
#include <ox/mesh/ox_triangle_set.h>
#include <ox/progress/ox_progress_manager.h>
#include <tests/reliability/failing_files.h>
#include <tests/support/log_capture.h>

namespace {

using ox::ox_triangle_set;
using ::testing::ElementsAreArray;

/// What a call on the file at `path` answers and keeps, and what it logs.
using operation = std::function<std::string(const std::string& path)>;

/// One line for each failing call, the last one for the first number that is not reached.
std::vector<std::string> fail_each_call(const std::string& content, const operation& run) {
    std::vector<std::string> lines;
    for (bool is_reached = true; is_reached;) {
        const std::string path = support::own_file(".file");
        support::write_text(path, content);
        const support::log_capture log;
        failing_files::start(path, static_cast<int>(lines.size()) + 1);
        const std::string answer = run(path);
        is_reached = failing_files::stop();
        std::string logged = log.text();
        for (char& c : logged) {
            c = c == '\n' ? '|' : c;
        }
        lines.push_back(answer + ": " + logged);
    }
    std::printf("%d calls failed in turn\n", static_cast<int>(lines.size()) - 1);
    return lines;
}

/// A set of one triangle.
ox_triangle_set triangle() {
    ox_triangle_set set(3, 1);
    for (unsigned int i = 0; i < 3; ++i) {
        set.get_triangles()[i] = i;
    }
    return set;
}

std::string told(bool answer, const ox_triangle_set& set) {
    return std::string(answer ? "true" : "false") + ", " + std::to_string(set.get_nb_vertices()) +
           " vertices";
}

std::string raw_file() {
    return std::string("binaryra\x04\0\0\0\x01\0\0\0", 16) + std::string(60, '\0');
}

std::string stl_file() {
    return std::string(80, ' ') + std::string("\x02\0\0\0", 4) + std::string(100, '\0');
}

TEST(FailingFile, RawFileThatIsReadIsRefusedAndTheSetKeptOrEmptied) {
    const auto lines = fail_each_call(raw_file(), [](const std::string& path) {
        ox_triangle_set set = triangle();
        const bool answer = set.read_binary_raw(path.c_str());
        return told(answer, set);
    });
    const std::string begun = "reading binary_raw...|";
    const std::string open = begun + "open file ok|";
    const std::string header = open + "header ok|";
    const std::string counts = header + "reading 4 vertices and 1 triangles|";
    EXPECT_THAT(lines, ElementsAreArray({
                           "false, 3 vertices: " + begun,                          // open
                           "false, 3 vertices: " + open,                           // read the magic
                           "false, 3 vertices: " + header,                         // the counts
                           "false, 0 vertices: " + counts + "Error reading file|", // the vertices
                           "false, 0 vertices: " + counts + "Error reading file|", // the triangles
                           "true, 4 vertices: " + counts,                          // close
                           "true, 4 vertices: " + counts,
                       }));
}

TEST(FailingFile, StlFileThatIsReadIsRefusedAndTheSetKeptOrEmptied) {
    const auto lines = fail_each_call(stl_file(), [](const std::string& path) {
        ox_triangle_set set = triangle();
        const bool answer = set.read_binary_stl(path.c_str());
        return told(answer, set);
    });
    const std::string begun = "reading stl...|";
    const std::string open = begun + "open file ok|";
    const std::string header = open + "header ok|";
    const std::string count = header + "nb of triangles ok|reading 2 triangles...|"
                                       "triangle size : 52 bytes.|";
    EXPECT_THAT(lines, ElementsAreArray({
                           "false, 3 vertices: " + begun,  // open
                           "false, 3 vertices: " + open,   // read the header
                           "false, 3 vertices: " + header, // the count
                           "false, 0 vertices: " + count + "0 read triangles...|", // the records
                           "true, 6 vertices: " + count,                           // close
                           "true, 6 vertices: " + count,
                       }));
}

TEST(FailingFile, RawFileThatIsWrittenEmptiesTheSetWhereItsArraysAreNotWritten) {
    const auto lines = fail_each_call("", [](const std::string& path) {
        ox_triangle_set set = triangle();
        const bool answer = set.write_binary_raw(path.c_str());
        return told(answer, set);
    });
    const std::string begun = "writing binary_raw...|";
    const std::string open = begun + "open file ok|";
    const std::string header = open + "header ok|";
    const std::string error = header + "Error writing file|";
    EXPECT_THAT(lines, ElementsAreArray({
                           "false, 3 vertices: " + begun,  // open the descriptor
                           "false, 3 vertices: " + begun,  // the stream
                           "false, 3 vertices: " + open,   // write the magic
                           "false, 3 vertices: " + header, // the count of vertices
                           "false, 3 vertices: " + header, // of triangles
                           "false, 0 vertices: " + error,  // the vertices
                           "false, 0 vertices: " + error,  // the triangles
                           "false, 0 vertices: " + error,  // flush
                           "true, 3 vertices: " + header,  // close
                           "true, 3 vertices: " + header,
                       }));
}

TEST(FailingFile, TableThatIsNotReadStaysAsItIs) {
    const auto lines = fail_each_call("a;b\n1;2\n", [](const std::string& path) {
        ox::ox_csv table;
        table.add_column("one", ox::ox_make_list({1}));
        ox_log_set(false); // the scores of the separators
        const bool answer = table.read_file(path);
        ox_log_set(true);
        return std::string(answer ? "true" : "false") + ", " +
               std::to_string(table.get_nb_columns()) + " columns";
    });
    EXPECT_THAT(lines, ElementsAreArray({
                           "false, 1 columns: ", // open
                           "false, 1 columns: ", // read
                           "false, 1 columns: ", // read the end
                           "true, 2 columns: ",  // close
                           "true, 2 columns: ",
                       }));
}

TEST(FailingFile, TableTellsOnlyThatItsFileCannotBeOpenedForWriting) {
    const auto lines = fail_each_call("", [](const std::string& path) {
        ox::ox_csv table;
        table.add_column("one", ox::ox_make_list({1}));
        const bool answer = table.write_file(path);
        return std::string(answer ? "true" : "false");
    });
    const std::string success = "true: csv file writen with success|";
    EXPECT_THAT(lines, ElementsAreArray({
                           std::string("false: "), // open the descriptor
                           std::string("false: "), // the stream
                           success,                // write
                           success,                // close
                           success,
                       }));
}

/// The weight of the phase "read" with an experience file that says 8.
std::string learnt_weight(const std::string& path) {
    ox::ox_progress_manager manager;
    manager.set_experience_learning_file(path);
    manager.add_phase("read", "", 1.0);
    ox::ox_list<std::string> names;
    ox::ox_list<std::string> parents;
    ox::ox_list<double> weights;
    ox::ox_list<double> durations;
    manager.get_all_phases(names, parents, weights, durations);
    return std::to_string(static_cast<int>(weights[0]));
}

TEST(FailingFile, ExperienceThatCannotBeReadLeavesTheGivenWeights) {
    const auto lines = fail_each_call("read 8\nsave 2\n", learnt_weight);
    EXPECT_THAT(lines, ElementsAreArray({
                           "1: Could not read from experience file|", // open
                           "1: ",                                     // read the first line
                           "8: ",                                     // the second line
                           "8: ",                                     // the end
                           "8: ",                                     // close
                           "8: ",
                       }));
}

TEST(FailingFile, ExperienceThatCannotBeWrittenIsLeftOutSilently) {
    const auto lines = fail_each_call("read 8\n", [](const std::string& path) {
        ox::ox_progress_manager manager;
        manager.set_experience_learning_file(path);
        manager.add_phase("read", "", 1.0);
        manager.finalize();
        return std::string("finished");
    });
    ASSERT_GE(lines.size(), 5u);
    EXPECT_EQ(lines.front(), "finished: Could not read from experience file|");
    for (std::size_t i = 1; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i], "finished: ") << "call " << i + 1;
    }
}

TEST(FailingFile, LogThatCannotBeWrittenLosesItsMessageSilently) {
    const auto lines = fail_each_call("", [](const std::string& path) {
        ox_set_log_file(path.c_str());
        ox_log("lost");
        ox_set_log_file(nullptr);
        return std::string("logged");
    });
    EXPECT_THAT(lines, ElementsAreArray(std::vector<std::string>(
                           5, "logged: "))); // descriptor, stream, message, close, and none
}

} // namespace
