// Contours whose answer from the clipping library is known beforehand.
//
// Directions are those of the frame: y grows upwards. The library sweeps from the highest level
// down, so a contour enters its sweep at the highest vertex and is completed at the lowest.

#include <ox/polygon/internal/clipping/monotone_contour.h>

#include <algorithm>
#include <cmath>

#include <ox/polygon/internal/clipping/contour_folds.h>
#include <ox/polygon/internal/clipping/grid_lines.h>
#include <ox/polygon/internal/tolerances.h>

namespace ox::internal {
namespace {

using ClipperLib::cInt;
using ClipperLib::IntPoint;

cInt largest_coordinate(const IntPoint* points, std::size_t size) {
    const grid_box box = bounds_of(points, size);
    return std::max({box.high.X, box.high.Y, -box.low.X, -box.low.Y});
}

/// True if no corner is left at `vertex`: it repeats a neighbour, the contour goes straight on
/// there, or it is the tip of a spike.
bool is_without_corner(const IntPoint& before, const IntPoint& vertex, const IntPoint& after) {
    return turn(difference(vertex, before), difference(after, vertex)) == 0;
}

/// Drops the vertices without a corner, as the library does when it takes a contour; the corners
/// that stay begin at `points`. Dropping a tip can make the next one of its neighbours. Which one
/// goes first does not matter: of two neighbours that could go, the other one still can, and both
/// ways lead to the same corners. False when fewer than three stay.
bool drop_all_but_corners(IntPoint*& points, std::size_t& size) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < size; ++i) {
        while (kept >= 2 && is_without_corner(points[kept - 2], points[kept - 1], points[i])) {
            --kept;
        }
        points[kept++] = points[i];
    }
    while (kept >= 3) {
        if (is_without_corner(points[kept - 2], points[kept - 1], points[0])) {
            --kept;
        } else if (is_without_corner(points[kept - 1], points[0], points[1])) {
            ++points;
            --kept;
        } else {
            break;
        }
    }
    size = kept;
    return size >= 3;
}

bool is_lower_or_right_of(const IntPoint& a, const IntPoint& b) {
    return a.Y != b.Y ? a.Y < b.Y : a.X > b.X;
}

/// Counter-clockwise, the lowest vertex last. True if the contour is turned round for that.
bool put_lowest_last(IntPoint* points, std::size_t size) {
    IntPoint* lowest = std::min_element(points, points + size, is_lower_or_right_of);
    std::rotate(points, lowest + 1, points + size);
    const IntPoint& last = points[size - 1];
    const bool clockwise =
        turn(difference(last, points[size - 2]), difference(points[0], last)) < 0;
    if (clockwise) {
        std::reverse(points, points + size - 1);
    }
    return clockwise;
}

/// True if the contour climbs once and falls once; finds the highest vertices.
bool find_highest(monotone_contour& contour) {
    const IntPoint* p = contour.points;
    const std::size_t last = contour.size - 1;
    if (p[0].Y <= p[last].Y) {
        return false;
    }
    std::size_t high = 0;
    while (high < last && p[high + 1].Y >= p[high].Y) {
        ++high;
    }
    for (std::size_t i = high; i < last; ++i) {
        if (p[i + 1].Y > p[i].Y) {
            return false;
        }
    }
    contour.high_left = high;
    contour.high_right = high > 0 && p[high - 1].Y == p[high].Y ? high - 1 : high;
    return true;
}

// Sides that keep apart

/// One side of a contour, walked upwards from its lowest vertex.
class side_walk {
public:
    side_walk(const monotone_contour& walked, bool right)
        : contour(walked), step(right ? 1 : contour.size - 1), at(contour.size - 1) {
        if (!right && here().Y == next().Y) {
            advance();
        }
    }

    const IntPoint& here() const { return contour.points[at]; }
    const IntPoint& next() const { return contour.points[following()]; }
    void advance() { at = following(); }

    /// Climbs to a level not above the next vertex and returns the x of the side there; where it
    /// runs along the level, the x nearest to the other side.
    double climb_to(cInt y) {
        if (next().Y > y) {
            return x_at(here(), next(), y);
        }
        cInt x = next().X;
        do {
            advance();
            x = step == 1 ? std::min(x, here().X) : std::max(x, here().X);
        } while (next().Y == y);
        return static_cast<double>(x);
    }

private:
    std::size_t following() const {
        const std::size_t sum = at + step;
        return sum < contour.size ? sum : sum - contour.size;
    }

    const monotone_contour& contour;
    std::size_t step; ///< modulo the size: one backwards is size - 1
    std::size_t at;
};

/// True if two sides leave the end of a contour, a flat edge or a single vertex, without doubt
/// about which of them is the right one at the next level.
bool is_wide_at_end(const IntPoint& right_end, const IntPoint& right_next, const IntPoint& left_end,
                    const IntPoint& left_next) {
    if (right_end != left_end) {
        return static_cast<double>(right_end.X - left_end.X) >= side_clearance;
    }
    const IntPoint right = difference(right_next, right_end);
    const IntPoint left = difference(left_next, left_end);
    const double height_product = static_cast<double>(right.Y) * static_cast<double>(left.Y);
    return std::fabs(static_cast<double>(turn(right, left))) >=
           smallest_slope_difference * height_product;
}

/// The corners of an end of a contour and, from there on, of its sides.
struct contour_end {
    std::size_t right;
    std::size_t left;
    std::size_t right_step; ///< modulo the size, away from the end
    std::size_t left_step;
};

contour_end low_end(const monotone_contour& contour) {
    const std::size_t last = contour.size - 1;
    const bool flat = contour.points[last - 1].Y == contour.points[last].Y;
    return {last, flat ? last - 1 : last, 1, last};
}

contour_end high_end(const monotone_contour& contour) {
    return {contour.high_right, contour.high_left, contour.size - 1, 1};
}

bool is_wide_at(const monotone_contour& contour, const contour_end& end) {
    const IntPoint* p = contour.points;
    const std::size_t n = contour.size;
    return is_wide_at_end(p[end.right], p[(end.right + end.right_step) % n], p[end.left],
                          p[(end.left + end.left_step) % n]);
}

/// The level, on the way from one end of a side to the other, up to which (or down to which) no
/// edge is level, and none leads beyond the x of the first end, towards the other side.
cInt parted_until(const monotone_contour& contour, std::size_t at, std::size_t other_end,
                  std::size_t step, bool to_right) {
    const IntPoint* p = contour.points;
    const cInt x = p[at].X;
    while (at != other_end) {
        const std::size_t next = (at + step) % contour.size;
        if (p[next].Y == p[at].Y || (to_right ? p[next].X < x : p[next].X > x)) {
            break;
        }
        at = next;
    }
    return p[at].Y;
}

/// The levels as far as which the sides lead apart from the x of an end.
struct parted_levels {
    cInt up_to; ///< from the low end
    cInt from;  ///< down from the high end
};

parted_levels find_parted_levels(const monotone_contour& contour, const contour_end& low,
                                 const contour_end& high) {
    return {std::min(parted_until(contour, low.right, high.right, low.right_step, true),
                     parted_until(contour, low.left, high.left, low.left_step, false)),
            std::max(parted_until(contour, high.right, low.right, high.right_step, true),
                     parted_until(contour, high.left, low.left, high.left_step, false))};
}

/// True if the sides are apart at every level, the ends excepted. There are two ways to be sure of
/// it from one level with a vertex to the next: the room on both, or that the sides lead apart from
/// the x of one of the ends, for the library rounds the place of an edge on a level, but never
/// beyond those of its vertices. The second one ends where the sides have room: on a level edge the
/// library looks at all that touches it. And on the way to the low end the sides must not be
/// rounded to the same place: from there to the same vertex, they would be joined.
bool are_sides_apart(const monotone_contour& contour) {
    const contour_end low = low_end(contour);
    const contour_end high = high_end(contour);
    const IntPoint* p = contour.points;
    if (p[low.left].X > p[low.right].X || p[high.left].X > p[high.right].X) {
        return false;
    }
    const parted_levels parted = find_parted_levels(contour, low, high);
    side_walk right(contour, true);
    side_walk left(contour, false);
    const cInt lowest = p[low.right].Y;
    const cInt highest = contour.highest();
    bool was_wide = is_wide_at(contour, low);
    for (cInt below = lowest; below != highest;) {
        const cInt y = std::min(right.next().Y, left.next().Y);
        const double room = y == highest ? 0.0 : right.climb_to(y) - left.climb_to(y);
        const bool is_wide = y == highest ? is_wide_at(contour, high) : room >= side_clearance;
        const bool is_parted =
            (y < parted.up_to && room >= rounding_clearance) || (y == parted.up_to && is_wide) ||
            (below > lowest && (below > parted.from || (below == parted.from && was_wide)));
        if (!is_parted && !(was_wide && is_wide)) {
            return false;
        }
        was_wide = is_wide;
        below = y;
    }
    return true;
}

/// The library takes the direction of a contour from an area summed in doubles.
bool is_area_certain(const monotone_contour& contour, cInt largest) {
    double area = 0.0;
    for (std::size_t i = 1; i + 1 < contour.size; ++i) {
        area += static_cast<double>(turn(difference(contour.points[i], contour.points[0]),
                                         difference(contour.points[i + 1], contour.points[0])));
    }
    const double square = static_cast<double>(largest) * static_cast<double>(largest);
    return area > area_rounding * square * static_cast<double>(contour.size);
}

} // namespace

grid_box bounds_of(const IntPoint* points, std::size_t size) {
    grid_box box{points[0], points[0]};
    for (std::size_t i = 1; i < size; ++i) {
        box.low.X = std::min(box.low.X, points[i].X);
        box.low.Y = std::min(box.low.Y, points[i].Y);
        box.high.X = std::max(box.high.X, points[i].X);
        box.high.Y = std::max(box.high.Y, points[i].Y);
    }
    return box;
}

bool read_monotone_contour(IntPoint* points, std::size_t size, monotone_contour& contour) {
    if (size < 3) {
        return false;
    }
    const cInt largest = largest_coordinate(points, size);
    if (largest > farthest_monotone_coordinate) {
        return false;
    }
    if (!drop_all_but_corners(points, size)) {
        return false;
    }
    const IntPoint first = points[0];
    const bool was_clockwise = put_lowest_last(points, size);
    contour.points = points;
    contour.size = size;
    if (!find_highest(contour)) {
        contour.with_folds.assign(points, points + size);
        contour.size = leave_out_folds(contour.with_folds, points);
        if (contour.size == 0 || !find_highest(contour)) {
            return false;
        }
        contour.entries = list_entries(contour.with_folds, first, was_clockwise, contour.highest());
    }
    return are_sides_apart(contour) && is_area_certain(contour, largest);
}

bool monotone_contour::surrounds(const grid_box& box) const {
    if (box.low.Y <= points[size - 1].Y || box.high.Y >= highest()) {
        return false;
    }
    // The edges of either side that reach from the lowest to the highest level of the box.
    const IntPoint* right = std::partition_point(
        points, points + high_right, [&box](const IntPoint& p) { return p.Y < box.low.Y; });
    const IntPoint* left = std::partition_point(
        points + high_left, points + size, [&box](const IntPoint& p) { return p.Y > box.high.Y; });
    const IntPoint& before_right = right == points ? points[size - 1] : right[-1];
    double nearest_right = x_at(before_right, *right, box.low.Y);
    for (; right->Y <= box.high.Y; ++right) {
        nearest_right = std::min(nearest_right, static_cast<double>(right->X));
    }
    nearest_right = std::min(
        nearest_right, x_at(right == points ? points[size - 1] : right[-1], *right, box.high.Y));
    double nearest_left = x_at(left[-1], *left, box.high.Y);
    for (; left->Y >= box.low.Y; ++left) {
        nearest_left = std::max(nearest_left, static_cast<double>(left->X));
    }
    nearest_left = std::max(nearest_left, x_at(left[-1], *left, box.low.Y));
    return nearest_left + side_clearance <= static_cast<double>(box.low.X) &&
           static_cast<double>(box.high.X) + side_clearance <= nearest_right;
}

} // namespace ox::internal
