#include <ox/solid/internal/csg/box_tree.h>

#include <algorithm>

namespace ox::internal::csg {

namespace {

/// Boxes of a leaf: fewer cost more nodes than they save comparisons.
constexpr std::size_t leaf_size = 6;

} // namespace

void grid_box::include(const grid_point& point) {
    const std::array<double, 3> place = {static_cast<double>(point.x), static_cast<double>(point.y),
                                         static_cast<double>(point.z)};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        low[axis] = std::min(low[axis], place[axis]);
        high[axis] = std::max(high[axis], place[axis]);
    }
}

void grid_box::grow(double margin) {
    for (std::size_t axis = 0; axis < 3; ++axis) {
        low[axis] -= margin;
        high[axis] += margin;
    }
}

box_tree::box_tree(const std::vector<grid_box>& boxes) {
    sorted.reserve(boxes.size());
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        sorted.push_back({boxes[i], static_cast<int>(i)});
    }
    if (!sorted.empty()) {
        nodes.resize(1);
        build(0, 0, sorted.size());
    }
}

int box_tree::longest_side(std::size_t begin, std::size_t end) const {
    int longest = 0;
    double length = -1.0;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        double low = 1e300;
        double high = -1e300;
        for (std::size_t i = begin; i < end; ++i) {
            const double middle = sorted[i].box.low[axis] + sorted[i].box.high[axis];
            low = std::min(low, middle);
            high = std::max(high, middle);
        }
        if (high - low > length) {
            length = high - low;
            longest = static_cast<int>(axis);
        }
    }
    return longest;
}

void box_tree::build(std::size_t place, std::size_t begin, std::size_t end) {
    grid_box bounds;
    for (std::size_t i = begin; i < end; ++i) {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            bounds.low[axis] = std::min(bounds.low[axis], sorted[i].box.low[axis]);
            bounds.high[axis] = std::max(bounds.high[axis], sorted[i].box.high[axis]);
        }
    }
    if (end - begin <= leaf_size) {
        nodes[place] = {bounds, begin, end - begin};
        return;
    }
    const auto axis = static_cast<std::size_t>(longest_side(begin, end));
    const std::size_t middle = begin + (end - begin) / 2;
    const auto at = [this](std::size_t i) {
        return sorted.begin() + static_cast<std::ptrdiff_t>(i);
    };
    std::nth_element(at(begin), at(middle), at(end), [axis](const leaf_box& a, const leaf_box& b) {
        const double a_middle = a.box.low[axis] + a.box.high[axis];
        const double b_middle = b.box.low[axis] + b.box.high[axis];
        return a_middle != b_middle ? a_middle < b_middle : a.index < b.index;
    });
    const std::size_t halves = nodes.size();
    nodes.resize(halves + 2);
    nodes[place] = {bounds, halves, 0};
    build(halves, begin, middle);
    build(halves + 1, middle, end);
}

} // namespace ox::internal::csg
