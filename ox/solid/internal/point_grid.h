#ifndef OX_SOLID_INTERNAL_POINT_GRID_H
#define OX_SOLID_INTERNAL_POINT_GRID_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include <ox/geometry/ox_3dvector.h>

namespace ox {

/// Finds which of many points lie near another: they are kept in the cells of a grid, sorted by a
/// hash of the cell. Points in one cell may be far apart, and hashes collide: what is found are
/// candidates.
class point_grid {
public:
    /// Sorts the points. `reach` is the distance, in model units along each axis, within which
    /// `visit_near` finds all of them. A point that is not finite is never found. O(n log n).
    point_grid(const std::vector<ox_3dvector>& points, float reach);

    /// Calls `visit` with the index of every point within reach of `p`, and of some others, none
    /// twice. A `p` that is not finite is near to nothing.
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
    const entry* find_cell(cell_hash cell) const;

    double reach;
    std::vector<entry> entries;
};

template <typename Visitor>
void point_grid::visit_near(const ox_3dvector& p, Visitor visit) const {
    const cell_hashes cells = cells_around(p, reach);
    const entry* const end = entries.data() + entries.size();
    for (int i = 0; i < cells.count; ++i) {
        const cell_hash cell = cells.items[i];
        for (const entry* e = find_cell(cell); e != end && e->cell == cell; ++e) {
            visit(e->point);
        }
    }
}

} // namespace ox

#endif
