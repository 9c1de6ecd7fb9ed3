// The tridiagonal system of a natural cubic spline for the second derivatives at its points (de
// Boor, A Practical Guide to Splines, 1978), with a damped right-hand side.

#include <cmath>
#include <ox/geometry/internal/spline_curvature.h>
#include <ox/geometry/internal/tolerances.h>
#include <ox/ox_functions.h>

namespace ox {

namespace {

/// The share of the textbook spline's bend that is kept.
constexpr float damping = 0.9f;

/// Points up to which the dense inverse of the system is affordable: 4 MB and a second.
constexpr int most_points_of_dense_inverse = 1024;

ox_list<float> zeros(int n) {
    ox_list<float> list(n);
    for (float& number : list) {
        number = 0.f;
    }
    return list;
}

/// The change of slope at each point, 0 at the ends.
ox_list<float> damped_bends(const ox_list<ox_2dvector>& p, const ox_list<float>& h) {
    ox_list<float> bends = zeros(p.size());
    for (int k = 1; k + 1 < p.size(); ++k) {
        bends[k] = ((p[k + 1].y - p[k].y) / h[k] - (p[k].y - p[k - 1].y) / h[k - 1]) * damping;
    }
    return bends;
}

ox_list<float> dense_matrix(const ox_list<float>& h) {
    const int n = h.size() + 1;
    ox_list<float> a = zeros(n * n);
    a[0] = 1.f;
    a[n * n - 1] = 1.f;
    for (int k = 1; k + 1 < n; ++k) {
        a[k * n + k - 1] = h[k - 1] / 6.f;
        a[k * n + k] = (h[k - 1] + h[k]) / 3.f;
        a[k * n + k + 1] = h[k] / 6.f;
    }
    return a;
}

ox_list<float> solve_by_inverse(const ox_list<float>& h, const ox_list<float>& bends) {
    const int n = bends.size();
    const ox_list<float> inverse = ox_reverse_matrix(dense_matrix(h));
    ox_list<float> result = zeros(n);
    for (int r = 0; r < n && inverse.size() > 0; ++r) {
        for (int c = 0; c < n; ++c) {
            result[r] += inverse[r * n + c] * bends[c];
        }
    }
    return result;
}

/// Elimination along the band (Thomas), with the inverse's threshold for a pivot.
ox_list<float> solve_as_band(const ox_list<float>& h, const ox_list<float>& bends) {
    const int n = bends.size();
    ox_list<float> upper = zeros(n); // the element right of the diagonal, which is 1
    ox_list<float> result = zeros(n);
    for (int k = 1; k + 1 < n; ++k) {
        const float lower = h[k - 1] / 6.f;
        const float pivot = (h[k - 1] + h[k]) / 3.f - lower * upper[k - 1];
        if (!(std::fabs(pivot) > smallest_pivot)) {
            return zeros(n);
        }
        upper[k] = h[k] / 6.f / pivot;
        result[k] = (bends[k] - lower * result[k - 1]) / pivot;
    }
    for (int k = n - 2; k > 0; --k) {
        result[k] -= upper[k] * result[k + 1];
    }
    return result;
}

} // namespace

ox_list<float> spline_second_derivatives(const ox_list<ox_2dvector>& points,
                                         const ox_list<float>& widths) {
    if (widths.size() == 0) {
        return zeros(points.size() > 0 ? points.size() : 0);
    }
    const ox_list<float> bends = damped_bends(points, widths);
    return points.size() <= most_points_of_dense_inverse ? solve_by_inverse(widths, bends)
                                                         : solve_as_band(widths, bends);
}

} // namespace ox
