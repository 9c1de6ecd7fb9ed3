#ifndef OX_POLYGON_INTERNAL_SEARCH_WEIGHTED_CHOICE_H
#define OX_POLYGON_INTERNAL_SEARCH_WEIGHTED_CHOICE_H

#include <algorithm>
#include <cstddef>
#include <vector>

namespace ox::internal {

/// Finds what a number drawn up to the sum of weights stands for: the inversion of the cumulative
/// weights, with a guide table (Chen and Asau, AIIE Transactions 1974).
class weighted_choice {
public:
    /// Adds a weight, which must not be negative. Weights are summed in single precision, in order.
    void add(float weight) { sums.push_back(total() + weight); }

    /// The sum of all weights.
    float total() const { return sums.empty() ? 0.0f : sums.back(); }

    /// To be called after the last `add`: divides the total into cells of equal share, so many that
    /// most belong to one weight alone. O(n).
    void make_guide() {
        last_cell = sums.size() * cells_per_weight - 1;
        cells_per_unit = static_cast<double>(last_cell + 1) / static_cast<double>(total());
        std::size_t i = 0;
        for (std::size_t cell = 0; cell <= last_cell; ++cell) {
            while (i + 1 < sums.size() && cell_of(sums[i]) < cell) {
                ++i;
            }
            guide.push_back(static_cast<unsigned int>(i));
        }
    }

    /// The index of the first running sum that is greater than r, of the last one if none is. There
    /// must be a weight. A constant number of steps on average over [0, total].
    std::size_t find(float r) const {
        std::size_t i = guide[cell_of(r)];
        while (i > 0 && sums[i - 1] > r) {
            --i;
        }
        while (i + 1 < sums.size() && !(sums[i] > r)) {
            ++i;
        }
        return i;
    }

private:
    std::size_t cell_of(float r) const {
        const double place = static_cast<double>(r) * cells_per_unit;
        const double last = static_cast<double>(last_cell);
        return place > 0.0 ? static_cast<std::size_t>(std::min(place, last)) : 0;
    }

    static constexpr std::size_t cells_per_weight = 4;

    std::vector<float> sums;
    std::vector<unsigned int> guide; ///< for each cell, the first index that can stand for it
    std::size_t last_cell = 0;
    double cells_per_unit = 0.0;
};

} // namespace ox::internal

#endif
