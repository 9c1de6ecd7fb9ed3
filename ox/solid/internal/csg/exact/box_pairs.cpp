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

/// A part of the list of extents, in the order of their lower ends.
struct extent_range {
    std::size_t first;
    std::size_t end;

    std::size_t size() const { return end - first; }
};

bool is_lower(const extent& a, const extent& b) {
    return a.lower_end() < b.lower_end();
}

/// One walk of the tree. The lists that are still to be searched lie behind each other in one list;
/// the last ones are searched first, and are gone when they are.
class pair_search {
public:
    pair_search(const std::vector<bounds>& all_boxes, progress_poll& steps,
                const pair_visitor& visitor);

    void search_all();

private:
    double low(int box, int axis) const { return item(item(boxes, box).low, item(axes, axis)); }
    double high(int box, int axis) const { return item(item(boxes, box).high, item(axes, axis)); }
    bool overlaps_below(int a, int b, int axis) const;
    extent_range append_sorted(extent_range list, int axis);
    template <typename Predicate>
    extent_range append_where(extent_range list, Predicate predicate);
    template <typename Predicate>
    extent_range keep_where(extent_range list, Predicate predicate);
    extent_range append_copy(extent_range list);
    void remove_from(std::size_t first) { extents.resize(first); }
    void compare_directly(extent_range intervals, extent_range points, int axis);
    void search(extent_range intervals, extent_range points, place from, place to, int axis);
    void search_below(extent_range spanning, extent_range points, int axis);
    void divide(extent_range intervals, extent_range points, place from, place to, int axis);

    const std::vector<bounds>& boxes;
    progress_poll& poll;
    const pair_visitor& visit;
    std::vector<extent> extents;
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
    extents.reserve(4 * boxes.size());
    for (int box = 0; box < count_of(boxes); ++box) {
        extents.push_back({0.0, 0.0, box});
    }
    const extent_range all = append_sorted({0, extents.size()}, 2);
    search(append_copy(all), all, {-infinity, -1}, {infinity, behind_all}, 2);
}

/// Appends the extents of the same boxes along an axis, in the order of their lower ends.
extent_range pair_search::append_sorted(extent_range list, int axis) {
    const std::size_t first = extents.size();
    for (std::size_t i = list.first; i < list.end; ++i) {
        const int box = extents[i].box;
        extents.push_back({low(box, axis), high(box, axis), box});
    }
    std::sort(extents.begin() + static_cast<std::ptrdiff_t>(first), extents.end(), is_lower);
    return {first, extents.size()};
}

/// Appends the extents for which the predicate holds.
template <typename Predicate>
extent_range pair_search::append_where(extent_range list, Predicate predicate) {
    const std::size_t first = extents.size();
    for (std::size_t i = list.first; i < list.end; ++i) {
        const extent candidate = extents[i];
        if (predicate(candidate)) {
            extents.push_back(candidate);
        }
    }
    return {first, extents.size()};
}

/// Removes the other extents from a list; what is behind it follows.
template <typename Predicate>
extent_range pair_search::keep_where(extent_range list, Predicate predicate) {
    const auto at = [&](std::size_t i) { return extents.begin() + static_cast<std::ptrdiff_t>(i); };
    const auto gap = std::remove_if(at(list.first), at(list.end),
                                    [&](const extent& candidate) { return !predicate(candidate); });
    const auto kept_end = static_cast<std::size_t>(gap - extents.begin());
    extents.erase(gap, at(list.end));
    return {list.first, kept_end};
}

extent_range pair_search::append_copy(extent_range list) {
    return append_where(list, [](const extent&) { return true; });
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
void pair_search::compare_directly(extent_range intervals, extent_range points, int axis) {
    std::size_t first = points.first;
    for (std::size_t k = intervals.first; k < intervals.end; ++k) {
        const extent interval = extents[k];
        while (first < points.end && !is_lower(interval, extents[first])) {
            ++first;
        }
        for (std::size_t i = first; i < points.end && extents[i].low <= interval.high; ++i) {
            if (overlaps_below(interval.box, extents[i].box, axis)) {
                poll.step();
                visit(interval.box, extents[i].box);
            }
        }
    }
}

/// Visits the pairs of an interval and a point in it that overlap along the axes before as well.
/// All points lie from one place on, before another, and every interval reaches into that span.
/// The intervals are the last list, which is removed.
void pair_search::search(extent_range intervals, extent_range points, place from, place to,
                         int axis) {
    poll.step();
    if (axis == 0 || std::min(intervals.size(), points.size()) <= direct_count) {
        compare_directly(intervals, points, axis);
        remove_from(intervals.first);
        return;
    }
    const auto spans = [&](const extent& interval) {
        return interval.lower_end() < from && !(interval.upper_end() < to);
    };
    const extent_range spanning = append_where(intervals, spans);
    if (spanning.size() > 0) {
        search_below(spanning, points, axis - 1);
        remove_from(spanning.first);
        intervals = keep_where(intervals, [&](const extent& interval) { return !spans(interval); });
    }
    divide(intervals, points, from, to, axis);
}

/// Every interval holds every point: what remains are the axes below, where each may hold the
/// other.
void pair_search::search_below(extent_range spanning, extent_range points, int axis) {
    const extent_range first = append_sorted(spanning, axis);
    const extent_range second = append_sorted(points, axis);
    search(append_copy(first), second, {-infinity, -1}, {infinity, behind_all}, axis);
    search(append_copy(second), first, {-infinity, -1}, {infinity, behind_all}, axis);
    remove_from(first.first);
}

/// Continues in the two halves of the points; only the intervals of the second one are kept
/// meanwhile.
void pair_search::divide(extent_range intervals, extent_range points, place from, place to,
                         int axis) {
    const std::size_t half = points.first + points.size() / 2;
    const place middle = extents[half].lower_end();
    const std::size_t left_count = append_where(intervals, [&](const extent& interval) {
                                       return interval.lower_end() < middle;
                                   }).size();
    const extent_range right = keep_where(
        intervals, [&](const extent& interval) { return middle < interval.upper_end(); });
    search({right.end, right.end + left_count}, {points.first, half}, from, middle, axis);
    search(right, {half, points.end}, middle, to, axis);
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
