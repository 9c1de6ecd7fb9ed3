#ifndef OX_TESTS_REFERENCE_PLAIN_SPLINE_H
#define OX_TESTS_REFERENCE_PLAIN_SPLINE_H

#include <algorithm>
#include <cstddef>
#include <vector>

#include <ox/geometry/ox_2dvector.h>
#include <ox/ox_functions.h>

namespace reference {

/// Plain version of `ox_cubic_spline`, for at least two points of ascending x.
class plain_spline {
public:
    explicit plain_spline(const std::vector<ox::ox_2dvector>& points) : p(points), m(p.size()) {
        const std::size_t n = p.size();
        std::vector<float> d(n);
        ox::ox_list<float> a(static_cast<int>(n * n));
        std::fill(a.begin(), a.end(), 0.f);
        const auto element = [&](std::size_t row, std::size_t column) -> float& {
            return a[static_cast<int>(row * n + column)];
        };
        element(0, 0) = 1.f;
        element(n - 1, n - 1) = 1.f;
        for (std::size_t k = 1; k + 1 < n; ++k) {
            d[k] = ((p[k + 1].y - p[k].y) / h(k) - (p[k].y - p[k - 1].y) / h(k - 1)) * 0.9f;
            element(k, k - 1) = h(k - 1) / 6.f;
            element(k, k) = (h(k - 1) + h(k)) / 3.f;
            element(k, k + 1) = h(k) / 6.f;
        }
        const ox::ox_list<float> inverse = ox::ox_reverse_matrix(a);
        for (std::size_t row = 0; row < n && inverse.size() > 0; ++row) {
            for (std::size_t column = 0; column < n; ++column) {
                m[row] += inverse[static_cast<int>(row * n + column)] * d[column];
            }
        }
    }

    /// The value at x by interval k.
    float compute(float x, std::size_t k) const {
        const float xc = std::min(p[k + 1].x, std::max(p[k].x, x));
        const float c = (p[k + 1].y - p[k].y) / h(k) - h(k) * (m[k + 1] - m[k]) / 6.f;
        const float c2 = p[k].y - h(k) * m[k] * h(k) / 6.f;
        const float u = xc - p[k].x;
        const float w = p[k + 1].x - xc;
        const float r = 1.f / (h(k) * 6.f);
        return u * c + c2 + (u * u * u * m[k + 1] * r + w * w * w * m[k] * r);
    }

    /// The value at x by the interval that it belongs to.
    float compute(float x) const {
        std::size_t k = 0;
        while (k + 2 < p.size() && p[k + 1].x <= x) {
            ++k;
        }
        return compute(x, k);
    }

private:
    float h(std::size_t k) const { return p[k + 1].x - p[k].x; }

    std::vector<ox::ox_2dvector> p;
    std::vector<float> m;
};

} // namespace reference

#endif
