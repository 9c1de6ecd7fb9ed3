#include <ox/mesh/internal/vertex_welder.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include <ox/mesh/internal/tolerances.h>

namespace ox {

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

oxp_vertex_welder::oxp_vertex_welder(float weld_distance, float weld_normal_distance,
                                     const oxp_welded_leaves& leaves_of_octree)
    : position_tolerance(weld_distance), normal_tolerance(weld_normal_distance),
      search_grid(weld_distance), leaves(leaves_of_octree) {}

void oxp_vertex_welder::expect(std::size_t nb_vertices) {
    const std::size_t expected = chains.size() + nb_vertices / expected_vertices_at_a_place;
    if (expected > chains.get_room()) {
        make_room(expected);
    }
}

void oxp_vertex_welder::weld(const candidate* vertices, std::size_t count, unsigned int* indices) {
    for (std::size_t i = 0; i < count; ++i) {
        chains.prefetch(vertices[i].cell);
    }
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t newest = chains.newest(vertices[i].cell);
        if (newest != none) {
            oxp_prefetch(&positions.at(static_cast<int>(newest)));
        }
    }
    for (std::size_t i = 0; i < count; ++i) {
        indices[i] = weld_one(vertices[i]);
    }
}

std::uint32_t oxp_vertex_welder::weld_one(const candidate& v) {
    // What can join nothing is kept out of the chains: thousands of broken normals at one place
    // would make every search there a long one.
    if (!(position_tolerance >= 0.f) || !(normal_tolerance >= 0.f) || is_nan(v.normal) ||
        !leaves.reach(v.position, positions)) {
        return add_alone(v);
    }
    const leaf reached = leaves.leaf_of(v.position);
    const std::uint32_t known = lone_vertex_at(v, reached);
    if (known != none) {
        return known;
    }
    const neighbours found = find_neighbours(v, reached);
    return found.first != none ? found.first : add(v, reached, !found.any);
}

std::uint32_t oxp_vertex_welder::lone_vertex_at(const candidate& v, const leaf& reached) const {
    std::uint32_t welded = chains.newest(v.cell + reached.key);
    for (; welded != none; welded = chains.older(welded)) {
        const ox_3dvector& position = positions.at(static_cast<int>(welded));
        if (position == v.position && lone[welded] && agrees(welded, v.normal) &&
            leaves.shares(reached, v.position, welded, position)) {
            break;
        }
    }
    return welded;
}

oxp_vertex_welder::neighbours oxp_vertex_welder::find_neighbours(const candidate& v,
                                                                 const leaf& reached) const {
    std::uint64_t cells[oxp_search_grid::max_near];
    const int nb_cells = search_grid.keys_near(v.position, cells);
    neighbours found;
    for (int i = 0; i < nb_cells; ++i) {
        std::uint32_t welded = chains.newest(cells[i] + reached.key);
        for (; welded != none; welded = chains.older(welded)) {
            const ox_3dvector& position = positions.at(static_cast<int>(welded));
            if (is_close(welded, v.position) &&
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

bool oxp_vertex_welder::is_close(std::uint32_t welded, const ox_3dvector& p) const {
    const ox_3dvector& position = positions.at(static_cast<int>(welded));
    return std::fabs(p.x - position.x) <= position_tolerance &&
           std::fabs(p.y - position.y) <= position_tolerance &&
           std::fabs(p.z - position.z) <= position_tolerance;
}

/// While all normals are equal, none has to be looked up.
bool oxp_vertex_welder::agrees(std::uint32_t welded, const ox_3dvector& n) const {
    const ox_3dvector& normal = normals.at(has_one_normal ? 0 : static_cast<int>(welded));
    return std::fabs(n.x - normal.x) + std::fabs(n.y - normal.y) + std::fabs(n.z - normal.z) <=
           normal_tolerance;
}

/// Makes a welded vertex that no other ever joins.
std::uint32_t oxp_vertex_welder::add_alone(const candidate& v) {
    if (chains.size() == chains.get_room()) {
        make_room(chains.size() + 1);
    }
    leaves.add_outside();
    const std::uint32_t welded = append(v, false);
    chains.add_unchained();
    return welded;
}

std::uint32_t oxp_vertex_welder::add(const candidate& v, const leaf& reached, bool is_lone) {
    if (chains.size() == chains.get_room()) {
        make_room(chains.size() + 1);
    }
    leaves.add(reached);
    const std::uint32_t welded = append(v, is_lone);
    chains.add(v.cell + reached.key);
    return welded;
}

std::uint32_t oxp_vertex_welder::append(const candidate& v, bool is_lone) {
    has_one_normal = has_one_normal && (normals.size() == 0 || v.normal == normals.at(0));
    positions.push_right(v.position);
    normals.push_right(v.normal);
    lone.push_back(is_lone);
    return static_cast<std::uint32_t>(positions.size() - 1);
}

/// Room is made everywhere before anything is added, so that memory that runs out leaves the
/// welded vertices as they were.
void oxp_vertex_welder::make_room(std::size_t at_least) {
    const std::size_t grown = chains.get_room() + chains.get_room() / 2;
    const std::size_t room = std::max({at_least, grown, first_welding_room});
    reserve(positions, room);
    reserve(normals, room);
    lone.reserve(room);
    chains.make_room(room, [this](std::uint32_t welded) {
        const ox_3dvector& position = positions.at(static_cast<int>(welded));
        return search_grid.key_of(position) + leaves.key_of(welded, position);
    });
}

} // namespace ox
