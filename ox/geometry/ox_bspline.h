#ifndef OX_GEOMETRY_OX_BSPLINE_H
#define OX_GEOMETRY_OX_BSPLINE_H

#include <memory>

#include <ox/core/ox_export.h>

namespace ox {

/// The weights of the control points of a uniform B-spline: the basis functions N(i, p).
///
/// Represents a degree p and m + 1 evenly spaced knots i / m over [0, 1], for m - p control points
/// of any dimension, which the caller keeps: a point of the curve is their weighted sum. The
/// weights sum to 1 for parameters in [p / m, (m - p) / m].
///
/// Every knot interval is half-open, so at t = 1 all weights are 0; callers that need the end use
/// a parameter just below it.
///
/// Degenerate input:
/// - a negative degree, one not below m, or m below 1: there is no weight, `compute` writes
///   nothing;
/// - a parameter outside [0, 1]: clamped; NaN gives weights that are NaN (0 for degree 0).
///
/// Ownership: copies share buffer and knots, which live as long as one of them; a `compute` into
/// the own buffer of one is seen through the others.
///
/// \code
///   ox::ox_bspline cubic(3, 10);              // 7 control points
///   const float* w = cubic.compute(0.45f);    // w[0] to w[6]
/// \endcode
class OX_EXPORT ox_bspline {
public:
    /// A curve of the given degree with m knot intervals. O(m + degree).
    ox_bspline(int degree, int m);

    /// Shares the arrays of `other`.
    ox_bspline(const ox_bspline& other);

    /// Shares the arrays of `other`.
    ox_bspline& operator=(const ox_bspline& other);

    /// Lets go of the arrays.
    virtual ~ox_bspline();

    /// Writes the m - p weights at the parameter t into `out`, or into the object's own buffer when
    /// it is null, and returns that buffer (null without one). O(m p) by the recursion of Cox and
    /// de Boor, worked upwards so that no basis function is computed twice.
    float* compute(float t, float* out = nullptr);

private:
    int count_weights() const;

    int m;
    int degree;
    std::shared_ptr<float[]> knots;
    std::shared_ptr<float[]> weights;
};

} // namespace ox

#endif
