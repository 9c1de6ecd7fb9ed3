#include <ox/solid/internal/csg/box_tree.h>

#include <algorithm>
#include <numeric>

namespace ox::internal::csg {

namespace {

/// Boxes of a leaf: fewer cost more nodes than they save comparisons.
constexpr std::ptrdiff_t leaf_size = 6;

} // namespace

void grid_box::include(const grid_point& point) {
    const std::array<double, 3> place = {static_cast<double>(point.x), static_cast<double>(point.y),
                                         static_cast<double>(point.z)};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        low[axis] = std::min(low[axis], place[axis]);
        high[axis] = std::max(high[axis], place[axis]);
    }
}

void grid_box::include(const grid_box& box) {
    for (std::size_t axis = 0; axis < 3; ++axis) {
        low[axis] = std::min(low[axis], box.low[axis]);
        high[axis] = std::max(high[axis], box.high[axis]);
    }
}

void grid_box::grow(double margin) {
    for (std::size_t axis = 0; axis < 3; ++axis) {
        low[axis] -= margin;
        high[axis] += margin;
    }
}

box_tree::box_tree(const std::vector<grid_box>& boxes) {
    std::vector<box_middle> middles;
    middles.reserve(boxes.size());
    for (const grid_box& box : boxes) {
        middles.push_back(
            {{box.low[0] + box.high[0], box.low[1] + box.high[1], box.low[2] + box.high[2]},
             static_cast<int>(middles.size())});
    }
    if (!boxes.empty()) {
        nodes.reserve(boxes.size());
        sorted.reserve(boxes.size());
        nodes.resize(1);
        build(0, boxes, middles.data(), middles.data() + middles.size());
    }
}

std::size_t box_tree::longest_side(const box_middle* begin, const box_middle* end) {
    std::array<double, 3> low = begin->place;
    std::array<double, 3> high = begin->place;
    for (const box_middle* middle = begin + 1; middle != end; ++middle) {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            low[axis] = std::min(low[axis], middle->place[axis]);
            high[axis] = std::max(high[axis], middle->place[axis]);
        }
    }
    std::size_t longest = 0;
    for (std::size_t axis = 1; axis < 3; ++axis) {
        longest = high[axis] - low[axis] > high[longest] - low[longest] ? axis : longest;
    }
    return longest;
}

/// Appends the boxes of a leaf, in the order of their indices: that of the halves within depends on
/// the library that halved them.
void box_tree::make_leaf(std::size_t place, const std::vector<grid_box>& boxes, box_middle* begin,
                         box_middle* end) {
    std::sort(begin, end,
              [](const box_middle& a, const box_middle& b) { return a.index < b.index; });
    grid_box bounds;
    const std::size_t first = sorted.size();
    for (const box_middle* middle = begin; middle != end; ++middle) {
        const grid_box& box = boxes[static_cast<std::size_t>(middle->index)];
        bounds.include(box);
        sorted.push_back({box, middle->index});
    }
    nodes[place] = {bounds, first, sorted.size() - first};
}

void box_tree::build(std::size_t place, const std::vector<grid_box>& boxes, box_middle* begin,
                     box_middle* end) {
    const std::ptrdiff_t count = end - begin;
    if (count <= leaf_size) {
        make_leaf(place, boxes, begin, end);
        return;
    }
    const std::size_t axis = longest_side(begin, end);
    box_middle* const middle = begin + count / 2;
    std::nth_element(begin, middle, end, [axis](const box_middle& a, const box_middle& b) {
        return a.place[axis] != b.place[axis] ? a.place[axis] < b.place[axis] : a.index < b.index;
    });
    const std::size_t halves = nodes.size();
    nodes.resize(halves + 2);
    build(halves, boxes, begin, middle);
    build(halves + 1, boxes, middle, end);
    grid_box bounds = nodes[halves].bounds;
    bounds.include(nodes[halves + 1].bounds);
    nodes[place] = {bounds, halves, 0};
}

box_neighbours::box_neighbours(const std::vector<grid_box>& boxes) : first(boxes.size() + 1, 0) {
    std::vector<std::array<int, 2>> pairs;
    box_tree(boxes).visit_pairs([&](int a, int b) {
        pairs.push_back({a, b});
        ++first[static_cast<std::size_t>(a) + 1];
        ++first[static_cast<std::size_t>(b) + 1];
    });
    std::partial_sum(first.begin(), first.end(), first.begin());
    listed.resize(2 * pairs.size());
    std::vector<std::size_t> next(first.begin(), first.end() - 1);
    for (const std::array<int, 2>& pair : pairs) {
        listed[next[static_cast<std::size_t>(pair[0])]++] = pair[1];
        listed[next[static_cast<std::size_t>(pair[1])]++] = pair[0];
    }
    for (std::size_t box = 0; box < boxes.size(); ++box) {
        std::sort(listed.data() + first[box], listed.data() + first[box + 1]);
    }
}

} // namespace ox::internal::csg
