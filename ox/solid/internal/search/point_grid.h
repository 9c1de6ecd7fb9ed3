#ifndef OX_SOLID_INTERNAL_SEARCH_POINT_GRID_H
#define OX_SOLID_INTERNAL_SEARCH_POINT_GRID_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include <ox/geometry/ox_3dvector.h>

namespace ox::internal {

/// Distance within which points are looked up, in tolerances: the distance measured in single
/// precision may be a rounding below the true one.
constexpr float point_grid_reach = 1.01f;

/// Finds which of many points lie near another: they are kept in the cells of a grid, in a hash
/// table by cell. Points in one cell may be far apart, and hashes collide: what is found are
/// candidates.
class point_grid {
public:
    /// Enters the points. `reach` is the distance, in model units along each axis, within which
    /// `visit_near` finds all of them. A point that is not finite is never found. O(n).
    point_grid(const std::vector<ox_3dvector>& points, float reach);

    /// Calls `visit` with the index of every point within reach of `p`, and of some others, none
    /// twice; those of one cell in ascending order. A `p` that is not finite is near to nothing.
    template <typename Visitor>
    void visit_near(const ox_3dvector& p, Visitor visit) const;

private:
    using cell_hash = std::uint64_t;

    struct entry {
        cell_hash cell;
        std::size_t point;
    };

    /// The hashes of the cells that a box around a point reaches into.
    struct cell_hashes {
        cell_hash items[8];
        int count;
    };

    cell_hashes cells_around(const ox_3dvector& p, double distance) const;
    void sort_into_buckets(const std::vector<entry>& unsorted);
    std::size_t bucket_of(cell_hash cell) const { return cell & (starts.size() - 2); }

    double reach;
    std::vector<entry> entries;      ///< bucket by bucket
    std::vector<std::size_t> starts; ///< of the buckets, 2^k of them, and the end of the last one
};

template <typename Visitor>
void point_grid::visit_near(const ox_3dvector& p, Visitor visit) const {
    const cell_hashes cells = cells_around(p, reach);
    for (int i = 0; i < cells.count; ++i) {
        const cell_hash cell = cells.items[i];
        const std::size_t bucket = bucket_of(cell);
        for (std::size_t e = starts[bucket]; e < starts[bucket + 1]; ++e) {
            if (entries[e].cell == cell) {
                visit(entries[e].point);
            }
        }
    }
}

} // namespace ox::internal

#endif
