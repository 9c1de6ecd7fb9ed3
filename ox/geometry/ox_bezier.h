#ifndef OX_GEOMETRY_OX_BEZIER_H
#define OX_GEOMETRY_OX_BEZIER_H

#include <memory>

#include <ox/core/ox_export.h>

namespace ox {

/// The weights of the control points of a Bezier curve: the Bernstein polynomials.
///
/// Represents a number n of control points, of any dimension, which the caller keeps: a point of
/// the curve is their weighted sum. Holds a buffer of n weights and the n binomial coefficients
/// C(n - 1, i), formed in 32-bit integers.
///
/// Limit: the coefficients are exact up to 18 control points, and the weights then sum to 1. From
/// 19 on the integer products wrap around and coefficients are wrong: the class is for short
/// curves.
///
/// Degenerate input:
/// - n below 1: there is no weight, and no buffer of one's own;
/// - a parameter outside [0, 1]: clamped; NaN gives weights that are NaN, but for a
///   single control point, whose weight is always 1.
///
/// Ownership: copies share buffer and coefficients, which live as long as one of them; a
/// `compute` into the own buffer of one is seen through the others.
///
/// \code
///   ox::ox_bezier cubic(4);
///   const float* w = cubic.compute(0.5f); // 0.125, 0.375, 0.375, 0.125
/// \endcode
class OX_EXPORT ox_bezier {
public:
    /// A curve of n control points. O(n), the factors of a product that has wrapped to 0 being
    /// left out.
    explicit ox_bezier(int n);

    /// Shares the arrays of `other`.
    ox_bezier(const ox_bezier& other);

    /// Shares the arrays of `other`.
    ox_bezier& operator=(const ox_bezier& other);

    /// Lets go of the arrays.
    virtual ~ox_bezier();

    /// Writes the n weights at the parameter t into `out`, or into the object's own buffer when it
    /// is null, and returns the buffer written (null without one). O(n).
    float* compute(float t, float* out = nullptr);

private:
    int n;
    std::shared_ptr<float[]> weights;
    std::shared_ptr<float[]> coefficients;
};

} // namespace ox

#endif
