#ifndef OX_SOLID_INTERNAL_SEARCH_FACE_BOUNDS_H
#define OX_SOLID_INTERNAL_SEARCH_FACE_BOUNDS_H

#include <ox/geometry/ox_3dvector.h>
#include <ox/geometry/ox_box.h>
#include <ox/polygon/ox_polygon.h>

namespace ox::internal {

/// The very extremes of a set of points on each axis, without the roundings that an `ox_box` picks
/// up, for rejections that must never be wrong: each `surely_...` test leaves room for all
/// roundings of the single-precision computation that it stands in for, so that its true always
/// tells what that computation would give; its false tells nothing.
///
/// Without points `low` is above `high`. A point that is not finite makes the bounds reach over the
/// whole range of floats, and every test false.
struct face_bounds {
    ox_3dvector low;
    ox_3dvector high;

    /// The bounds of no point.
    face_bounds();

    /// The bounds of the contour vertices of a face. O(n).
    explicit face_bounds(ox_polygon& face);

    bool is_empty() const { return low.x > high.x; }
    bool operator==(const face_bounds& other) const {
        return low == other.low && high == other.high;
    }

    /// The bounds of `count` points. O(n).
    face_bounds(const ox_3dvector* points, unsigned int count);

    /// Grows to include other bounds.
    void enlarge(const face_bounds& other);

    /// The largest magnitude of a coordinate of a point in the bounds.
    double get_reach() const;

    /// How far the bounds reach along an axis.
    double get_extent(unsigned int axis) const {
        return static_cast<double>(high.at(axis)) - static_cast<double>(low.at(axis));
    }

    /// The square of the distance between `low` and `high`.
    double get_square_diagonal() const;

    /// True only if a face of `vertex_count` vertices within these bounds is too far from the box
    /// for `ox_polygon::may_intersect`.
    bool surely_apart_from(const ox_box& box, int vertex_count) const;

    /// True only if no contour within these bounds has one vertex farther below the plane than
    /// `tolerance` and another that is not: no edge then crosses the plane.
    bool surely_uncrossed_by(const ox_3dvector& point, const ox_3dvector& normal,
                             float tolerance) const;
};

} // namespace ox::internal

#endif
