#ifndef OX_TESTS_REFERENCE_PLAIN_SYSTEM_H
#define OX_TESTS_REFERENCE_PLAIN_SYSTEM_H

#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace reference {

/// Plain version of `ox_solve_system`: Gaussian elimination with the largest pivot of each column,
/// row by row. Empty when there is no solution.
inline std::vector<float> solve_system(std::vector<std::vector<float>> a, std::vector<float> b) {
    const std::size_t n = b.size();
    for (std::size_t k = 0; k + 1 < n; ++k) {
        float largest = 1e-4f;
        std::size_t pivot = n;
        for (std::size_t row = k; row < n; ++row) {
            if (std::fabs(a[row][k]) > largest) {
                largest = std::fabs(a[row][k]);
                pivot = row;
            }
        }
        if (pivot == n) {
            return {};
        }
        std::swap(a[k], a[pivot]);
        std::swap(b[k], b[pivot]);
        const float inverse = 1.f / a[k][k];
        for (std::size_t row = k + 1; row < n; ++row) {
            const float f = -a[row][k] * inverse;
            for (std::size_t column = k + 1; column < n; ++column) {
                a[row][column] = f * a[k][column] + a[row][column];
            }
            a[row][k] = 0.f;
            b[row] = f * b[k] + b[row];
        }
    }
    std::vector<float> x(n);
    for (std::size_t i = n; i-- > 0;) {
        float s = b[i];
        for (std::size_t j = i + 1; j < n; ++j) {
            s = s - a[i][j] * x[j];
        }
        if (a[i][i] == 0.f) {
            return {};
        }
        x[i] = s / a[i][i];
    }
    return x;
}

} // namespace reference

#endif
