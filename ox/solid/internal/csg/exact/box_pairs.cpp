#include <ox/solid/internal/csg/exact/box_pairs.h>

#include <algorithm>
#include <limits>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

namespace {

/// So few boxes are compared directly faster than they are divided.
constexpr std::size_t direct_count = 32;

constexpr double infinity = std::numeric_limits<double>::infinity();

constexpr int behind_all = std::numeric_limits<int>::max();

/// A place along an axis: ties are broken by the number of the box, so no two lower ends are equal.
struct place {
    double value;
    int box;

    friend bool operator<(const place& a, const place& b) {
        return a.value != b.value ? a.value < b.value : a.box < b.box;
    }
};

/// The extent of a box along the axis that is searched.
struct extent {
    double low;
    double high;
    int box;

    place lower_end() const { return {low, box}; }

    /// Behind every lower end of its value: boxes are closed.
    place upper_end() const { return {high, behind_all}; }
};

using extent_list = std::vector<extent>;

bool is_lower(const extent& a, const extent& b) {
    return a.lower_end() < b.lower_end();
}

/// One walk of the tree.
class pair_search {
public:
    pair_search(const std::vector<bounds>& all_boxes, progress_poll& steps,
                const pair_visitor& visitor);

    void search_all();

private:
    double low(int box, int axis) const { return item(item(boxes, box).low, item(axes, axis)); }
    double high(int box, int axis) const { return item(item(boxes, box).high, item(axes, axis)); }
    bool overlaps_below(int a, int b, int axis) const;
    extent_list sorted(const extent_list& list, int axis) const;
    void compare_directly(const extent_list& intervals, const extent_list& points, int axis);
    void search(extent_list& intervals, extent_list& points, place from, place to, int axis);
    void search_below(const extent_list& spanning, const extent_list& points, int axis);
    void divide(extent_list& intervals, extent_list& points, place from, place to, int axis);

    const std::vector<bounds>& boxes;
    progress_poll& poll;
    const pair_visitor& visit;
    /// The axes; the last one, along which the boxes are divided first, separates them best.
    std::array<int, 3> axes = {0, 1, 2};
};

/// Along each axis the extents of the boxes against the extent of all tell how many boxes one
/// overlaps.
pair_search::pair_search(const std::vector<bounds>& all_boxes, progress_poll& steps,
                         const pair_visitor& visitor)
    : boxes(all_boxes), poll(steps), visit(visitor) {
    std::array<double, 3> overlap{};
    bounds whole = empty_bounds();
    for (const bounds& box : boxes) {
        enlarge(whole, box.low);
        enlarge(whole, box.high);
    }
    for (const bounds& box : boxes) {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            const double size = whole.high[axis] - whole.low[axis];
            overlap[axis] += size > 0.0 ? (box.high[axis] - box.low[axis]) / size : 1.0;
        }
    }
    std::stable_sort(axes.begin(), axes.end(),
                     [&](int a, int b) { return item(overlap, a) > item(overlap, b); });
}

void pair_search::search_all() {
    extent_list all;
    all.reserve(boxes.size());
    for (int box = 0; box < count_of(boxes); ++box) {
        all.push_back({0.0, 0.0, box});
    }
    extent_list intervals = sorted(all, 2);
    extent_list points = intervals;
    search(intervals, points, {-infinity, -1}, {infinity, behind_all}, 2);
}

/// The extents of the same boxes along an axis, in the order of their lower ends.
extent_list pair_search::sorted(const extent_list& list, int axis) const {
    extent_list result;
    result.reserve(list.size());
    for (const extent& entry : list) {
        result.push_back({low(entry.box, axis), high(entry.box, axis), entry.box});
    }
    std::sort(result.begin(), result.end(), is_lower);
    return result;
}

/// True if two boxes overlap along the axes before the given one.
bool pair_search::overlaps_below(int a, int b, int axis) const {
    for (int other = 0; other < axis; ++other) {
        if (low(a, other) > high(b, other) || low(b, other) > high(a, other)) {
            return false;
        }
    }
    return true;
}

/// Each interval meets the points from its lower end to its upper end.
void pair_search::compare_directly(const extent_list& intervals, const extent_list& points,
                                   int axis) {
    std::size_t first = 0;
    for (const extent& interval : intervals) {
        while (first < points.size() && !is_lower(interval, points[first])) {
            ++first;
        }
        for (std::size_t i = first; i < points.size() && points[i].low <= interval.high; ++i) {
            if (overlaps_below(interval.box, points[i].box, axis)) {
                poll.step();
                visit(interval.box, points[i].box);
            }
        }
    }
}

/// Visits the pairs of an interval and a point in it that overlap along the axes before as well.
/// All points lie from one place on, before another, and every interval reaches into that span.
/// Both lists are in the order of their lower ends.
void pair_search::search(extent_list& intervals, extent_list& points, place from, place to,
                         int axis) {
    if (intervals.empty() || points.empty()) {
        return;
    }
    poll.step();
    if (axis == 0 || std::min(intervals.size(), points.size()) <= direct_count) {
        compare_directly(intervals, points, axis);
        return;
    }
    extent_list spanning;
    extent_list partial;
    for (const extent& interval : intervals) {
        const bool spans = interval.lower_end() < from && !(interval.upper_end() < to);
        (spans ? spanning : partial).push_back(interval);
    }
    extent_list().swap(intervals);
    if (!spanning.empty()) {
        search_below(spanning, points, axis - 1);
    }
    divide(partial, points, from, to, axis);
}

/// Every interval holds every point: what remains are the axes below, where each may hold the
/// other.
void pair_search::search_below(const extent_list& spanning, const extent_list& points, int axis) {
    extent_list first = sorted(spanning, axis);
    extent_list second = sorted(points, axis);
    extent_list first_as_points = first;
    extent_list second_as_points = second;
    search(first, second_as_points, {-infinity, -1}, {infinity, behind_all}, axis);
    search(second, first_as_points, {-infinity, -1}, {infinity, behind_all}, axis);
}

/// Continues in the two halves of the points.
void pair_search::divide(extent_list& intervals, extent_list& points, place from, place to,
                         int axis) {
    const auto half = points.begin() + static_cast<std::ptrdiff_t>(points.size() / 2);
    const place middle = half->lower_end();
    extent_list right_points(half, points.end());
    points.erase(half, points.end());
    extent_list left;
    extent_list right;
    for (const extent& interval : intervals) {
        if (interval.lower_end() < middle) {
            left.push_back(interval);
        }
        if (middle < interval.upper_end()) {
            right.push_back(interval);
        }
    }
    extent_list().swap(intervals);
    search(left, points, from, middle, axis);
    search(right, right_points, middle, to, axis);
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

void visit_overlapping_pairs(const std::vector<bounds>& boxes, progress_poll& poll,
                             const pair_visitor& visit) {
    pair_search(boxes, poll, visit).search_all();
}

} // namespace ox::internal::csg::exact
