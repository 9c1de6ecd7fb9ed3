#ifndef OX_INTERNAL_FINITE_H
#define OX_INTERNAL_FINITE_H

#include <cmath>

#include <ox/geometry/ox_3dvector.h>

namespace ox {

/// Whether no coordinate is infinite or NaN.
inline bool is_finite(const ox_3dvector& v) {
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

} // namespace ox

#endif
