#include <ox/solid/internal/csg/exact/box_pairs.h>

#include <algorithm>
#include <limits>
#include <numeric>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

namespace {

/// So few boxes are compared directly faster than they are divided.
constexpr std::size_t direct_count = 24;

constexpr double infinity = std::numeric_limits<double>::infinity();

/// A lower end: ties are broken by the number of the box, so no two are equal.
struct lower_end {
    double value;
    int box;

    friend bool operator<(const lower_end& a, const lower_end& b) {
        return a.value != b.value ? a.value < b.value : a.box < b.box;
    }
};

/// One walk of the tree.
class pair_search {
public:
    pair_search(const std::vector<bounds>& all_boxes, const pair_visitor& visitor)
        : boxes(all_boxes), visit(visitor) {}

    /// Visits the pairs that overlap along an axis and those before it, of a box of each list.
    void enter(std::vector<int> intervals, std::vector<int> points, int axis);

private:
    lower_end low_of(int box, int axis) const { return {item(item(boxes, box).low, axis), box}; }
    /// An upper end is behind every lower end of its value: boxes are closed.
    lower_end high_of(int box, int axis) const {
        return {item(item(boxes, box).high, axis), std::numeric_limits<int>::max()};
    }
    /// True if the interval of one box holds the lower end of another.
    bool holds(int interval, int point, int axis) const {
        return low_of(interval, axis) < low_of(point, axis) &&
               low_of(point, axis) < high_of(interval, axis);
    }
    bool overlaps_below(int a, int b, int axis) const;
    void compare_directly(const std::vector<int>& intervals, const std::vector<int>& points,
                          int axis);
    void search(std::vector<int>& intervals, std::vector<int>& points, lower_end low,
                lower_end high, int axis);
    void divide(std::vector<int>& intervals, std::vector<int>& points, lower_end low,
                lower_end high, int axis);

    const std::vector<bounds>& boxes;
    const pair_visitor& visit;
};

/// True if two boxes overlap along the axes before the given one.
bool pair_search::overlaps_below(int a, int b, int axis) const {
    for (int other = 0; other < axis; ++other) {
        if (item(item(boxes, a).low, other) > item(item(boxes, b).high, other) ||
            item(item(boxes, b).low, other) > item(item(boxes, a).high, other)) {
            return false;
        }
    }
    return true;
}

/// Both kinds in the order of their lower ends: each interval meets the points behind its lower
/// end until its upper end.
void pair_search::compare_directly(const std::vector<int>& intervals,
                                   const std::vector<int>& points, int axis) {
    std::size_t first = 0;
    for (const int interval : intervals) {
        while (first < points.size() && !(low_of(interval, axis) < low_of(points[first], axis))) {
            ++first;
        }
        for (std::size_t i = first;
             i < points.size() && low_of(points[i], axis) < high_of(interval, axis); ++i) {
            if (overlaps_below(interval, points[i], axis)) {
                visit(interval, points[i]);
            }
        }
    }
}

void pair_search::enter(std::vector<int> intervals, std::vector<int> points, int axis) {
    const auto is_lower = [&](int a, int b) { return low_of(a, axis) < low_of(b, axis); };
    std::sort(intervals.begin(), intervals.end(), is_lower);
    std::sort(points.begin(), points.end(), is_lower);
    search(intervals, points, {-infinity, -1}, {infinity, std::numeric_limits<int>::max()}, axis);
}

/// Visits the pairs of an interval and a point in it. All points lie from `low` on, before `high`,
/// and every interval reaches into that span. Both lists are in the order of their lower ends.
void pair_search::search(std::vector<int>& intervals, std::vector<int>& points, lower_end low,
                         lower_end high, int axis) {
    if (intervals.empty() || points.empty()) {
        return;
    }
    if (axis == 0 || std::min(intervals.size(), points.size()) <= direct_count) {
        compare_directly(intervals, points, axis);
        return;
    }
    std::vector<int> spanning;
    std::vector<int> partial;
    for (const int box : intervals) {
        const bool spans = low_of(box, axis) < low && !(high_of(box, axis) < high);
        (spans ? spanning : partial).push_back(box);
    }
    std::vector<int>().swap(intervals);
    if (!spanning.empty()) {
        enter(spanning, points, axis - 1);
        enter(points, spanning, axis - 1);
    }
    divide(partial, points, low, high, axis);
}

/// Continues in the two halves of the points.
void pair_search::divide(std::vector<int>& intervals, std::vector<int>& points, lower_end low,
                         lower_end high, int axis) {
    const auto half = points.begin() + static_cast<std::ptrdiff_t>(points.size() / 2);
    const lower_end middle = low_of(*half, axis);
    std::vector<int> right_points(half, points.end());
    points.erase(half, points.end());
    std::vector<int> left;
    std::vector<int> right;
    for (const int box : intervals) {
        if (low_of(box, axis) < middle) {
            left.push_back(box);
        }
        if (middle < high_of(box, axis)) {
            right.push_back(box);
        }
    }
    std::vector<int>().swap(intervals);
    search(left, points, low, middle, axis);
    search(right, right_points, middle, high, axis);
}

} // namespace

bounds empty_bounds() {
    return {{infinity, infinity, infinity}, {-infinity, -infinity, -infinity}};
}

void enlarge(bounds& box, const std::array<double, 3>& point) {
    for (std::size_t axis = 0; axis < 3; ++axis) {
        box.low[axis] = std::min(box.low[axis], point[axis]);
        box.high[axis] = std::max(box.high[axis], point[axis]);
    }
}

void visit_overlapping_pairs(const std::vector<bounds>& boxes, const pair_visitor& visit) {
    std::vector<int> all(boxes.size());
    std::iota(all.begin(), all.end(), 0);
    pair_search(boxes, visit).enter(all, all, 2);
}

} // namespace ox::internal::csg::exact
