#ifndef OX_EXAMPLES_SUPPORT_PLAN_POINT_H
#define OX_EXAMPLES_SUPPORT_PLAN_POINT_H

#include <vector>

namespace ox_examples {

/// A point of a ground plan, in metres, or of a diagram.
struct plan_point {
    double x = 0;
    double y = 0;
};

using plan_contour = std::vector<plan_point>;

} // namespace ox_examples

#endif
