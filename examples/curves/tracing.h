#ifndef OX_EXAMPLES_CURVES_TRACING_H
#define OX_EXAMPLES_CURVES_TRACING_H

#include <examples/curves/description.h>

namespace curves {

/// The three curves of the same control points, as equally many points on each, from begin to end.
struct traced_curves {
    std::vector<plan_point> bezier;
    std::vector<plan_point> bspline;
    std::vector<plan_point> spline;
};

/// Follows the curves of `points` in `nb_steps` equal steps, which gives one point more. The
/// B-spline has degree 3 and covers the parameters for which its weights sum to 1.
traced_curves trace(const std::vector<plan_point>& points, int nb_steps);

} // namespace curves

#endif
