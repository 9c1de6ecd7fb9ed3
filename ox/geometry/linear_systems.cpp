// Gaussian elimination with partial pivoting (row exchanges), in single precision.

#include <ox/ox_functions.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

#include <ox/geometry/internal/tolerances.h>

namespace ox {

using namespace internal;

namespace {

/// The system a x = b for any number of right-hand sides, the columns of b. Each column sees the
/// operations it would see alone, in the same order, so it is solved to the same bits.
class linear_system {
public:
    /// `matrix` has order * order elements and `right_sides` order * columns, row after row.
    linear_system(const ox_list<float>& matrix, const ox_list<float>& right_sides, int system_order,
                  int column_count)
        : order(system_order), columns(column_count), a(matrix), b(right_sides) {}

    /// True when there is a solution, which then is what `solution` holds.
    bool solve() { return eliminate() && substitute_back(); }

    const ox_list<float>& solution() const { return b; }

private:
    static float* row(ox_list<float>& matrix, int r, int width) {
        return matrix.get_data() + static_cast<std::int64_t>(r) * width;
    }
    float* a_row(int r) { return row(a, r, order); }
    float* b_row(int r) { return row(b, r, columns); }

    bool eliminate() {
        for (int k = 0; k + 1 < order; ++k) {
            const int pivot = find_pivot(k);
            if (pivot < 0) {
                return false;
            }
            if (pivot != k) {
                std::swap_ranges(a_row(k), a_row(k) + order, a_row(pivot));
                std::swap_ranges(b_row(k), b_row(k) + columns, b_row(pivot));
            }
            clear_below(k);
        }
        return true;
    }

    /// The row with the largest element of column k, the first one of equals; -1 for none.
    int find_pivot(int k) {
        float largest = smallest_pivot;
        int pivot = -1;
        for (int r = k; r < order; ++r) {
            const float magnitude = std::fabs(a_row(r)[k]);
            if (magnitude > largest) {
                largest = magnitude;
                pivot = r;
            }
        }
        return pivot;
    }

    void clear_below(int k) {
        const float* const upper = a_row(k);
        const float inverse = 1.0f / upper[k];
        for (int r = k + 1; r < order; ++r) {
            float* const lower = a_row(r);
            const float factor = -lower[k] * inverse;
            for (int c = k + 1; c < order; ++c) {
                lower[c] = factor * upper[c] + lower[c];
            }
            lower[k] = 0.0f;
            add_multiple(factor, b_row(k), b_row(r));
        }
    }

    void add_multiple(float factor, const float* source, float* target) const {
        for (int c = 0; c < columns; ++c) {
            target[c] = factor * source[c] + target[c];
        }
    }

    /// Replaces the right-hand sides by the solution, from the last row up.
    bool substitute_back() {
        for (int i = order - 1; i >= 0; --i) {
            const float* const upper = a_row(i);
            float* const x = b_row(i);
            if (upper[i] == 0.0f) {
                return false;
            }
            for (int j = i + 1; j < order; ++j) {
                add_multiple(-upper[j], b_row(j), x);
            }
            for (int c = 0; c < columns; ++c) {
                x[c] = x[c] / upper[i];
            }
        }
        return true;
    }

    int order;
    int columns;
    ox_list<float> a;
    ox_list<float> b;
};

std::int64_t square(int order) {
    return static_cast<std::int64_t>(order) * order;
}

ox_list<float> identity(int order) {
    ox_list<float> matrix(order * order);
    for (int i = 0; i < matrix.size(); ++i) {
        matrix[i] = i % (order + 1) == 0 ? 1.0f : 0.0f;
    }
    return matrix;
}

ox_list<float> solve(const ox_list<float>& a, const ox_list<float>& b, int order, int columns) {
    linear_system system(a, b, order, columns);
    return system.solve() ? system.solution() : ox_list<float>();
}

} // namespace

ox_list<float> ox_solve_system(const ox_list<float>& a, const ox_list<float>& b) {
    const int order = b.size();
    if (order < 1 || a.size() != square(order)) {
        return ox_list<float>();
    }
    return solve(a, b, order, 1);
}

ox_list<float> ox_reverse_matrix(const ox_list<float>& a) {
    if (a.size() < 1) {
        return ox_list<float>();
    }
    const float root = static_cast<float>(std::sqrt(static_cast<double>(a.size())));
    const int order = static_cast<int>(std::lround(root));
    if (a.size() != square(order)) {
        return ox_list<float>();
    }
    return solve(a, identity(order), order, order);
}

} // namespace ox
