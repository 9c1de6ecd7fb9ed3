#include <ox/polygon/internal/clipping/contour_folds.h>

#include <algorithm>

#include <ox/polygon/internal/clipping/grid_lines.h>
#include <ox/polygon/internal/tolerances.h>

namespace ox::internal {
namespace {

using ClipperLib::cInt;
using ClipperLib::IntPoint;

enum class fold_kind {
    none,
    steps_left, ///< the low corner lies to the left of the way to the high one
    steps_right
};

/// Of a fold and the corners around it, on the way up. None unless the order of the sides on both
/// of its levels is certain, rounded or not.
fold_kind kind_of(const IntPoint& before, const IntPoint& high, const IntPoint& low,
                  const IntPoint& after) {
    if (high.Y != low.Y + 1 || before.Y >= low.Y || after.Y <= high.Y) {
        return fold_kind::none;
    }
    const cInt leftwards = turn(difference(high, before), difference(low, high));
    const double to_the_side = x_at(low, after, high.Y) - static_cast<double>(high.X);
    if (leftwards > 0 && to_the_side < -rounding_clearance) {
        return fold_kind::steps_left;
    }
    return leftwards < 0 && to_the_side > rounding_clearance ? fold_kind::steps_right
                                                             : fold_kind::none;
}

/// Of the fold at corners `i` and `i + 1`, on the way from the lowest corner, which is the last
/// one, by the highest one and back.
fold_kind kind_of(const std::vector<IntPoint>& corners, std::size_t i, bool climbs) {
    if (i + 2 == corners.size()) {
        return fold_kind::none;
    }
    const IntPoint& before = i == 0 ? corners.back() : corners[i - 1];
    return climbs ? kind_of(before, corners[i], corners[i + 1], corners[i + 2])
                  : kind_of(corners[i + 2], corners[i + 1], corners[i], before);
}

} // namespace

std::size_t leave_out_folds(const std::vector<IntPoint>& corners, IntPoint* kept) {
    const auto is_lower = [](const IntPoint& a, const IntPoint& b) { return a.Y < b.Y; };
    const std::size_t size = corners.size();
    const std::size_t high = static_cast<std::size_t>(
        std::max_element(corners.begin(), corners.end(), is_lower) - corners.begin());
    std::size_t count = 0;
    for (std::size_t i = 0; i < size; ++i) {
        const bool climbs = i < high;
        const bool falls_back =
            i != high && i + 1 < size &&
            (climbs ? is_lower(corners[i + 1], corners[i]) : is_lower(corners[i], corners[i + 1]));
        if (!falls_back) {
            kept[count++] = corners[i];
            continue;
        }
        const fold_kind kind = kind_of(corners, i, climbs);
        if (kind == fold_kind::none) {
            return 0;
        }
        // On the way up the low corner comes second, and the inside lies to the left; on the way
        // down the high one, and it lies to the right.
        kept[count++] = corners[kind == fold_kind::steps_left ? i + 1 : i];
        ++i;
    }
    return count;
}

std::vector<cInt> list_entries(const std::vector<IntPoint>& corners, const IntPoint& first,
                               bool was_clockwise, cInt highest) {
    const std::size_t size = corners.size();
    const std::size_t step = was_clockwise ? size - 1 : 1;
    std::size_t at = static_cast<std::size_t>(std::find(corners.begin(), corners.end(), first) -
                                              corners.begin());
    std::vector<cInt> entries;
    for (std::size_t i = 0; i < size; ++i) {
        const cInt before = corners[(at + size - step) % size].Y;
        const std::size_t after = (at + step) % size;
        const cInt level = corners[at].Y;
        if (before < level && (corners[after].Y < level || level == highest)) {
            entries.push_back(level);
        }
        at = after;
    }
    return entries;
}

} // namespace ox::internal
