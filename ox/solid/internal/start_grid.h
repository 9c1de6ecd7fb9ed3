#ifndef OX_SOLID_INTERNAL_START_GRID_H
#define OX_SOLID_INTERNAL_START_GRID_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include <ox/geometry/ox_3dvector.h>
#include <ox/solid/internal/section_chains.h>

namespace ox {

/// Finds the chains that begin near a point: their first points in the cells of a grid, sorted by
/// a hash of the cell. Chains may be emptied and lengthened at their end while it is in use, their
/// first points stay where they were.
///
/// Points in one cell may be far apart, because hashes collide: what is found are candidates.
class start_grid {
public:
    /// Sorts the first points of the chains, none of which may be empty. `reach` is the distance,
    /// in model units along each axis, within which `visit_near` finds all of them. O(n log n).
    start_grid(const std::vector<ox_solid_contour>& chains, float reach);

    /// Calls `visit` with the index of every chain that begins within reach of `p`, and of some
    /// others, none twice. A point that is not finite is near to nothing.
    template <typename Visitor>
    void visit_near(const ox_3dvector& p, Visitor visit) const;

private:
    using cell_hash = std::uint64_t;

    struct entry {
        cell_hash cell;
        std::size_t chain;
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
void start_grid::visit_near(const ox_3dvector& p, Visitor visit) const {
    const cell_hashes cells = cells_around(p, reach);
    const entry* const end = entries.data() + entries.size();
    for (int i = 0; i < cells.count; ++i) {
        for (const entry* e = find_cell(cells.items[i]); e != end && e->cell == cells.items[i];
             ++e) {
            visit(e->chain);
        }
    }
}

} // namespace ox

#endif
