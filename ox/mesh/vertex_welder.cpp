#include <ox/mesh/internal/vertex_welder.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include <ox/mesh/internal/tolerances.h>

namespace ox {

namespace {

constexpr std::size_t first_bucket_count = 64;

/// The leaf of a vertex that is in none; the octree never has as many cells.
constexpr std::uint32_t no_leaf = 0xFFFFFFFFu;

std::uint64_t bits_of(double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

/// One round of a multiplicative hash: the high bits of the product reach down.
std::uint64_t mixed(std::uint64_t hash, std::uint64_t value) {
    hash = (hash ^ value) * 0x9E3779B97F4A7C15u;
    return hash ^ (hash >> 32);
}

bool is_nan(const ox_3dvector& v) {
    return std::isnan(v.x) || std::isnan(v.y) || std::isnan(v.z);
}

} // namespace

oxp_vertex_welder::oxp_vertex_welder(float weld_distance, float weld_normal_distance)
    : position_tolerance(weld_distance), normal_tolerance(weld_normal_distance),
      buckets(first_bucket_count, none) {
    // An infinite tolerance joins the two farthest floats, whose difference is still finite in
    // double precision.
    const double finite_tolerance = std::min(weld_distance, (std::numeric_limits<float>::max)());
    search_reach = search_reach_in_tolerances * finite_tolerance;
    search_cells_per_unit = 1.0 / std::max(search_cell_in_reaches * search_reach, min_search_cell);
}

std::uint32_t oxp_vertex_welder::weld(std::uint32_t leaf, const ox_3dvector& p,
                                      const ox_3dvector& n) {
    // What can join nothing is kept out of the chains: thousands of broken normals at one place
    // would make every search there a long one.
    if (!(position_tolerance >= 0.f) || !(normal_tolerance >= 0.f) || is_nan(n)) {
        return add_alone(p, n);
    }
    const std::uint32_t found = find(leaf, p, n);
    if (found != none) {
        return found;
    }
    const std::uint32_t welded = add_alone(p, n);
    places[welded].leaf = leaf;
    if (places.size() > buckets.size()) {
        enlarge_table();
    } else {
        chain(welded);
    }
    return welded;
}

std::uint32_t oxp_vertex_welder::add_alone(const ox_3dvector& p, const ox_3dvector& n) {
    const std::uint32_t welded = static_cast<std::uint32_t>(places.size());
    places.push_back({no_leaf, none});
    positions.push_right(p);
    normals.push_right(n);
    return welded;
}

std::uint32_t oxp_vertex_welder::find(std::uint32_t leaf, const ox_3dvector& p,
                                      const ox_3dvector& n) const {
    double xs[3], ys[3], zs[3];
    const int nb_xs = grid_coordinates_near(p.x, xs);
    const int nb_ys = grid_coordinates_near(p.y, ys);
    const int nb_zs = grid_coordinates_near(p.z, zs);
    std::uint32_t first = none;
    for (int i = 0; i < nb_xs; ++i) {
        for (int j = 0; j < nb_ys; ++j) {
            for (int k = 0; k < nb_zs; ++k) {
                const std::uint32_t newest = buckets[bucket_of(leaf, xs[i], ys[j], zs[k])];
                first = std::min(first, find_in_chain(newest, leaf, p, n));
            }
        }
    }
    return first;
}

std::uint32_t oxp_vertex_welder::find_in_chain(std::uint32_t newest, std::uint32_t leaf,
                                               const ox_3dvector& p, const ox_3dvector& n) const {
    std::uint32_t first = none;
    for (std::uint32_t welded = newest; welded != none; welded = places[welded].next) {
        if (places[welded].leaf == leaf && welded < first && welds(welded, p, n)) {
            first = welded;
        }
    }
    return first;
}

bool oxp_vertex_welder::welds(std::uint32_t welded, const ox_3dvector& p,
                              const ox_3dvector& n) const {
    const ox_3dvector& position = positions.at(static_cast<int>(welded));
    const ox_3dvector& normal = normals.at(static_cast<int>(welded));
    return std::fabs(p.x - position.x) <= position_tolerance &&
           std::fabs(p.y - position.y) <= position_tolerance &&
           std::fabs(p.z - position.z) <= position_tolerance &&
           std::fabs(n.x - normal.x) + std::fabs(n.y - normal.y) + std::fabs(n.z - normal.z) <=
               normal_tolerance;
}

/// Never decreases with the coordinate, whatever the rounding. The sum makes -0 a 0.
double oxp_vertex_welder::grid_coordinate(double coordinate) const {
    return std::floor(coordinate * search_cells_per_unit) + 0.0;
}

/// The grid coordinates of everything within the tolerance, each once. The reach is half a cell to
/// both sides together, so its two ends name all cells there are; where the coordinate is so large
/// that whole cells are lost in rounding, only equal coordinates weld, and the middle is theirs.
int oxp_vertex_welder::grid_coordinates_near(float coordinate, double (&found)[3]) const {
    const double middle = coordinate;
    const double below = grid_coordinate(middle - search_reach);
    const double above = grid_coordinate(middle + search_reach);
    int nb_found = 0;
    found[nb_found++] = grid_coordinate(middle);
    if (below != found[0]) {
        found[nb_found++] = below;
    }
    if (above != found[0]) {
        found[nb_found++] = above;
    }
    return nb_found;
}

std::size_t oxp_vertex_welder::bucket_of(std::uint32_t leaf, double x, double y, double z) const {
    std::uint64_t hash = mixed(leaf, bits_of(x));
    hash = mixed(hash, bits_of(y));
    hash = mixed(hash, bits_of(z));
    return static_cast<std::size_t>(hash) & (buckets.size() - 1);
}

void oxp_vertex_welder::chain(std::uint32_t welded) {
    const ox_3dvector& p = positions.at(static_cast<int>(welded));
    const std::size_t bucket = bucket_of(places[welded].leaf, grid_coordinate(p.x),
                                         grid_coordinate(p.y), grid_coordinate(p.z));
    places[welded].next = buckets[bucket];
    buckets[bucket] = welded;
}

void oxp_vertex_welder::enlarge_table() {
    buckets.assign(buckets.size() * 2, none);
    for (std::uint32_t welded = 0; welded < places.size(); ++welded) {
        if (places[welded].leaf != no_leaf) {
            chain(welded);
        }
    }
}

} // namespace ox
