#include <ox/geometry/ox_cubic_spline.h>

#include <algorithm>

#include <ox/geometry/internal/spline_curvature.h>

namespace ox {

using namespace internal;

ox_cubic_spline::ox_cubic_spline(const ox_list<ox_2dvector>& samples) : points(samples) {
    for (int k = 0; k + 1 < points.size(); ++k) {
        widths.push_right(points[k + 1].x - points[k].x);
    }
    second_derivatives = spline_second_derivatives(points, widths);
    compute_interval_coefficients();
}

ox_cubic_spline::ox_cubic_spline(const ox_cubic_spline& other) = default;

ox_cubic_spline& ox_cubic_spline::operator=(const ox_cubic_spline& other) = default;

ox_cubic_spline::ox_cubic_spline(ox_cubic_spline&& other) noexcept = default;

ox_cubic_spline& ox_cubic_spline::operator=(ox_cubic_spline&& other) noexcept = default;

ox_cubic_spline::~ox_cubic_spline() = default;

void ox_cubic_spline::compute_interval_coefficients() {
    const ox_list<float>& h = widths;
    const ox_list<float>& d2 = second_derivatives;
    for (int k = 0; k < h.size(); ++k) {
        const float slope = (points[k + 1].y - points[k].y) / h[k];
        linear_coefficients.push_right(slope - h[k] * (d2[k + 1] - d2[k]) / 6.0f);
        constant_coefficients.push_right(points[k].y - h[k] * d2[k] * h[k] / 6.0f);
    }
}

float ox_cubic_spline::compute(float x) {
    if (widths.size() == 0) {
        return 0.0f;
    }
    int k = 0;
    while (k + 1 < widths.size() && points[k + 1].x <= x) {
        ++k;
    }
    const float first = points[k].x;
    const float last = points[k + 1].x;
    const float clamped = std::min(last, std::max(first, x));
    const float u = clamped - first;
    const float w = last - clamped;
    const float r = 1.0f / (widths[k] * 6.0f);
    return u * linear_coefficients[k] + constant_coefficients[k] +
           (u * u * u * second_derivatives[k + 1] * r + w * w * w * second_derivatives[k] * r);
}

} // namespace ox
