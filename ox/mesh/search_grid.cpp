#include <ox/mesh/internal/search_grid.h>

#include <algorithm>
#include <limits>

#include <ox/mesh/internal/tolerances.h>

namespace ox {

oxp_search_grid::oxp_search_grid(float tolerance) {
    // An infinite tolerance joins the two farthest floats, whose difference is still finite in
    // double precision.
    const double finite_tolerance = std::min(tolerance, (std::numeric_limits<float>::max)());
    reach = search_reach_in_tolerances * finite_tolerance;
    cell_in_reaches = widest_search_cell_in_reaches;
    set_cell_edge(cell_in_reaches * reach);
}

bool oxp_search_grid::halve_cells() {
    if (cell_in_reaches <= narrowest_search_cell_in_reaches) {
        return false;
    }
    cell_in_reaches *= 0.5;
    set_cell_edge(cell_in_reaches * reach);
    return true;
}

double oxp_search_grid::narrowest_cell_edge() const {
    return narrowest_search_cell_in_reaches * reach;
}

void oxp_search_grid::set_cell_edge(double edge) {
    cells_per_unit = 1.0 / std::max(edge, min_search_cell);
}

int oxp_search_grid::keys_near(const ox_3dvector& p, std::uint64_t (&keys)[max_near]) const {
    double xs[3], ys[3], zs[3];
    const int nb_xs = coordinates_near(p.x, xs);
    const int nb_ys = coordinates_near(p.y, ys);
    const int nb_zs = coordinates_near(p.z, zs);
    int nb_found = 0;
    for (int i = 0; i < nb_xs; ++i) {
        for (int j = 0; j < nb_ys; ++j) {
            for (int k = 0; k < nb_zs; ++k) {
                keys[nb_found++] = key_of_cell(xs[i], ys[j], zs[k]);
            }
        }
    }
    return nb_found;
}

/// The coordinates of everything within the tolerance, each once. The reach is half a cell, or
/// less, to both sides together, so its two ends name all cells there are; where the position is
/// so large that whole cells are lost in rounding, only equal positions weld, and the middle is
/// theirs.
int oxp_search_grid::coordinates_near(float position, double (&found)[3]) const {
    const double middle = position;
    const double below = coordinate(middle - reach);
    const double above = coordinate(middle + reach);
    int nb_found = 0;
    found[nb_found++] = coordinate(middle);
    if (below != found[0]) {
        found[nb_found++] = below;
    }
    if (above != found[0]) {
        found[nb_found++] = above;
    }
    return nb_found;
}

} // namespace ox
