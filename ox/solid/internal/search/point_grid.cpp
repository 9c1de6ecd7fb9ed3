#include <ox/solid/internal/search/point_grid.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numeric>

#include <ox/internal/hashing.h>
#include <ox/internal/vectors.h>

namespace ox::internal {

namespace {

/// Side of a cell of a grid of points, in reaches: wide enough for most look-ups to touch one cell
/// only.
constexpr double point_grid_cell = 8.0;

/// Shift of that grid, in cells, so that round coordinates do not lie on the border of two cells.
constexpr double point_grid_shift = 0.37;

/// The cells of one axis that a stretch reaches into: one, or two.
struct cell_range {
    double cells[2];
    int count;
};

cell_range cells_between(double first, double last, double cell_size) {
    const double low = std::floor(first / cell_size + point_grid_shift);
    const double high = std::floor(last / cell_size + point_grid_shift);
    return {{low, high}, low == high ? 1 : 2};
}

/// One round of a multiplicative hash over the bits of a cell number.
std::uint64_t mixed(std::uint64_t hash, double cell) {
    const double unsigned_zero = cell + 0.0;
    std::uint64_t bits = 0;
    std::memcpy(&bits, &unsigned_zero, sizeof(bits));
    const std::uint64_t product = spread(hash ^ bits);
    return product ^ (product >> 32U);
}

} // namespace

point_grid::point_grid(const std::vector<ox_3dvector>& points, float reach_of_points)
    : reach(static_cast<double>(reach_of_points)) {
    std::vector<entry> unsorted;
    unsorted.reserve(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        const cell_hashes own = cells_around(points[i], 0.0);
        if (own.count > 0) {
            unsorted.push_back({own.items[0], i});
        }
    }
    sort_into_buckets(unsorted);
}

// A counting sort: counts each bucket, adds up to where the buckets end, and fills them from there
// to their starts.
void point_grid::sort_into_buckets(const std::vector<entry>& unsorted) {
    std::size_t buckets = 1;
    while (buckets < unsorted.size()) {
        buckets *= 2;
    }
    starts.assign(buckets + 1, 0);
    for (const entry& e : unsorted) {
        ++starts[bucket_of(e.cell)];
    }
    std::partial_sum(starts.begin(), starts.end(), starts.begin());
    entries.resize(unsorted.size());
    for (auto e = unsorted.rbegin(); e != unsorted.rend(); ++e) {
        entries[--starts[bucket_of(e->cell)]] = *e;
    }
}

point_grid::cell_hashes point_grid::cells_around(const ox_3dvector& p, double distance) const {
    cell_hashes hashes = {};
    if (!is_finite(p)) {
        return hashes;
    }
    const double cell_size = reach * point_grid_cell;
    cell_range ranges[3];
    for (unsigned int axis = 0; axis < 3; ++axis) {
        const double place = static_cast<double>(p.at(axis));
        ranges[axis] = cells_between(place - distance, place + distance, cell_size);
    }
    for (int i = 0; i < ranges[0].count; ++i) {
        const cell_hash x = mixed(0, ranges[0].cells[i]);
        for (int j = 0; j < ranges[1].count; ++j) {
            const cell_hash xy = mixed(x, ranges[1].cells[j]);
            for (int k = 0; k < ranges[2].count; ++k) {
                hashes.items[hashes.count++] = mixed(xy, ranges[2].cells[k]);
            }
        }
    }
    // Two cells with one hash would be visited twice.
    std::sort(hashes.items, hashes.items + hashes.count);
    hashes.count =
        static_cast<int>(std::unique(hashes.items, hashes.items + hashes.count) - hashes.items);
    return hashes;
}

} // namespace ox::internal
