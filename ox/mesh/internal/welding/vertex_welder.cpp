#include <ox/mesh/internal/welding/vertex_welder.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include <ox/internal/vectors.h>
#include <ox/mesh/internal/tolerances.h>

namespace ox::internal {

namespace {

bool is_nan(const ox_3dvector& v) {
    return std::isnan(v.x) || std::isnan(v.y) || std::isnan(v.z);
}

/// Raises the capacity of a list to at least `capacity`, where that is possible.
void reserve(ox_list<ox_3dvector>& list, std::size_t capacity) {
    constexpr std::size_t largest = (std::numeric_limits<int>::max)();
    const int count = list.size();
    list.set_size(static_cast<int>(std::min(capacity, largest)));
    list.set_size(count);
}

} // namespace

vertex_welder::vertex_welder(float weld_distance, float weld_normal_distance,
                             const welded_leaves& leaves_of_octree)
    : position_tolerance(weld_distance), normal_tolerance(weld_normal_distance),
      welds_nothing(!(weld_distance >= 0.0f) || !(weld_normal_distance >= 0.0f)),
      grid(weld_distance), leaves(leaves_of_octree) {}

void vertex_welder::expect(std::size_t nb_vertices) {
    const std::size_t expected = places.size() + nb_vertices / expected_vertices_at_a_place;
    if (expected > places.get_room()) {
        make_room(expected);
    }
}

void vertex_welder::weld(const candidate* vertices, std::size_t count, unsigned int* indices) {
    for (std::size_t i = 0; i < count; ++i) {
        places.prefetch(vertices[i].cell);
    }
    for (std::size_t i = 0; i < count; ++i) {
        indices[i] = weld_one(vertices[i]);
    }
    narrow_crowded_cells();
}

std::uint32_t vertex_welder::weld_one(const candidate& v) {
    if (welds_nothing || !leaves.reach(v.position, positions)) {
        return add_unweldable(v);
    }
    const leaf reached = leaves.leaf_of(v.position);
    const std::uint32_t isolated = find_isolated(v, reached);
    if (isolated != none) {
        return isolated;
    }
    const neighbours found = find_neighbours(v, reached);
    ++search_count;
    candidate_count += found.candidate_count;
    if (found.first != none) {
        return found.first;
    }
    // What can join nothing is kept out of the chains: thousands of broken normals at one place
    // would make every search there a long one.
    return is_nan(v.normal) ? add_unweldable(v) : add(v, reached, !found.any);
}

/// The isolated vertex at the place of v, if its normal agrees and it is found at once.
std::uint32_t vertex_welder::find_isolated(const candidate& v, const leaf& reached) const {
    const place_table::place& newest = places.newest(v.cell + reached.key);
    if (newest.marked && is_repeated(newest.number, newest.position, v, reached)) {
        return newest.number;
    }
    std::uint32_t welded = newest.number;
    for (int i = 0; i < candidates_for_repetition && welded != none; ++i) {
        const ox_3dvector& position = positions.at(static_cast<int>(welded));
        if (places.is_marked(welded) && is_repeated(welded, position, v, reached)) {
            return welded;
        }
        welded = places.older(welded);
    }
    return none;
}

vertex_welder::neighbours vertex_welder::find_neighbours(const candidate& v,
                                                         const leaf& reached) const {
    std::uint64_t cells[search_grid::max_near];
    const int cell_count = grid.keys_near(v.position, cells);
    neighbours found;
    for (int i = 0; i < cell_count; ++i) {
        std::uint32_t welded = places.newest(cells[i] + reached.key).number;
        for (; welded != none; welded = places.older(welded)) {
            ++found.candidate_count;
            const ox_3dvector& position = positions.at(static_cast<int>(welded));
            if (is_close(position, v.position) &&
                leaves.shares(reached, v.position, welded, position)) {
                found.any = true;
                if (welded < found.first && agrees(welded, v.normal)) {
                    found.first = welded;
                }
            }
        }
    }
    return found;
}

bool vertex_welder::is_close(const ox_3dvector& position, const ox_3dvector& p) const {
    return std::fabs(p.x - position.x) <= position_tolerance &&
           std::fabs(p.y - position.y) <= position_tolerance &&
           std::fabs(p.z - position.z) <= position_tolerance;
}

/// Makes a welded vertex that no other ever joins.
std::uint32_t vertex_welder::add_unweldable(const candidate& v) {
    append(v);
    leaves.add_outside();
    places.add_unchained();
    return static_cast<std::uint32_t>(positions.size() - 1);
}

std::uint32_t vertex_welder::add(const candidate& v, const leaf& reached, bool is_isolated) {
    append(v);
    leaves.add(reached);
    places.add(v.cell + reached.key, v.position, is_isolated);
    return static_cast<std::uint32_t>(positions.size() - 1);
}

/// Makes room for one more welded vertex everywhere before it adds anything, so that memory that
/// runs out leaves the welded vertices as they were.
void vertex_welder::append(const candidate& v) {
    if (places.size() == places.get_room()) {
        make_room(places.size() + 1);
    }
    leaves.make_room_for_one();
    if (positions.size() == 0) {
        first_normal = v.normal;
    } else if (has_one_normal && !have_same_bits(v.normal, first_normal)) {
        keep_normals();
        has_one_normal = false;
    }
    positions.push_right(v.position);
    if (keeps_normals) {
        normals.push_right(v.normal);
    }
}

void vertex_welder::keep_normals() {
    reserve(normals, places.get_room());
    while (normals.size() < positions.size()) {
        normals.push_right(first_normal);
    }
    keeps_normals = true;
}

void vertex_welder::make_room(std::size_t at_least) {
    const std::size_t grown = places.get_room() + places.get_room() / 2;
    const std::size_t room = std::max({at_least, grown, first_welding_room});
    reserve(positions, room);
    if (keeps_normals) {
        reserve(normals, room);
    }
    rebuild(room);
}

void vertex_welder::rebuild(std::size_t room) {
    places.make_room(room, positions.get_data(), [this](std::uint32_t welded) {
        const ox_3dvector& position = positions.at(static_cast<int>(welded));
        return grid.key_of(position) + leaves.key_of(welded, position);
    });
}

void vertex_welder::narrow_crowded_cells() {
    if (search_count < searches_to_average) {
        return;
    }
    if (candidate_count > crowded_candidates * search_count && grid.halve_cells()) {
        rebuild(places.get_room());
    }
    search_count = 0;
    candidate_count = 0;
}

} // namespace ox::internal
