// The neighbours of boxes: those that a comparison of all pairs finds.

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <ox/solid/internal/csg/box_tree.h>
#include <tests/support/generator.h>

namespace {

using ox::internal::csg::box_neighbours;
using ox::internal::csg::box_tree;
using ox::internal::csg::grid_box;

/// Boxes with whole corners of so few values that many touch each other only.
std::vector<grid_box> random_boxes(support::generator& random, int count, int extent) {
    std::vector<grid_box> boxes;
    for (int i = 0; i < count; ++i) {
        grid_box box;
        for (int corner = 0; corner < 2; ++corner) {
            const int x = random.between(0, extent);
            const int y = random.between(0, extent);
            const int z = random.between(0, extent);
            box.include(ox::internal::csg::grid_point{x, y, z});
        }
        boxes.push_back(box);
    }
    return boxes;
}

std::vector<int> meeting(const std::vector<grid_box>& boxes, int box) {
    std::vector<int> found;
    for (int other = 0; other < static_cast<int>(boxes.size()); ++other) {
        if (other != box &&
            boxes[static_cast<std::size_t>(other)].meets(boxes[static_cast<std::size_t>(box)])) {
            found.push_back(other);
        }
    }
    return found;
}

TEST(CsgBoxTree, NeighboursOfABoxAreAllThatMeetItInTheOrderOfTheirNumbers) {
    support::generator random(81);
    for (int i = 0; i < 200; ++i) {
        const std::vector<grid_box> boxes =
            random_boxes(random, random.between(1, 80), i % 2 == 0 ? 6 : 40);
        const box_neighbours neighbours(boxes);
        for (int box = 0; box < static_cast<int>(boxes.size()); ++box) {
            const std::vector<int> found(neighbours.begin_of(box), neighbours.end_of(box));
            ASSERT_EQ(found, meeting(boxes, box));
        }
    }
}

TEST(CsgBoxTree, EveryPairIsVisitedOnce) {
    support::generator random(82);
    for (int i = 0; i < 100; ++i) {
        const std::vector<grid_box> boxes = random_boxes(random, random.between(0, 80), 12);
        std::vector<std::pair<int, int>> visited;
        box_tree(boxes).visit_pairs([&](int a, int b) { visited.emplace_back(std::minmax(a, b)); });
        std::sort(visited.begin(), visited.end());
        std::vector<std::pair<int, int>> expected;
        for (int box = 0; box < static_cast<int>(boxes.size()); ++box) {
            for (const int other : meeting(boxes, box)) {
                if (box < other) {
                    expected.emplace_back(box, other);
                }
            }
        }
        ASSERT_EQ(visited, expected);
    }
}

} // namespace
