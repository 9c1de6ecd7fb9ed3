#include <ox/geometry/ox_bspline.h>

#include <algorithm>
#include <vector>

#include <ox/geometry/internal/shared_floats.h>

namespace ox {

using namespace internal;

namespace {

/// The basis functions of degree 0 at t: 1 for the knot interval that holds t, 0 for the others.
std::vector<float> steps(const float* u, int intervals, float t) {
    std::vector<float> basis(static_cast<std::size_t>(intervals));
    for (int i = 0; i < intervals; ++i) {
        basis[static_cast<std::size_t>(i)] = u[i] <= t && t < u[i + 1] ? 1.0f : 0.0f;
    }
    return basis;
}

/// Replaces the first `count` + 1 basis functions of degree k - 1 at t by `count` of degree k.
void raise_degree(float* basis, const float* u, int count, int k, float t) {
    for (int i = 0; i < count; ++i) {
        basis[i] = (t - u[i]) * basis[i] / (u[i + k] - u[i]) +
                   (u[i + k + 1] - t) * basis[i + 1] / (u[i + k + 1] - u[i + 1]);
    }
}

} // namespace

ox_bspline::ox_bspline(int curve_degree, int intervals)
    : m(intervals), degree(curve_degree),
      knots(new_shared_floats(intervals < 0 ? 0 : static_cast<long long>(intervals) + 1)),
      weights(new_shared_floats(static_cast<long long>(intervals) + curve_degree)) {
    for (int i = 0; i < m; ++i) {
        knots[i] = static_cast<float>(i) / static_cast<float>(m);
    }
    if (m > 0) {
        knots[m] = 1.0f;
    }
}

ox_bspline::ox_bspline(const ox_bspline& other) = default;

ox_bspline& ox_bspline::operator=(const ox_bspline& other) = default;

ox_bspline::~ox_bspline() = default;

int ox_bspline::count_weights() const {
    return degree < 0 || degree >= m ? 0 : m - degree;
}

float* ox_bspline::compute(float t, float* out) {
    float* const written = out != nullptr ? out : weights.get();
    const int count = count_weights();
    if (count == 0) {
        return written;
    }
    const float clamped = std::clamp(t, 0.0f, 1.0f);
    std::vector<float> basis = steps(knots.get(), m, clamped);
    for (int k = 1; k <= degree; ++k) {
        raise_degree(basis.data(), knots.get(), m - k, k, clamped);
    }
    std::copy(basis.begin(), basis.begin() + count, written);
    return written;
}

} // namespace ox
