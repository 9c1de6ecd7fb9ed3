#include <cmath>
#include <cstddef>

#include <tests/reference/simplify.h>

namespace reference {

namespace {

using contour = std::vector<ox::ox_3dvector>;

void erase(contour& v, std::size_t i) {
    v.erase(v.begin() + static_cast<std::ptrdiff_t>(i));
}

bool drop_short_edges_once(contour& v, float tolerance) {
    const std::size_t before = v.size();
    for (std::size_t i = 0; i < v.size();) {
        if (v[i].distance_to(v[(i + 1) % v.size()]) < 0.1f * tolerance) {
            erase(v, i);
        } else {
            ++i;
        }
    }
    return v.size() < before;
}

bool drop_flat_corners_once(contour& v, const ox::ox_3dvector& normal, float tolerance) {
    const std::size_t before = v.size();
    for (std::size_t i = 0; i < v.size(); ++i) {
        const std::size_t n = v.size();
        const ox::ox_3dvector a = v[i];
        const ox::ox_3dvector b = v[(i + 1) % n];
        const ox::ox_3dvector c = v[(i + 2) % n];
        if (a.distance_to(c) < 0.1f * tolerance) {
            erase(v, (i + 1) % n);
            return true; // the pass starts again
        }
        ox::ox_3dvector d = c - a;
        d.normalize();
        if (std::fabs(ox::ox_dot(ox::ox_cross(normal, d), b - a)) <= tolerance) {
            erase(v, (i + 1) % n);
        }
    }
    return v.size() < before;
}

} // namespace

contour drop_short_edges(contour v, float tolerance) {
    while (drop_short_edges_once(v, tolerance)) {
    }
    return v;
}

contour simplify(contour v, const ox::ox_3dvector& normal, float tolerance) {
    v = drop_short_edges(v, tolerance);
    while (drop_flat_corners_once(v, normal, tolerance)) {
    }
    return v;
}

} // namespace reference
