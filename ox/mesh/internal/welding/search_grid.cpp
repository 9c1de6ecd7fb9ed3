#include <ox/mesh/internal/welding/search_grid.h>

#include <algorithm>
#include <limits>

#include <ox/mesh/internal/tolerances.h>

namespace ox::internal {

search_grid::search_grid(float tolerance) {
    // An infinite tolerance joins the two farthest floats, whose difference is still finite in
    // double precision.
    const double finite_tolerance = std::min(tolerance, (std::numeric_limits<float>::max)());
    reach = search_reach_in_tolerances * finite_tolerance;
    cell_in_reaches = widest_search_cell_in_reaches;
    set_cell_edge(cell_in_reaches * reach);
}

bool search_grid::halve_cells() {
    if (cell_in_reaches <= narrowest_search_cell_in_reaches) {
        return false;
    }
    cell_in_reaches *= 0.5;
    set_cell_edge(cell_in_reaches * reach);
    return true;
}

double search_grid::narrowest_cell_edge() const {
    return narrowest_search_cell_in_reaches * reach;
}

void search_grid::set_cell_edge(double edge) {
    cells_per_unit = 1.0 / std::max(edge, min_search_cell);
}

int search_grid::keys_near(const ox_3dvector& p, std::uint64_t (&keys)[max_near]) const {
    double xs[3], ys[3], zs[3];
    const int x_count = coordinates_near(p.x, xs);
    const int y_count = coordinates_near(p.y, ys);
    const int z_count = coordinates_near(p.z, zs);
    int found_count = 0;
    for (int i = 0; i < x_count; ++i) {
        for (int j = 0; j < y_count; ++j) {
            for (int k = 0; k < z_count; ++k) {
                keys[found_count++] = key_of_cell(xs[i], ys[j], zs[k]);
            }
        }
    }
    return found_count;
}

/// The coordinates of everything within the tolerance, each once. The reach is half a cell, or
/// less, to both sides together, so its two ends name all cells there are; where the position is
/// so large that whole cells are lost in rounding, only equal positions weld, and the middle is
/// theirs.
int search_grid::coordinates_near(float position, double (&found)[3]) const {
    const double middle = position;
    const double below = coordinate(middle - reach);
    const double above = coordinate(middle + reach);
    int found_count = 0;
    found[found_count++] = coordinate(middle);
    if (below != found[0]) {
        found[found_count++] = below;
    }
    if (above != found[0]) {
        found[found_count++] = above;
    }
    return found_count;
}

} // namespace ox::internal
