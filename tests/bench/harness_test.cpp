// The harness of the benchmarks: what it must notice whatever the machine's speed.

#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include <bench/support/isolation.h>
#include <bench/support/measurement.h>
#include <bench/support/program.h>
#include <bench/support/report.h>
#include <gtest/gtest.h>

namespace {

constexpr bench::patience two_rounds = {2, 2, 0.0, 1.0};

bench::contestant telling(const char* name, double volume, double tolerance = 0.0) {
    return bench::make_contestant(
        name, [] { return 0; }, [](int&) {},
        [=](int&) {
            return std::vector<bench::fact>{{"volume", volume, tolerance}};
        });
}

bench::contest between(const bench::contestant& ours, const bench::contestant& peer) {
    bench::contest rules;
    rules.ours = ours;
    rules.peers = {peer};
    return rules;
}

std::vector<std::string> disagreements(const bench::contest& rules) {
    return bench::measure(rules, two_rounds, bench::clock_kind::wall).disagreements;
}

int status_of(const bench::contest& rules) {
    char name[] = "bench_test", quick[] = "--quick";
    char* arguments[] = {name, quick, nullptr};
    const bench::workload tried{"tried", "things", {1}, {1}, [=](long) { return rules; }};
    return bench::run_program(2, arguments, {tried});
}

TEST(BenchHarness, ResultsThatDifferAreADisagreement) {
    EXPECT_EQ(1u, disagreements(between(telling("ours", 1.0), telling("peer", 1.1))).size());
}

TEST(BenchHarness, ResultsWithinTheWiderToleranceAgree) {
    EXPECT_TRUE(disagreements(between(telling("ours", 1.0, 0.2), telling("peer", 1.1))).empty());
    EXPECT_TRUE(disagreements(between(telling("ours", 1.0), telling("peer", 1.1, 0.2))).empty());
}

TEST(BenchHarness, AResultThatIsNotANumberIsADisagreement) {
    EXPECT_FALSE(
        disagreements(between(telling("ours", 1.0), telling("peer", std::nan(""), 0.5))).empty());
}

TEST(BenchHarness, AFactThatThePeerAloneTellsIsADisagreement) {
    bench::contestant ours = bench::make_contestant(
        "ours", [] { return 0; }, [](int&) {}, [](int&) { return std::vector<bench::fact>(); });
    EXPECT_FALSE(disagreements(between(ours, telling("peer", 1.0))).empty());
}

TEST(BenchHarness, AResultThatAFormulaRefutesIsADisagreement) {
    bench::contest rules = between(telling("ours", 1.0), bench::absent("peer"));
    rules.expected = {{"volume", 2.0, 0.1}};
    EXPECT_FALSE(disagreements(rules).empty());
}

TEST(BenchHarness, AnAbsentPeerIsLeftOut) {
    const bench::measurement made =
        bench::measure(between(telling("ours", 1.0), bench::absent("peer")), two_rounds,
                       bench::clock_kind::processor);
    EXPECT_EQ(1u, made.costs.size());
    EXPECT_EQ(2, made.rounds);
    EXPECT_TRUE(made.disagreements.empty());
}

TEST(BenchHarness, ADisagreementFailsTheProgram) {
    EXPECT_NE(0, status_of(between(telling("ours", 1.0), telling("peer", 2.0))));
}

TEST(BenchHarness, AMissedGoalDoesNotFailTheProgram) {
    bench::contest rules = between(telling("ours", 1.0), telling("peer", 1.0));
    rules.goal = 1e-12;
    EXPECT_EQ(0, status_of(rules));
}

TEST(BenchHarness, ARunThatEndsTheProcessFailsTheProgram) {
    const bench::contestant ending = bench::make_contestant(
        "ours", [] { return 0; }, [](int&) { std::_Exit(3); },
        [](int&) { return std::vector<bench::fact>(); });
    EXPECT_NE(0, status_of(between(ending, bench::absent("peer"))));
}

TEST(BenchHarness, GrowthIsTheExponentOfTheSize) {
    EXPECT_NEAR(2.0, bench::growth_exponent({10, 20, 40}, {1.0, 4.0, 16.0}), 1e-9);
    EXPECT_NEAR(0.0, bench::growth_exponent({10, 20, 40}, {3.0, 3.0, 3.0}), 1e-9);
}

TEST(BenchHarness, PeakMemoryIsThatOfTheWorkEvenWhenItIsReleased) {
    constexpr std::size_t bytes = 64u << 20;
    const double mebibytes = bench::peak_mebibytes([] {
        std::vector<char> memory(bytes);
        volatile char* const pages = memory.data(); // the compiler must not leave them out
        for (std::size_t i = 0; i < bytes; i += 1024) {
            pages[i] = 1;
        }
    });
    EXPECT_GT(mebibytes, 60.0);
    EXPECT_LT(mebibytes, 90.0);
}

} // namespace
