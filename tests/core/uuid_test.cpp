#include <algorithm>
#include <gtest/gtest.h>
#include <ox/ox_functions.h>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace {

/// The lowest four bits of the identifier's time.
int low_time_digit(const std::string& uuid) {
    return std::stoi(uuid.substr(0, 1), nullptr, 16);
}

TEST(OxUuid, HasTwentyFourCharactersOfWhichEverySecondIsZero) {
    const std::string uuid = ox_uuid();
    ASSERT_EQ(uuid.size(), 24u);
    for (std::size_t i = 0; i < uuid.size(); i += 2) {
        EXPECT_NE(std::string("0123456789ABCDEF").find(uuid[i]), std::string::npos);
        EXPECT_EQ(uuid[i + 1], '0');
    }
}

TEST(OxUuid, TimePartsOfIdentifiersOfOneSecondDifferByOne) {
    ox_uuid();
    std::string before = ox_uuid(); // runs ahead of the clock, if only by a second
    for (int i = 0; i < 100; ++i) {
        const std::string uuid = ox_uuid();
        EXPECT_NE(uuid, before);
        EXPECT_EQ(low_time_digit(uuid), (low_time_digit(before) + 1) % 16);
        before = uuid;
    }
}

TEST(OxUuid, ThreadsGetDifferentTimes) {
    constexpr std::size_t nb_threads = 4;
    constexpr std::size_t nb_calls = 250;
    std::vector<std::vector<std::string>> drawn(nb_threads);
    std::vector<std::thread> team;
    for (std::vector<std::string>& own : drawn) {
        team.emplace_back([&own] {
            for (std::size_t i = 0; i < nb_calls; ++i) {
                own.push_back(ox_uuid());
            }
        });
    }
    for (std::thread& member : team) {
        member.join();
    }
    std::set<std::string> all;
    for (const std::vector<std::string>& own : drawn) {
        all.insert(own.begin(), own.end());
    }
    EXPECT_EQ(all.size(), nb_threads * nb_calls);
}

} // namespace
