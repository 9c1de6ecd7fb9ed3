#include "fresh_process.h"

#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <memory>
#include <ox/core/ox_hash.h>
#include <ox/ox_functions.h>
#include <string>
#include <tests/support/generator.h>
#include <vector>

namespace {

using ox::ox_hash;
using ox::ox_list;

/// A key that counts how many nodes a descent meets, which shows the shape of the tree.
struct counted_key {
    int number = 0;
    static int comparisons;
    bool operator==(const counted_key& other) const {
        ++comparisons;
        return number == other.number;
    }
    bool operator<=(const counted_key& other) const { return number <= other.number; }
};
int counted_key::comparisons = 0;

int depth_of(const ox_hash<counted_key, int>& hash, int number) {
    counted_key::comparisons = 0;
    int value = 0;
    hash.get(counted_key{number}, value);
    return counted_key::comparisons;
}

template <typename T>
std::vector<T> items(const ox_list<T>& list) {
    return std::vector<T>(list.begin(), list.end());
}

ox_hash<counted_key, int> ascending(int n) {
    ox_hash<counted_key, int> hash;
    for (int i = 0; i < n; ++i) {
        hash.set(counted_key{i}, i);
    }
    return hash;
}

TEST(OxHash, InsertionOfTheThousandthAscendingKeyLeavesABalancedTreeWithRoot499) {
    EXPECT_EQ(depth_of(ascending(999), 998), 999);
    const auto hash = ascending(1000);
    EXPECT_EQ(depth_of(hash, 499), 1);
    EXPECT_EQ(depth_of(hash, 249), 2);
    EXPECT_EQ(depth_of(hash, 749), 2);
    for (int i = 0; i < 1000; ++i) {
        EXPECT_LE(depth_of(hash, i), 10);
    }
}

TEST(OxHash, SettingAnExistingKeyChangesItsValueAndKeepsTheCount) {
    ox_hash<int, int> hash;
    hash.set(3, 30);
    hash.set(3, 31);
    int value = 0;
    EXPECT_TRUE(hash.get(3, value));
    EXPECT_EQ(value, 31);
    EXPECT_EQ(hash.size(), 1u);
}

TEST(OxHash, RemovingFromAnEmptyTableDoesNothing) {
    ox_hash<int, int> hash;
    hash.remove(1);
    EXPECT_EQ(hash.size(), 0u);
    EXPECT_EQ(hash.get_keys().size(), 0);
}

TEST(OxHash, KeysOf5And1And3ComeOutAs1And3And5) {
    ox_hash<int, int> hash;
    hash.set(5, 0);
    hash.set(1, 0);
    hash.set(3, 0);
    EXPECT_EQ(items(hash.get_keys()), (std::vector<int>{1, 3, 5}));
}

TEST(OxHash, LookupOfAnAbsentKeyLeavesTheValueUntouched) {
    ox_hash<int, int> hash;
    hash.set(1, 10);
    int value = 77;
    EXPECT_FALSE(hash.get(2, value));
    EXPECT_EQ(value, 77);
}

TEST(OxHash, UpdateAtAMultipleOf1000RebuildsTheTree) {
    auto hash = ascending(1001);
    hash.remove(counted_key{0}); // 1000 entries: rebuilt, with root 1 + 499
    EXPECT_EQ(depth_of(hash, 500), 1);
    hash.set(counted_key{2000}, 0);
    hash.remove(counted_key{1});
    EXPECT_EQ(depth_of(hash, 501), 1);
    hash.set(counted_key{501}, 7);
    EXPECT_EQ(depth_of(hash, 501), 1);
}

TEST(OxHash, RemovingAnAbsentKeyAtAMultipleOf1000RebuildsTheTree) {
    auto hash = ascending(1001);
    hash.remove(counted_key{0});
    hash.set(counted_key{2000}, 0);
    hash.remove(counted_key{1}); // 1000 entries again: rebuilt, with root 2 + 499
    hash.remove(counted_key{5000});
    EXPECT_EQ(hash.size(), 1000u);
    EXPECT_EQ(depth_of(hash, 501), 1);
}

TEST(OxHash, QueueThatNeverMeetsAMultipleOf1000BecomesAChain) {
    auto hash = ascending(100);
    for (int i = 100; i < 700; ++i) {
        hash.set(counted_key{i}, i);
        hash.remove(counted_key{i - 100});
    }
    EXPECT_EQ(depth_of(hash, 699), 100);
}

TEST(OxHash, RemovedNodeIsReplacedByItsLeftSubtreeWithTheRightOneBelowItsGreatestKey) {
    ox_hash<counted_key, int> hash;
    for (const int key : {50, 20, 80, 10, 30, 70, 90}) {
        hash.set(counted_key{key}, key);
    }
    hash.remove(counted_key{50});
    EXPECT_EQ(depth_of(hash, 20), 1);
    EXPECT_EQ(depth_of(hash, 30), 2);
    EXPECT_EQ(depth_of(hash, 80), 3);
    hash.remove(counted_key{10});
    hash.remove(counted_key{20}); // no left child: the right one takes its place
    EXPECT_EQ(depth_of(hash, 30), 1);
}

TEST(OxHash, RebalancingAnEmptyTableOrOneEntryKeepsIt) {
    ox_hash<int, int> hash;
    hash.rebalance();
    hash.set(1, 2);
    hash.rebalance();
    EXPECT_EQ(items(hash.get_keys()), std::vector<int>{1});
}

TEST(OxHash, MovedFromTableIsEmptyAndSwapExchanges) {
    ox_hash<int, int> table;
    table.set(1, 10);
    ox_hash<int, int> taken(std::move(table));
    EXPECT_EQ(taken.size(), 1u);
    ox_hash<int, int> other;
    swap(taken, other);
    EXPECT_EQ(taken.size(), 0u);
    taken = std::move(other);
    int value = 0;
    EXPECT_TRUE(taken.get(1, value));
    EXPECT_EQ(value, 10);
}

TEST(OxHash, CopiesAreDeepAndKeepTheShape) {
    const auto original = ascending(500);
    ox_hash<counted_key, int> copy(original);
    EXPECT_EQ(depth_of(copy, 499), 500);
    copy.remove(counted_key{3});
    int value = 0;
    EXPECT_TRUE(original.get(counted_key{3}, value));
    copy = original;
    EXPECT_TRUE(copy.get(counted_key{3}, value));
    copy = *&copy;
    EXPECT_EQ(copy.size(), 500u);
}

TEST(OxHash, ClearedTableCanBeFilledAgain) {
    ox_hash<int, std::string> hash;
    hash.set(1, "one");
    hash.clear();
    EXPECT_EQ(hash.size(), 0u);
    hash.set(2, "two");
    std::string value;
    EXPECT_TRUE(hash.get(2, value));
    EXPECT_EQ(value, "two");
}

TEST(OxHash, AnEntryOfTheTableItselfMayBeTheArgument) {
    ox_hash<std::string, std::string> hash;
    hash.set("key", "value");
    const ox_list<std::string> keys = hash.get_keys();
    hash.set(keys[0], keys[0]);
    hash.remove(keys[0]);
    EXPECT_EQ(hash.size(), 0u);
}

// Every key that is not a number goes to the left, below the others, and none is found again.
TEST(OxHash, KeysThatAreNotNumbersAreAddedEachTimeAndNeverFound) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    ox_hash<float, int> hash;
    for (int i = 0; i < 999; ++i) {
        hash.set(nan, i);
    }
    int value = -1;
    EXPECT_EQ(hash.size(), 999u);
    EXPECT_FALSE(hash.get(nan, value));
    const ox_hash<float, int> copy(hash);
    EXPECT_EQ(copy.get_keys().size(), 999);
}

TEST(OxHash, AgreesWithTheStandardMapInRandomUse) {
    support::generator random(1);
    ox_hash<int, int> hash;
    std::map<int, int> plain;
    for (int i = 0; i < 60000; ++i) {
        const int key = random.between(0, 3000);
        if (random.one_in(3)) {
            hash.remove(key);
            plain.erase(key);
        } else {
            hash.set(key, i);
            plain[key] = i;
        }
        ASSERT_EQ(hash.size(), plain.size());
    }
    std::vector<int> keys;
    for (const auto& [key, expected] : plain) {
        int value = 0;
        ASSERT_TRUE(hash.get(key, value));
        ASSERT_EQ(value, expected);
        keys.push_back(key);
    }
    EXPECT_EQ(items(hash.get_keys()), keys);
}

TEST(OxHash, UnitaryTestHolds) {
    EXPECT_TRUE(ox_hash_unitary_test());
}

/// The line with its measured seconds, of six decimals, replaced by "s.ssssss".
std::string without_seconds(std::string line) {
    const std::size_t colon = line.find(" : ");
    const std::size_t end = line.find(" (", colon);
    const std::size_t point = line.find('.', colon);
    if (end == std::string::npos || point != end - 7 ||
        line.find_first_not_of("0123456789.", colon + 3) != end) {
        return line;
    }
    return line.replace(colon + 3, end - colon - 3, "s.ssssss");
}

TEST(OxHash, PerformanceTestLogsNineLinesAndNoError) {
    fresh_process::run([] {
        ox_hash_performance_test();
        const std::vector<std::string> expected = {"ox_list push right 100000 : s.ssssss (100000)",
                                                   "ox_list remove right 100000 : s.ssssss (0)",
                                                   "ox_hash push right 100000 : s.ssssss (100000)",
                                                   "ox_hash size 100000",
                                                   "ox_hash remove right 100000 : s.ssssss (0)",
                                                   "ox_list push left 100000 : s.ssssss (100000)",
                                                   "ox_list remove left 100000 : s.ssssss (0)",
                                                   "ox_hash push left 100000 : s.ssssss (100000)",
                                                   "ox_hash remove left 100000 : s.ssssss (0)"};
        std::ifstream file("ox_log.txt");
        std::string line;
        for (const std::string& wanted : expected) {
            EXPECT_TRUE(std::getline(file, line));
            EXPECT_EQ(without_seconds(line), wanted);
        }
        EXPECT_FALSE(std::getline(file, line));
    });
}

} // namespace
