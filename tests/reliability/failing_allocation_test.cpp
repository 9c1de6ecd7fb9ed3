// Memory that fails, in every class: allocation number k fails, once or with all that follow, for k
// from 1 until none is reached. The exception or the stated refusal comes out, nothing leaks, and
// the object holds what it held and can be used. A tenth of the numbers is tried; all with
// OX_CHECK=1.

#include <cstdio>
#include <exception>
#include <new>
#include <ostream>
#include <thread>

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <ox/core/ox_log.h>
#include <ox/polygon/ox_polygon.h>
#include <tests/reliability/failures/scenario.h>
#include <tests/support/all_cases.h>
#include <tests/support/failing_memory.h>
#include <tests/support/random_shapes.h>

namespace failures {

void PrintTo(const scenario& tried, std::ostream* out) {
    *out << tried.name;
}

} // namespace failures

namespace {

using failures::promise;
using failures::scenario;
using failures::trial;

/// What was found, in memory that a process shares with those it forks.
struct record {
    int failing = 1;       ///< the allocation that fails
    bool for_good = false; ///< and all that follow
    bool is_begun = false; ///< the process came as far as the first failure
    bool is_done = false;
    int tried = 0;
    int deaths = 0;
    int leaks = 0;
    int wrong = 0;
    char what[120] = ""; ///< the first thing that is wrong
};

/// The record and what the scenario gives where memory does not fail.
struct course {
    record* found;
    const scenario* tried;
    std::string answer;
    std::string before;
    std::string after;
};

void report(course& run, const char* what) {
    record& found = *run.found;
    if (found.wrong++ == 0) {
        std::snprintf(found.what, sizeof found.what, "%s, allocation %d%s", what, found.failing,
                      found.for_good ? " and all that follow" : "");
    }
}

/// What a thread keeps is freed when it ends. Where there is no memory to note that down, the C
/// library ends the process, so it is noted down before.
void begin_what_the_thread_keeps() {
    ox::ox_polygon frame;
    frame.add_contour(support::rectangle(0, 0, 7, 7));
    frame.add_contour(support::rectangle(1, 1, 2, 2));
    frame.add_contour(support::rectangle(6, 6, 9, 9));
    frame.get_area();
}

/// The object after a failure: what it holds, and that it can be used.
void check_object(course& run, trial& tried) {
    const std::string now = tried.contents();
    const bool is_done = now == run.after;
    if (!is_done && now != run.before && run.tried->kept == promise::intact) {
        report(run, "the object holds something else");
    }
    if (tried.act() != run.answer && now == run.before) {
        report(run, "the object gives another answer afterwards");
    }
}

/// One failure. True if the allocation was reached.
bool fail_once(course& run) {
    const std::unique_ptr<trial> tried = run.tried->begin();
    std::string given;
    bool has_thrown = false;
    failing_memory::start(run.found->failing, run.found->for_good);
    try {
        given = tried->act();
    } catch (const std::bad_alloc&) {
        has_thrown = true;
    }
    const bool is_reached = failing_memory::stop();
    const bool is_refused =
        is_reached && !has_thrown && !run.tried->refusal.empty() && given == run.tried->refusal;
    if (!has_thrown && !is_refused && given != run.answer) {
        report(run, "a wrong answer");
    }
    if (is_reached && (has_thrown || is_refused)) {
        check_object(run, *tried);
    }
    return is_reached;
}

/// In a thread of its own, which takes what it keeps with it.
bool fail_in_a_thread(course& run) {
    bool is_reached = false;
    std::thread([&] {
        begin_what_the_thread_keeps();
        is_reached = fail_once(run);
    }).join();
    return is_reached;
}

/// What is made once and for all is no leak: a second failure of the same kind does not make it
/// again.
bool leaks(course& run) {
    const auto count_lost_blocks = [&run] {
        const long blocks = failing_memory::count_live_blocks();
        fail_in_a_thread(run);
        return failing_memory::count_live_blocks() - blocks;
    };
    return count_lost_blocks() > 0 && count_lost_blocks() > 0;
}

void learn_the_usual_course(course& run) {
    std::thread([&] {
        const std::unique_ptr<trial> tried = run.tried->begin();
        run.before = tried->contents();
        run.answer = tried->act();
        run.after = tried->contents();
    }).join();
}

/// Goes on at the recorded allocation, and returns when none is reached any more.
void fail_all(const scenario& tried, record& found) {
    ox_log_set(false);
    course run{&found, &tried, "", "", ""};
    learn_the_usual_course(run);
    const int stride = support::all_or(1, 10);
    found.is_begun = true;
    while (!found.is_done) {
        ++found.tried;
        found.leaks += leaks(run) ? 1 : 0;
        if (fail_in_a_thread(run)) {
            found.failing += found.failing < 10 ? 1 : stride;
        } else if (!found.for_good) {
            found.failing = 1;
            found.for_good = true;
        } else {
            found.is_done = true;
        }
    }
}

/// Processes that die are followed by others, which begin after the allocation that killed them.
void fail_all_in_processes(const scenario& tried, record& found) {
    do {
        found.is_begun = false;
        const pid_t child = fork();
        if (child == 0) {
            close(STDERR_FILENO); // the C library tells why it ends a process
            fail_all(tried, found);
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        if (!found.is_done) {
            ++found.deaths;
            ++found.failing;
        }
    } while (!found.is_done && found.is_begun);
}

std::vector<scenario> all_scenarios() {
    std::vector<scenario> all;
    for (const auto& some :
         {failures::core_scenarios(), failures::geometry_scenarios(), failures::display_scenarios(),
          failures::polygon_scenarios(), failures::solid_scenarios(), failures::mesh_scenarios(),
          failures::progress_scenarios(), failures::table_scenarios(),
          failures::structure_scenarios()}) {
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

void print(const char* name, const record& found) {
    std::printf("%-36s %6d failures %4d wrong %4d leaks %4d deaths\n", name, found.tried,
                found.wrong, found.leaks, found.deaths);
}

class FailingAllocation : public ::testing::TestWithParam<scenario> {
protected:
    static void TearDownTestSuite() { print("all of these scenarios", all); }

    static void add(const record& found) {
        all.tried += found.tried;
        all.wrong += found.wrong;
        all.leaks += found.leaks;
        all.deaths += found.deaths;
    }

private:
    static record all;
};

record FailingAllocation::all;

TEST_P(FailingAllocation, ComesOutAndLeavesTheObjectAsItWas) {
    void* const shared =
        mmap(nullptr, sizeof(record), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(shared, MAP_FAILED);
    record& found = *new (shared) record;
    fail_all_in_processes(GetParam(), found);
    print(GetParam().name.c_str(), found);
    add(found);
    ASSERT_TRUE(found.is_done) << "it ends the process without a failure";
    EXPECT_EQ(found.wrong, 0) << found.what;
    const bool is_limit = GetParam().meets_libraries;
    EXPECT_LE(found.deaths, is_limit ? found.tried / 10 : 0);
    EXPECT_LE(found.leaks, is_limit ? found.tried * 2 / 3 : 0);
    munmap(shared, sizeof(record));
}

INSTANTIATE_TEST_SUITE_P(Scenario, FailingAllocation, ::testing::ValuesIn(all_scenarios()),
                         [](const ::testing::TestParamInfo<scenario>& tried) {
                             return tried.param.name;
                         });

} // namespace
