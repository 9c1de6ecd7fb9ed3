#include <ox/solid/internal/measures/welded_points.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <tuple>
#include <utility>

#include <ox/internal/disjoint_sets.h>
#include <ox/internal/vectors.h>
#include <ox/internal/wide_vector.h>

namespace ox::internal {

namespace {

// The points are sorted into cubic cells half as wide as the tolerance. Two points of one cell are
// always nearer than the tolerance, and a point has no near ones beyond the next cell but one. Cell
// numbers are kept as doubles: far from the origin, where they lose their last digits, different
// floats are farther apart than the tolerance anyway.

constexpr double cells_in_reach = 2.0;

using cell_number = std::array<double, 3>;

/// The points of one cell, a range of the sorted ones.
struct cell {
    cell_number number;
    std::size_t first;
    std::size_t end;
};

/// What lies between two cells.
using cell_step = std::array<double, 3>;

/// The steps that lead, together with all longer ones along z, once to each pair of cells in reach
/// of each other.
std::vector<cell_step> steps_in_reach() {
    std::vector<cell_step> steps = {{0.0, 0.0, 1.0}};
    for (double x = 0.0; x <= cells_in_reach; ++x) {
        for (double y = x == 0.0 ? 1.0 : -cells_in_reach; y <= cells_in_reach; ++y) {
            steps.push_back({x, y, -cells_in_reach});
        }
    }
    return steps;
}

class welding {
public:
    welding(const ox_list<ox_3dvector>& points_to_weld, double tolerance)
        : points(points_to_weld), square_tolerance(tolerance * tolerance), cell_side(tolerance / 2),
          sets(std::max(points_to_weld.size(), 0)) {}

    std::vector<int> run() {
        take_different_points();
        if (cell_side > 0.0) {
            fill_cells();
            for (const cell_step& apart : steps_in_reach()) {
                join_cells(apart);
            }
        }
        std::vector<int> welded(static_cast<std::size_t>(std::max(points.size(), 0)));
        for (int i = 0; i < points.size(); ++i) {
            welded[static_cast<std::size_t>(i)] = sets.find(i);
        }
        return welded;
    }

private:
    /// Joins the finite points that are equal and keeps one of each.
    void take_different_points() {
        for (int i = 0; i < points.size(); ++i) {
            if (is_finite(points[i])) {
                different.push_back(i);
            }
        }
        std::sort(different.begin(), different.end(), [this](int a, int b) {
            return std::tie(points[a].x, points[a].y, points[a].z, a) <
                   std::tie(points[b].x, points[b].y, points[b].z, b);
        });
        const auto join_equal = [this](int a, int b) {
            const bool is_equal = points[a] == points[b];
            if (is_equal) {
                sets.join(a, b);
            }
            return is_equal;
        };
        different.erase(std::unique(different.begin(), different.end(), join_equal),
                        different.end());
    }

    cell_number cell_of(int point) const {
        const ox_3dvector& p = points[point];
        return {std::floor(static_cast<double>(p.x) / cell_side),
                std::floor(static_cast<double>(p.y) / cell_side),
                std::floor(static_cast<double>(p.z) / cell_side)};
    }

    void fill_cells() {
        std::sort(different.begin(), different.end(), [this](int a, int b) {
            return std::make_pair(cell_of(a), a) < std::make_pair(cell_of(b), b);
        });
        for (std::size_t i = 0; i < different.size(); ++i) {
            const cell_number number = cell_of(different[i]);
            if (cells.empty() || cells.back().number < number) {
                cells.push_back({number, i, i});
            }
            cells.back().end = i + 1;
            sets.join(different[cells.back().first], different[i]);
        }
    }

    /// Joins the cells that hold near points and lie `apart`. The cells are sorted, so those that
    /// lie apart from one after the other ascend as well.
    void join_cells(const cell_step& apart) {
        auto next = cells.begin();
        for (const cell& from : cells) {
            const cell_number lowest = {from.number[0] + apart[0], from.number[1] + apart[1],
                                        from.number[2] + apart[2]};
            const cell_number highest = {lowest[0], lowest[1], from.number[2] + cells_in_reach};
            while (next != cells.end() && next->number < lowest) {
                ++next;
            }
            for (auto to = next; to != cells.end() && !(highest < to->number); ++to) {
                join_if_near(from, *to);
            }
        }
    }

    void join_if_near(const cell& a, const cell& b) {
        if (sets.find(different[a.first]) == sets.find(different[b.first])) {
            return;
        }
        for (std::size_t i = a.first; i < a.end; ++i) {
            for (std::size_t j = b.first; j < b.end; ++j) {
                const wide_vector between =
                    to_wide(points[different[i]]) - to_wide(points[different[j]]);
                if (dot(between, between) < square_tolerance) {
                    sets.join(different[i], different[j]);
                    return;
                }
            }
        }
    }

    const ox_list<ox_3dvector>& points;
    const double square_tolerance;
    const double cell_side;
    disjoint_sets sets;
    std::vector<int> different; ///< one of each set of equal points, later cell by cell
    std::vector<cell> cells;    ///< in ascending order
};

} // namespace

std::vector<int> weld_points(const ox_list<ox_3dvector>& points, double tolerance) {
    return welding(points, tolerance).run();
}

} // namespace ox::internal
