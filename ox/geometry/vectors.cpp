#include <ox/geometry/ox_2dvector.h>

#include <cmath>

#include <ox/geometry/internal/tolerances.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox {

using namespace internal;

bool ox_2dvector::intersection(const ox_2dvector& p1, const ox_2dvector& d1, const ox_2dvector& p2,
                               const ox_2dvector& d2, ox_2dvector& out) {
    const float determinant = d1.x * (-d2.y) + d1.y * d2.x;
    if (std::fabs(determinant) < parallel_lines_determinant) {
        return false;
    }
    const float t = ((p2.y - p1.y) * d2.x + (p2.x - p1.x) * (-d2.y)) / determinant;
    out = ox_2dvector(p1.x + d1.x * t, p1.y + d1.y * t);
    return true;
}

void ox_3dvector::build_axis(ox_3dvector& u, ox_3dvector& v) {
    normalize();
    const bool far_from_z = std::fabs(static_cast<double>(z)) < near_z_axis_cosine;
    ox_3dvector first = far_from_z ? ox_3dvector(-y, x, 0.0f) : ox_3dvector(z, 0.0f, -x);
    first.normalize();
    ox_3dvector second = ox_cross(*this, first);
    second.normalize();
    u = first;
    v = second;
}

} // namespace ox
