// Objects of their own on threads of their own: the same bits on one thread and on eight.

#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <tests/solid/csg/judged_results.h>
#include <tests/solid/csg/shapes.h>
#include <tests/solid/solid_lists.h>

namespace {

using ox::ox_csg;
using ox::ox_solid;

/// The results of a few random combinations.
std::vector<ox_solid> compute_some() {
    support::generator random(95);
    std::vector<ox_solid> results;
    for (int i = 0; i < 5; ++i) {
        ox_csg csg;
        csg.unites(csg_test::random_solid(random));
        csg.unites(csg_test::random_solid(random));
        csg.substracts(csg_test::random_solid(random));
        EXPECT_TRUE(csg.compute());
        results.push_back(csg.get_solid());
    }
    return results;
}

TEST(CsgThreads, EightThreadsAtOnceGiveTheBitsOfOne) {
    const std::vector<ox_solid> expected = compute_some();
    std::vector<std::vector<ox_solid>> results(8);
    std::vector<std::thread> threads;
    for (std::vector<ox_solid>& result : results) {
        threads.emplace_back([&result] { result = compute_some(); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const std::vector<ox_solid>& result : results) {
        for (std::size_t i = 0; i < expected.size(); ++i) {
            ox_test::expect_same_storage(result[i], expected[i]);
        }
    }
}

TEST(CsgThreads, OneObjectComputedOnAnotherThreadGivesTheSameBits) {
    support::generator random(96);
    ox_csg csg;
    csg.unites(csg_test::random_solid(random));
    csg.substracts(csg_test::random_solid(random));
    ox_csg copy = csg;
    ASSERT_TRUE(csg.compute());
    std::thread([&copy] { EXPECT_TRUE(copy.compute()); }).join();
    ox_test::expect_same_storage(copy.get_solid(), csg.get_solid());
}

} // namespace
