#include <ox/geometry/ox_bezier.h>

#include <algorithm>

#include <ox/geometry/internal/shared_floats.h>

namespace ox {

using namespace internal;

namespace {

int wrapped_product(int a, int b) {
    return static_cast<int>(static_cast<unsigned int>(a) * static_cast<unsigned int>(b));
}

/// The binomial coefficient C(n, k) for k not above n / 2, as 32-bit integers give it: the product
/// of k factors wraps around, then it is divided. A product that has become 0 stays 0, after 35
/// factors at the latest, since every second one brings a factor of 2.
int binomial(int n, int k) {
    int result = 1;
    for (int i = 0; i < k && result != 0; ++i) {
        result = wrapped_product(result, n - i);
    }
    for (int divisor = 2; divisor <= k && result != 0; ++divisor) {
        result /= divisor;
    }
    return result;
}

} // namespace

ox_bezier::ox_bezier(int count)
    : n(count), weights(new_shared_floats(count)), coefficients(new_shared_floats(count)) {
    for (int i = 0; i < n; ++i) {
        const int k = std::min(i, n - 1 - i);
        coefficients[i] = static_cast<float>(binomial(n - 1, k));
    }
}

ox_bezier::ox_bezier(const ox_bezier& other) = default;

ox_bezier& ox_bezier::operator=(const ox_bezier& other) = default;

ox_bezier::~ox_bezier() = default;

float* ox_bezier::compute(float t, float* out) {
    float* const w = out != nullptr ? out : weights.get();
    const float clamped = std::clamp(t, 0.0f, 1.0f);
    const float rest = 1.0f - clamped;
    float power = 1.0f;
    for (int i = 0; i < n; ++i) {
        w[i] = coefficients[i] * power;
        power *= clamped;
    }
    power = 1.0f;
    for (int i = n; i > 0; --i) {
        w[i - 1] = w[i - 1] * power;
        power *= rest;
    }
    return w;
}

} // namespace ox
