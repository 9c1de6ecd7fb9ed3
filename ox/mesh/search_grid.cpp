#include <ox/mesh/internal/search_grid.h>

#include <algorithm>
#include <cstring>
#include <limits>

#include <ox/mesh/internal/tolerances.h>

namespace ox {

namespace {

/// Added to a double below 2^51, it leaves no bits for fractions: the sum is rounded to a whole.
constexpr double rounding_to_whole = 6755399441055744.0; // 1.5 * 2^52

std::uint64_t bits_of(double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

/// A multiplicative hash of three numbers; its high bits are the best ones.
std::uint64_t key_of_cell(double x, double y, double z) {
    const std::uint64_t sum = bits_of(x) * 0x9E3779B97F4A7C15u + bits_of(y) * 0xC2B2AE3D27D4EB4Fu +
                              bits_of(z) * 0x165667B19E3779F9u;
    return (sum ^ (sum >> 32)) * 0xD6E8FEB86659FD93u;
}

} // namespace

oxp_search_grid::oxp_search_grid(float tolerance) {
    // An infinite tolerance joins the two farthest floats, whose difference is still finite in
    // double precision.
    const double finite_tolerance = std::min(tolerance, (std::numeric_limits<float>::max)());
    reach = search_reach_in_tolerances * finite_tolerance;
    cells_per_unit = 1.0 / std::max(search_cell_in_reaches * reach, min_search_cell);
}

std::uint64_t oxp_search_grid::key_of(const ox_3dvector& p) const {
    return key_of_cell(coordinate(p.x), coordinate(p.y), coordinate(p.z));
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

/// The nearest whole number of cells, moved by a constant. It never decreases with the position,
/// whatever the rounding, and is the same for 0 and -0.
double oxp_search_grid::coordinate(double position) const {
    return position * cells_per_unit + rounding_to_whole;
}

/// The coordinates of everything within the tolerance, each once. The reach is a quarter of a cell
/// to both sides together, so its two ends name all cells there are; where the position is so
/// large that whole cells are lost in rounding, only equal positions weld, and the middle is
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
