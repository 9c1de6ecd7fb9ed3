#include <gtest/gtest.h>

#include <random>
#include <set>
#include <utility>

#include <ox/solid/internal/csg/exact/box_pairs.h>

#include <tests/reference/plain_dice.h>

namespace {

using namespace ox::internal::csg::exact;
using pair_set = std::multiset<std::pair<int, int>>;

/// Boxes with corners of so many values along each axis.
std::vector<bounds> random_boxes(unsigned int seed, int count, const std::array<int, 3>& values) {
    std::mt19937 engine(seed);
    std::vector<bounds> boxes;
    for (int i = 0; i < count; ++i) {
        boxes.push_back(empty_bounds());
        for (int corner = 0; corner < 2; ++corner) {
            std::array<double, 3> point{};
            for (std::size_t axis = 0; axis < 3; ++axis) {
                point[axis] = reference::plain_dice(engine, 0, values[axis] - 1);
            }
            enlarge(boxes.back(), point);
        }
    }
    return boxes;
}

pair_set visited_pairs(const std::vector<bounds>& boxes) {
    const ox::internal::csg::progress_report nobody;
    progress_poll poll(nobody);
    pair_set pairs;
    visit_overlapping_pairs(boxes, poll, [&](int a, int b) { pairs.insert(std::minmax(a, b)); });
    return pairs;
}

pair_set plain_pairs(const std::vector<bounds>& boxes) {
    pair_set pairs;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        for (std::size_t j = i + 1; j < boxes.size(); ++j) {
            bool overlaps = true;
            for (std::size_t axis = 0; axis < 3; ++axis) {
                overlaps = overlaps && boxes[i].low[axis] <= boxes[j].high[axis] &&
                           boxes[j].low[axis] <= boxes[i].high[axis];
            }
            if (overlaps) {
                pairs.emplace(static_cast<int>(i), static_cast<int>(j));
            }
        }
    }
    return pairs;
}

TEST(CsgBoxPairs, EveryPairThatOverlapsOrTouchesIsVisitedOnce) {
    for (const int count : {0, 1, 2, 30, 60, 300, 900}) {
        for (const std::array<int, 3>& values :
             {std::array<int, 3>{5, 5, 5}, {1000, 1000, 1000}, {1000, 2, 50}, {1, 40, 3000}}) {
            const std::vector<bounds> boxes =
                random_boxes(static_cast<unsigned int>(count), count, values);
            EXPECT_EQ(visited_pairs(boxes), plain_pairs(boxes)) << count;
        }
    }
}

TEST(CsgBoxPairs, BoxesThatAreAllTheSameAreVisitedPairByPair) {
    const std::vector<bounds> boxes(100, bounds{{0.0, 0.0, 0.0}, {1.0, 0.0, 2.0}});
    EXPECT_EQ(visited_pairs(boxes).size(), 100u * 99u / 2u);
}

TEST(CsgBoxPairs, LongBoxesThatCrossShortOnesCostNoMoreThanTheirPairs) {
    std::vector<bounds> boxes;
    for (int i = 0; i < 2000; ++i) {
        boxes.push_back({{0.0, 3.0 * i, 0.0}, {6000.0, 3.0 * i + 1.0, 1.0}});
        boxes.push_back({{3.0 * i, 0.0, 5.0}, {3.0 * i + 1.0, 6000.0, 6.0}});
    }
    EXPECT_TRUE(visited_pairs(boxes).empty());
}

} // namespace
