#include <ox/solid/internal/csg/box_tree.h>

#include <algorithm>

namespace ox::internal::csg {

namespace {

/// Boxes of a leaf: fewer cost more nodes than they save comparisons.
constexpr std::size_t leaf_size = 6;

/// The axis along which places reach farthest.
template <typename placed>
std::size_t longest_side(const placed* begin, const placed* end) {
    std::array<double, 3> low = begin->place;
    std::array<double, 3> high = begin->place;
    for (const placed* it = begin + 1; it != end; ++it) {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            low[axis] = std::min(low[axis], it->place[axis]);
            high[axis] = std::max(high[axis], it->place[axis]);
        }
    }
    std::size_t longest = 0;
    for (std::size_t axis = 1; axis < 3; ++axis) {
        if (high[axis] - low[axis] > high[longest] - low[longest]) {
            longest = axis;
        }
    }
    return longest;
}

} // namespace

void grid_box::include(const grid_point& point) {
    const std::array<double, 3> place = {static_cast<double>(point.x), static_cast<double>(point.y),
                                         static_cast<double>(point.z)};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        low[axis] = std::min(low[axis], place[axis]);
        high[axis] = std::max(high[axis], place[axis]);
    }
}

void grid_box::include(const grid_box& other) {
    for (std::size_t axis = 0; axis < 3; ++axis) {
        low[axis] = std::min(low[axis], other.low[axis]);
        high[axis] = std::max(high[axis], other.high[axis]);
    }
}

void grid_box::grow(double margin) {
    for (std::size_t axis = 0; axis < 3; ++axis) {
        low[axis] -= margin;
        high[axis] += margin;
    }
}

box_tree::box_tree(const std::vector<grid_box>& boxes) {
    if (boxes.empty()) {
        return;
    }
    std::vector<box_middle> middles(boxes.size());
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            middles[i].place[axis] = boxes[i].low[axis] + boxes[i].high[axis];
        }
        middles[i].index = static_cast<int>(i);
    }
    sorted.reserve(boxes.size());
    nodes.reserve(boxes.size());
    nodes.resize(1);
    build(boxes, middles, 0, 0, boxes.size());
}

/// Fills a leaf whose range of the sorted boxes comes next.
void box_tree::make_leaf(const std::vector<grid_box>& boxes, const std::vector<box_middle>& middles,
                         node& leaf) {
    for (std::size_t i = leaf.first; i < leaf.first + leaf.count; ++i) {
        const grid_box& box = boxes[static_cast<std::size_t>(middles[i].index)];
        leaf.bounds.include(box);
        sorted.push_back({box, middles[i].index});
    }
}

void box_tree::build(const std::vector<grid_box>& boxes, std::vector<box_middle>& middles,
                     std::size_t place, std::size_t begin, std::size_t end) {
    if (end - begin <= leaf_size) {
        nodes[place] = {{}, begin, end - begin};
        make_leaf(boxes, middles, nodes[place]);
        return;
    }
    const std::size_t axis = longest_side(middles.data() + begin, middles.data() + end);
    const std::size_t middle = begin + (end - begin) / 2;
    std::nth_element(middles.data() + begin, middles.data() + middle, middles.data() + end,
                     [axis](const auto& a, const auto& b) {
                         return a.place[axis] != b.place[axis] ? a.place[axis] < b.place[axis]
                                                               : a.index < b.index;
                     });
    const std::size_t halves = nodes.size();
    nodes.resize(halves + 2);
    build(boxes, middles, halves, begin, middle);
    build(boxes, middles, halves + 1, middle, end);
    grid_box bounds = nodes[halves].bounds;
    bounds.include(nodes[halves + 1].bounds);
    nodes[place] = {bounds, halves, 0};
}

} // namespace ox::internal::csg
