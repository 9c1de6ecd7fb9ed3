// Memory that fails: every allocation of an operation fails in turn, once or with all that follow,
// in a process of its own. The exception comes out, or the answer is the usual one; and afterwards
// fresh polygons of the same shape get the usual answer too, from the same thread.

#include <cmath>
#include <functional>
#include <new>
#include <thread>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>
#include <tests/support/failing_memory.h>

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using support::rectangle;

namespace {

using answer = std::vector<float>;
using scenario = std::function<answer()>;

answer answer_of(ox_polygon& polygon) {
    answer numbers;
    for (const ox_3dvector& v : polygon.get_contour_vertices()) {
        numbers.insert(numbers.end(), {v.x, v.y, v.z});
    }
    for (const unsigned int size : polygon.get_contour_sizes()) {
        numbers.push_back(static_cast<float>(size));
    }
    numbers.push_back(polygon.get_area());
    return numbers;
}

// What becomes of a process in which one allocation fails.
enum outcome { as_promised, reached_end, wrong_answer, wrong_afterwards, died };

int try_in_this_process(const scenario& run, const answer& expected, int failing, bool for_good) {
    bool threw = false;
    bool right = false;
    failing_memory::start(failing, for_good);
    try {
        const answer given = run();
        right = given == expected;
    } catch (const std::bad_alloc&) {
        threw = true;
    }
    const bool reached = failing_memory::stop();
    if (!threw && !right) {
        return wrong_answer;
    }
    if (run() != expected) {
        return wrong_afterwards;
    }
    return reached ? as_promised : reached_end;
}

int try_in_a_process(const scenario& run, const answer& expected, int failing, bool for_good) {
    const pid_t child = fork();
    if (child == 0) {
        close(STDERR_FILENO); // the C library tells why it ends a process
        _exit(try_in_this_process(run, expected, failing, for_good));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : died;
}

struct tally {
    int allocations = 0;
    int deaths = 0;
};

// What a thread keeps is freed when it ends. Where there is no memory to note that down, the C
// library ends the process, so it is noted down before: by shapes that no scenario has.
void begin_what_the_thread_keeps() {
    ox_polygon cross;
    cross.add_contour(rectangle(0, 1, 3, 2));
    cross.add_contour(rectangle(1, 0, 2, 3));
    cross.get_area();
    ox_polygon frame;
    frame.add_contour(rectangle(0, 0, 3, 3));
    frame.add_contour(rectangle(1, 1, 2, 2));
    frame.get_area();
}

tally fail_every_allocation(const scenario& run) {
    begin_what_the_thread_keeps();
    answer expected;
    std::thread([&] { expected = run(); }).join(); // what this thread remembers stays as it is
    tally count;
    for (const bool for_good : {false, true}) {
        int outcome = as_promised;
        for (int failing = 1; outcome != reached_end; ++failing) {
            outcome = try_in_a_process(run, expected, failing, for_good);
            EXPECT_NE(outcome, wrong_answer) << "allocation " << failing;
            EXPECT_NE(outcome, wrong_afterwards) << "allocation " << failing;
            ++count.allocations;
            count.deaths += outcome == died ? 1 : 0;
        }
    }
    return count;
}

void expect_answers_or_throws(const scenario& run) {
    EXPECT_EQ(fail_every_allocation(run).deaths, 0);
}

ox_polygon polygon_of(const ox_list<ox_3dvector>& contour) {
    ox_polygon polygon(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
    polygon.add_contour(contour);
    return polygon;
}

ox_list<ox_3dvector> star(int tips, float turn) {
    ox_list<ox_3dvector> contour;
    for (int i = 0; i < 2 * tips; ++i) {
        const float angle = turn + 3.14159265f * static_cast<float>(i) / static_cast<float>(tips);
        const float radius = i % 2 == 0 ? 10.0f : 4.0f;
        contour.push_right(ox_3dvector(radius * std::cos(angle), radius * std::sin(angle), 0.0f));
    }
    return contour;
}

ox_list<ox_3dvector> l_shape() {
    ox_list<ox_3dvector> contour = rectangle(0, 0, 4, 4);
    contour[2] = ox_3dvector(1.0f, 1.0f, 0.0f);
    contour.push_right(ox_3dvector(0.0f, 4.0f, 0.0f));
    contour[3] = ox_3dvector(1.0f, 4.0f, 0.0f);
    return contour;
}

using boolean = void (ox_polygon::*)(const ox_polygon&);

scenario combination(const ox_list<ox_3dvector>& a, const ox_list<ox_3dvector>& b,
                     boolean operation) {
    return [=] {
        ox_polygon first = polygon_of(a);
        const ox_polygon second = polygon_of(b);
        (first.*operation)(second);
        return answer_of(first);
    };
}

constexpr boolean booleans[] = {&ox_polygon::unites, &ox_polygon::substracts,
                                &ox_polygon::intersects};

} // namespace

TEST(OxPolygonFailedAllocation, MergedContoursAreRightOrTheExceptionComesOut) {
    expect_answers_or_throws([] {
        ox_polygon polygon = polygon_of(rectangle(0, 0, 2, 2));
        polygon.add_contour(rectangle(1, 1, 3, 3));
        return answer_of(polygon);
    });
}

TEST(OxPolygonFailedAllocation, BooleansOfRectanglesAreRightOrTheExceptionComesOut) {
    for (const boolean operation : booleans) {
        expect_answers_or_throws(
            combination(rectangle(0, 0, 2, 2), rectangle(1, 1, 3, 3), operation));
    }
}

TEST(OxPolygonFailedAllocation, OffsetsAreRightOrTheExceptionComesOut) {
    for (const float distance : {0.5f, -0.25f}) {
        for (const int join : {0, 1, 2}) {
            expect_answers_or_throws([=] {
                ox_polygon polygon = polygon_of(rectangle(0, 0, 2, 2));
                polygon.offset(distance, join);
                return answer_of(polygon);
            });
        }
    }
}

TEST(OxPolygonFailedAllocation, BestCentreIsRightOrTheExceptionComesOut) {
    expect_answers_or_throws([] {
        ox_polygon polygon = polygon_of(l_shape());
        const ox_3dvector& center = polygon.get_best_center();
        return answer{center.x, center.y, center.z};
    });
}

TEST(OxPolygonFailedAllocation, PolygonThatFailedOnceAnswersAsUsualLater) {
    const auto area_and_center = [](ox_polygon& polygon) {
        answer numbers = answer_of(polygon);
        numbers.push_back(polygon.get_best_center().x);
        return numbers;
    };
    expect_answers_or_throws([=] {
        ox_polygon polygon = polygon_of(l_shape());
        try {
            return area_and_center(polygon);
        } catch (const std::bad_alloc&) {
            failing_memory::stop();
            return area_and_center(polygon);
        }
    });
}

// The tessellator reads through null pointers where some of its own allocations fail, and the
// clipping library frees crossings twice when one fails among them: nobody who calls them can
// prevent that. What can be promised is that no answer is wrong.
void expect_few_deaths(const scenario& run) {
    const tally count = fail_every_allocation(run);
    ::testing::Test::RecordProperty("allocations", count.allocations);
    ::testing::Test::RecordProperty("deaths", count.deaths);
    EXPECT_LE(count.deaths * 10, count.allocations);
}

TEST(OxPolygonFailedAllocation, LimitFewAllocationsOfTheTessellatorEndTheProcess) {
    expect_few_deaths([] {
        ox_polygon polygon = polygon_of(star(5, 0.1f));
        return answer_of(polygon);
    });
}

TEST(OxPolygonFailedAllocation, LimitFewAllocationsAmongCrossingsEndTheProcess) {
    expect_few_deaths(combination(star(5, 0.1f), star(5, 0.4f), &ox_polygon::unites));
}
