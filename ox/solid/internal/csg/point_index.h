#ifndef OX_SOLID_INTERNAL_CSG_POINT_INDEX_H
#define OX_SOLID_INTERNAL_CSG_POINT_INDEX_H

#include <cstdint>
#include <vector>

#include <ox/solid/internal/csg/arrangement.h>
#include <ox/solid/internal/csg/working_grid.h>

namespace ox::internal::csg {

/// Points of the grid by where they are: finds those near a place.
///
/// A hash table of cubic cells several times as wide as the reach, so that most places have all
/// that is near in their own cell. Nothing that it finds depends on the order within the table:
/// whoever asks either takes all, or the nearest with the lowest number.
class point_index {
public:
    /// Finds points nearer than `reach` steps, and equal ones.
    explicit point_index(double reach);

    /// Adds a point under a number of its own. O(1) on average.
    void add(const grid_point& point, int number);

    /// Calls `visit(number, squared distance)` for every point near `place`.
    template <typename visitor>
    void visit_near(const grid_point& place, visitor visit) const {
        const grid_point first = cell_of({place.x - reach, place.y - reach, place.z - reach});
        const grid_point last = cell_of({place.x + reach, place.y + reach, place.z + reach});
        for (grid_point cell = first; cell.x <= last.x; ++cell.x) {
            for (cell.y = first.y; cell.y <= last.y; ++cell.y) {
                for (cell.z = first.z; cell.z <= last.z; ++cell.z) {
                    visit_cell(cell, place, visit);
                }
            }
        }
    }

    /// The number of the nearest point, the lowest of several; -1 where there is none near.
    int find_nearest(const grid_point& place) const;

private:
    struct entry {
        grid_point point;
        grid_point cell;
        int number;
        int next; ///< the next entry of the same slot, -1 for none
    };

    grid_point cell_of(const grid_point& point) const;
    std::size_t slot_of(const grid_point& cell) const;
    void enlarge();

    template <typename visitor>
    void visit_cell(const grid_point& cell, const grid_point& place, visitor& visit) const {
        for (int i = slots[slot_of(cell)]; i >= 0; i = entries[static_cast<std::size_t>(i)].next) {
            const entry& held = entries[static_cast<std::size_t>(i)];
            const std::array<double, 3> way = difference(place, held.point);
            const double square = dot(way, way);
            if ((square < square_reach || square == 0.0) && held.cell == cell) {
                visit(held.number, square);
            }
        }
    }

    double square_reach;
    std::int64_t reach;
    std::int64_t width;
    std::vector<entry> entries;
    std::vector<int> slots; ///< a power of two of them: the first entry of each, -1 for none
};

} // namespace ox::internal::csg

#endif
