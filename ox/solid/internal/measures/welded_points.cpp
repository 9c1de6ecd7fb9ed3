#include <ox/solid/internal/measures/welded_points.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <tuple>

#include <ox/internal/vectors.h>

namespace ox::internal {

namespace {

// The points are sorted into cubic cells half as wide as the tolerance. Two points of one cell are
// always nearer than the tolerance, and a point has no near ones beyond the next cell but one. Cell
// numbers are kept as doubles: far from the origin, where they lose their last digits, different
// floats are farther apart than the tolerance anyway.

constexpr int cells_in_reach = 2;

/// Sets of points, each known by its lowest index.
class point_sets {
public:
    explicit point_sets(int count) : parents(static_cast<std::size_t>(count)) {
        std::iota(parents.begin(), parents.end(), 0);
    }

    int find(int point) {
        while (at(point) != point) {
            at(point) = at(at(point));
            point = at(point);
        }
        return point;
    }

    void unite(int a, int b) {
        const int root_a = find(a);
        const int root_b = find(b);
        at(std::max(root_a, root_b)) = std::min(root_a, root_b);
    }

private:
    int& at(int point) { return parents[static_cast<std::size_t>(point)]; }

    std::vector<int> parents;
};

struct cell_number {
    double x;
    double y;
    double z;

    bool operator<(const cell_number& other) const {
        return std::tie(x, y, z) < std::tie(other.x, other.y, other.z);
    }
};

/// The points of one cell, a range of the sorted ones.
struct cell {
    cell_number number;
    std::size_t first;
    std::size_t end;
};

/// Cells at a distance along x and y, and from a distance along z on.
struct column {
    double x;
    double y;
    double lowest_z;
};

/// The columns that hold each pair of cells in reach of each other once.
std::vector<column> columns_in_reach() {
    std::vector<column> columns = {{0.0, 0.0, 1.0}};
    for (int x = 0; x <= cells_in_reach; ++x) {
        for (int y = x == 0 ? 1 : -cells_in_reach; y <= cells_in_reach; ++y) {
            columns.push_back({static_cast<double>(x), static_cast<double>(y), -cells_in_reach});
        }
    }
    return columns;
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
            for (const column& apart : columns_in_reach()) {
                unite_cells(apart);
            }
        }
        std::vector<int> welded(static_cast<std::size_t>(std::max(points.size(), 0)));
        for (int i = 0; i < points.size(); ++i) {
            welded[static_cast<std::size_t>(i)] = sets.find(i);
        }
        return welded;
    }

private:
    /// Unites the finite points that are equal and keeps one of each.
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
        const auto unite_equal = [this](int a, int b) {
            const bool is_equal = points[a] == points[b];
            if (is_equal) {
                sets.unite(a, b);
            }
            return is_equal;
        };
        different.erase(std::unique(different.begin(), different.end(), unite_equal),
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
            const cell_number cell_a = cell_of(a);
            const cell_number cell_b = cell_of(b);
            return std::tie(cell_a.x, cell_a.y, cell_a.z, a) <
                   std::tie(cell_b.x, cell_b.y, cell_b.z, b);
        });
        for (std::size_t i = 0; i < different.size(); ++i) {
            const cell_number number = cell_of(different[i]);
            if (cells.empty() || cells.back().number < number) {
                cells.push_back({number, i, i});
            }
            cells.back().end = i + 1;
            sets.unite(different[cells.back().first], different[i]);
        }
    }

    /// Unites the cells that hold near points and lie `apart`. The cells are sorted, so those that
    /// lie apart from one after the other ascend as well.
    void unite_cells(const column& apart) {
        auto next = cells.begin();
        for (const cell& from : cells) {
            const cell_number lowest = {from.number.x + apart.x, from.number.y + apart.y,
                                        from.number.z + apart.lowest_z};
            const cell_number highest = {lowest.x, lowest.y, from.number.z + cells_in_reach};
            while (next != cells.end() && next->number < lowest) {
                ++next;
            }
            for (auto to = next; to != cells.end() && !(highest < to->number); ++to) {
                unite_if_near(from, *to);
            }
        }
    }

    void unite_if_near(const cell& a, const cell& b) {
        if (sets.find(different[a.first]) == sets.find(different[b.first])) {
            return;
        }
        for (std::size_t i = a.first; i < a.end; ++i) {
            for (std::size_t j = b.first; j < b.end; ++j) {
                if (square_distance(different[i], different[j]) < square_tolerance) {
                    sets.unite(different[i], different[j]);
                    return;
                }
            }
        }
    }

    double square_distance(int a, int b) const {
        double square = 0.0;
        for (unsigned int axis = 0; axis < 3; ++axis) {
            const double along =
                static_cast<double>(points[a].at(axis)) - static_cast<double>(points[b].at(axis));
            square += along * along;
        }
        return square;
    }

    const ox_list<ox_3dvector>& points;
    const double square_tolerance;
    const double cell_side;
    point_sets sets;
    std::vector<int> different; ///< one of each set of equal points, later cell by cell
    std::vector<cell> cells;    ///< in ascending order
};

} // namespace

std::vector<int> weld_points(const ox_list<ox_3dvector>& points, double tolerance) {
    return welding(points, tolerance).run();
}

} // namespace ox::internal
