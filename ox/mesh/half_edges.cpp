#include <ox/mesh/ox_mesh.h>

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include <ox/mesh/internal/side_index.h>

namespace ox {

class ox_mesh_state {
public:
    ox_list<ox_3dvector> vertices;
    ox_list<unsigned int> triangles;
    std::vector<ox_mesh::ox_half_edge> half_edge_objects; // what the list points to
    ox_list<ox_mesh::ox_half_edge*> half_edges;
    bool closed = false;
};

namespace {

using half_edge = ox_mesh::ox_half_edge;

/// The sides of all complete triangles, without opposites.
std::vector<half_edge> sides_of(const ox_list<unsigned int>& triangles) {
    const int nb_sides = triangles.size() > 0 ? triangles.size() / 3 * 3 : 0;
    std::vector<half_edge> sides(static_cast<std::size_t>(nb_sides));
    for (int corner = 0; corner < nb_sides; ++corner) {
        half_edge& side = sides[static_cast<std::size_t>(corner)];
        side.start = triangles.at(corner);
        side.end = triangles.at(corner % 3 == 2 ? corner - 2 : corner + 1);
        side.triangle = static_cast<unsigned int>(corner / 3);
    }
    return sides;
}

/// Links each side to the first one that runs the other way; tells whether all found one.
bool link_opposites(std::vector<half_edge>& sides, unsigned int nb_vertices) {
    const oxp_side_index index(static_cast<std::uint32_t>(sides.size()), nb_vertices,
                               [&](std::uint32_t i) {
                                   return oxp_side{sides[i].start, sides[i].end};
                               });
    bool closed = true;
    for (half_edge& side : sides) {
        const std::uint32_t opposite = index.first({side.end, side.start});
        if (opposite == oxp_side_index::none) {
            closed = false;
        } else {
            side.opposite = &sides[opposite];
        }
    }
    return closed;
}

} // namespace

ox_mesh::ox_mesh() : state(std::make_shared<ox_mesh_state>()) {}

ox_mesh::ox_mesh(const ox_mesh& other) = default;

ox_mesh& ox_mesh::operator=(const ox_mesh& other) = default;

ox_mesh::~ox_mesh() = default;

void ox_mesh::set_vertices(const ox_list<ox_3dvector>& vertices) {
    state->vertices = vertices;
}

void ox_mesh::set_triangles(const ox_list<unsigned int>& triangles) {
    state->triangles = triangles;
}

const ox_list<ox_3dvector>& ox_mesh::get_vertices() const {
    return state->vertices;
}

const ox_list<unsigned int>& ox_mesh::get_triangles() const {
    return state->triangles;
}

const ox_list<ox_mesh::ox_half_edge*>& ox_mesh::get_half_edges() const {
    return state->half_edges;
}

void ox_mesh::build_half_edges() {
    const int nb_vertices = state->vertices.size();
    std::vector<half_edge> sides = sides_of(state->triangles);
    ox_list<half_edge*> list(static_cast<int>(sides.size()));
    for (std::size_t i = 0; i < sides.size(); ++i) {
        list[static_cast<int>(i)] = &sides[i];
    }
    state->closed =
        link_opposites(sides, nb_vertices > 0 ? static_cast<unsigned int>(nb_vertices) : 0u);
    state->half_edge_objects.swap(sides);
    state->half_edges = std::move(list);
}

bool ox_mesh::is_closed() const {
    return state->closed;
}

} // namespace ox
