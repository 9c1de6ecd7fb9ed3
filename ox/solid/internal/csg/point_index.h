#ifndef OX_SOLID_INTERNAL_CSG_POINT_INDEX_H
#define OX_SOLID_INTERNAL_CSG_POINT_INDEX_H

#include <cstdint>
#include <unordered_map>
#include <vector>

#include <ox/solid/internal/csg/arrangement.h>
#include <ox/solid/internal/csg/working_grid.h>

namespace ox::internal::csg {

/// Points of the grid by where they are: finds those near a place.
///
/// A hash table of cubic cells as wide as the reach, each with a list of its points. The order of
/// the cells never shows: what is found comes in the order of insertion within a cell, cell by cell
/// in the order of their places.
class point_index {
public:
    /// Finds points nearer than `reach` steps, and equal ones.
    explicit point_index(double reach);

    /// Adds a point under a number of its own.
    void add(const grid_point& point, int number);

    /// Calls `visit(number, squared distance)` for every point near `place`.
    template <typename visitor>
    void visit_near(const grid_point& place, visitor visit) const {
        const cell centre = cell_of(place);
        for (std::int64_t dx = -1; dx <= 1; ++dx) {
            for (std::int64_t dy = -1; dy <= 1; ++dy) {
                for (std::int64_t dz = -1; dz <= 1; ++dz) {
                    visit_cell({centre.x + dx, centre.y + dy, centre.z + dz}, place, visit);
                }
            }
        }
    }

    /// The number of the nearest point, the lowest of several; -1 where there is none near.
    int find_nearest(const grid_point& place) const;

private:
    struct entry {
        grid_point point;
        int number;
    };
    using cell = grid_point;
    struct cell_hash {
        std::size_t operator()(const cell& c) const {
            std::uint64_t mixed = static_cast<std::uint64_t>(c.x) * 0x9E3779B97F4A7C15u;
            mixed = (mixed ^ (mixed >> 29) ^ static_cast<std::uint64_t>(c.y)) * 0xBF58476D1CE4E5B9u;
            mixed = (mixed ^ (mixed >> 32) ^ static_cast<std::uint64_t>(c.z)) * 0x94D049BB133111EBu;
            return static_cast<std::size_t>(mixed ^ (mixed >> 31));
        }
    };

    cell cell_of(const grid_point& point) const;

    template <typename visitor>
    void visit_cell(const cell& where, const grid_point& place, visitor& visit) const {
        const auto found = cells.find(where);
        if (found == cells.end()) {
            return;
        }
        for (const entry& held : found->second) {
            const std::array<double, 3> way = difference(place, held.point);
            const double square = dot(way, way);
            if (square < square_reach || square == 0.0) {
                visit(held.number, square);
            }
        }
    }

    double square_reach;
    std::int64_t width;
    std::unordered_map<cell, std::vector<entry>, cell_hash> cells;
};

} // namespace ox::internal::csg

#endif
