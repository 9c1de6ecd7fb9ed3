#ifndef OX_GEOMETRY_OX_CUBIC_SPLINE_H
#define OX_GEOMETRY_OX_CUBIC_SPLINE_H

#include <ox/core/ox_export.h>
#include <ox/core/ox_list.h>
#include <ox/geometry/ox_2dvector.h>

namespace ox {

/// A damped natural cubic spline: a smooth function y(x) through given points.
///
/// Represents the sample points, the widths of their intervals, the second derivative at each point
/// (0 at both ends) and a linear and a constant coefficient for each interval. The right-hand side
/// of the textbook system for the second derivatives is multiplied by 0.9, so the curve passes
/// through every point but bends a tenth less; its slope is then not exactly continuous at the
/// inner points. Left and right of the points the curve is constant.
///
/// Degenerate input:
/// - fewer than two points: there is no interval, every value is 0;
/// - points not in increasing order of x: the curve means nothing;
/// - points of equal x: numbers that are not finite;
/// - points so close together that the system counts as singular (two neighbouring intervals
///   together up to about 0.0003 wide): the second derivatives are 0 and the curve is the polyline
///   through the points;
/// - more than 1024 points with intervals so wide (1e30, infinite) that the inverse of the system
///   overflows: the polyline, too.
///
/// Copies are deep.
///
/// \code
///   ox::ox_list<ox::ox_2dvector> points;
///   points.push_right(ox::ox_2dvector(0.0f, 0.0f));
///   points.push_right(ox::ox_2dvector(1.0f, 1.0f));
///   ox::ox_cubic_spline spline(points);
///   const float y = spline.compute(0.25f); // 0.25
/// \endcode
class OX_EXPORT ox_cubic_spline {
public:
    /// The spline through copies of the points (x, y), expected in increasing order of x and not
    /// sorted. O(n) memory; about 200 n steps for intervals of similar width, O(n^2) at the worst.
    explicit ox_cubic_spline(const ox_list<ox_2dvector>& points);

    /// A deep copy.
    ox_cubic_spline(const ox_cubic_spline& other);

    /// Becomes a deep copy of `other`.
    ox_cubic_spline& operator=(const ox_cubic_spline& other);

    /// Takes the points of `other`, which becomes a spline without points. O(1).
    ox_cubic_spline(ox_cubic_spline&& other) noexcept;

    /// Takes the points of `other`, which becomes a spline without points. O(1).
    ox_cubic_spline& operator=(ox_cubic_spline&& other) noexcept;

    /// Deletes the copies of the points.
    virtual ~ox_cubic_spline();

    /// The value at x; beyond the ends that of the nearer end. An inner point belongs to the
    /// interval on its right. O(n).
    float compute(float x);

    /// Compares the spline through five points of the sine with the sine, to 0.01, and logs its
    /// tables when it fails. It does fail: the damped curve is off by 0.011 at x = 1.7.
    static bool unitary_test();

private:
    void compute_interval_coefficients();
    void log_tables();

    ox_list<ox_2dvector> points;
    ox_list<float> widths;
    ox_list<float> second_derivatives;
    ox_list<float> linear_coefficients;
    ox_list<float> constant_coefficients;
};

} // namespace ox

#endif
