// The tridiagonal system of a natural cubic spline for the second derivatives at its points (de
// Boor, A Practical Guide to Splines, 1978), with a damped right-hand side.

#include <ox/geometry/internal/spline_curvature.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include <ox/geometry/internal/tolerances.h>
#include <ox/ox_functions.h>

namespace ox::internal {

namespace {

/// The share of the textbook spline's bend that is kept.
constexpr float damping = 0.9f;

/// Points up to which the dense inverse of a system whose numbers overflow is affordable: 4 MB and
/// a second.
constexpr int most_points_of_dense_inverse = 1024;

ox_list<float> zeros(int n) {
    ox_list<float> list(n);
    for (float& number : list) {
        number = 0.0f;
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
    a[0] = 1.0f;
    a[n * n - 1] = 1.0f;
    for (int k = 1; k + 1 < n; ++k) {
        a[k * n + k - 1] = h[k - 1] / 6.0f;
        a[k * n + k] = (h[k - 1] + h[k]) / 3.0f;
        a[k * n + k + 1] = h[k] / 6.0f;
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

/// The inverse of the system, column by column, by what the dense elimination with row exchanges
/// does to the elements of the band: it only ever multiplies the others, which are 0.
class band_inverse {
public:
    explicit band_inverse(const ox_list<float>& h)
        : order(h.size() + 1), rows(at(order)), column(at(order)) {
        eliminate(h);
    }

    /// True where the dense elimination finds the system singular.
    bool is_singular() const { return singular; }

    /// True as long as no number overflowed, which multiplied by 0 would not be 0.
    bool is_finite() const { return finite; }

    /// Adds the multiple `weight` of column c to `sum`. O(n), less where the column fades to 0.
    void add_column(int c, float weight, ox_list<float>& sum) {
        column[at(c)] = 1.0f;
        const int last = substitute_down(c);
        const int first = substitute_up(c, last);
        const bool everywhere = !std::isfinite(weight);
        const int end = everywhere ? order : last + 1;
        for (int r = everywhere ? 0 : first; r < end; ++r) {
            sum[r] += column[at(r)] * weight;
        }
        std::fill(column.begin() + first, column.begin() + last + 1, 0.0f);
    }

private:
    /// What elimination leaves of a row: its elements from the diagonal on, whether it came from
    /// the row below, and the multiple of it that was added there.
    struct band_row {
        float elements[3];
        bool exchanged = false;
        float factor = 0.0f;
    };

    static std::size_t at(int k) { return static_cast<std::size_t>(k); }

    /// Row r from the column before the diagonal on; the last one is that of the unit matrix.
    band_row row_below(const ox_list<float>& h, int r) const {
        if (r + 1 == order) {
            return {{0.0f, 1.0f, 0.0f}};
        }
        return {{h.at(r - 1) / 6.0f, (h.at(r - 1) + h.at(r)) / 3.0f, h.at(r) / 6.0f}};
    }

    void eliminate(const ox_list<float>& h) {
        band_row upper{{1.0f, 0.0f, 0.0f}};
        for (int k = 0; k + 1 < order && !singular; ++k) {
            band_row lower = row_below(h, k + 1);
            const float largest = std::max(smallest_pivot, std::fabs(upper.elements[0]));
            if (std::fabs(lower.elements[0]) > largest) {
                std::swap(upper, lower);
                upper.exchanged = true;
            }
            singular = !(std::fabs(upper.elements[0]) > smallest_pivot);
            upper.factor = -lower.elements[0] * (1.0f / upper.elements[0]);
            keep(k, upper);
            upper = {{upper.factor * upper.elements[1] + lower.elements[1],
                      upper.factor * upper.elements[2] + lower.elements[2], 0.0f}};
        }
        keep(order - 1, upper);
        singular = singular || upper.elements[0] == 0.0f;
    }

    void keep(int k, const band_row& row) {
        rows[at(k)] = row;
        for (const float number : {row.elements[0], row.elements[1], row.elements[2], row.factor}) {
            finite = finite && std::isfinite(number);
        }
    }

    /// Does to column c of the unit matrix what elimination did to the rows; returns the last row
    /// that is not 0 then.
    int substitute_down(int c) {
        int k = std::max(c - 1, 0);
        for (; k + 1 < order && (k <= c || column[at(k)] != 0.0f); ++k) {
            if (rows[at(k)].exchanged) {
                std::swap(column[at(k)], column[at(k + 1)]);
            }
            column[at(k + 1)] = rows[at(k)].factor * column[at(k)] + column[at(k + 1)];
        }
        return k;
    }

    /// Solves for the rows from `last` up; returns the first row that is not 0 then.
    int substitute_up(int c, int last) {
        int k = last;
        for (; k >= 0 && !fades_at(k + 1, c); --k) {
            const float* const upper = rows[at(k)].elements;
            float& x = column[at(k)];
            for (int j = 1; j <= 2 && k + j < order; ++j) {
                x = -upper[j] * column[at(k + j)] + x;
            }
            x = x / upper[0];
            finite = finite && std::isfinite(x);
        }
        return k + 1;
    }

    /// True where rows k and k + 1 are 0, and so are all above: those have nothing of column c.
    bool fades_at(int k, int c) const {
        return k < c - 1 && column[at(k)] == 0.0f && column[at(k + 1)] == 0.0f;
    }

    int order;
    std::vector<band_row> rows;
    std::vector<float> column; ///< zeros between the calls
    bool singular = false;
    bool finite = true;
};

} // namespace

ox_list<float> spline_second_derivatives(const ox_list<ox_2dvector>& points,
                                         const ox_list<float>& widths) {
    const int n = std::max(points.size(), 0);
    if (widths.size() == 0) {
        return zeros(n);
    }
    const ox_list<float> bends = damped_bends(points, widths);
    band_inverse inverse(widths);
    ox_list<float> result = zeros(n);
    for (int c = 0; c < n && inverse.is_finite() && !inverse.is_singular(); ++c) {
        inverse.add_column(c, bends.at(c), result);
    }
    if (!inverse.is_finite()) {
        return n <= most_points_of_dense_inverse ? solve_by_inverse(widths, bends) : zeros(n);
    }
    return result;
}

} // namespace ox::internal
