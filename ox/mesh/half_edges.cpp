#include <ox/mesh/ox_mesh.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <utility>

#include <ox/mesh/internal/large_array.h>
#include <ox/mesh/internal/side_index.h>
#include <ox/mesh/ox_triangle_set.h>

namespace ox {

using namespace internal;

namespace {

using half_edge = ox_mesh::ox_half_edge;

/// Half-edges in one array.
struct half_edge_array {
    large_array<half_edge> items;
    std::uint32_t count = 0;
};

} // namespace

class ox_mesh_state {
public:
    ox_list<ox_3dvector> vertices;
    ox_list<unsigned int> triangles;
    half_edge_array half_edge_objects; // what the list points to
    ox_list<half_edge*> half_edges;
    bool closed = false;
};

namespace {

/// The sides of all complete triangles, without opposites.
half_edge_array sides_of(const ox_list<unsigned int>& triangles) {
    const std::uint32_t nb_triangles =
        static_cast<std::uint32_t>(std::max(triangles.size(), 0)) / 3;
    half_edge_array sides;
    sides.count = 3 * nb_triangles;
    sides.items = make_large_array<half_edge>(sides.count);
    const unsigned int* corners = triangles.get_data();
    half_edge* side = sides.items.get();
    for (std::uint32_t triangle = 0; triangle < nb_triangles; ++triangle, corners += 3) {
        new (side++) half_edge{corners[0], corners[1], triangle, 0, nullptr};
        new (side++) half_edge{corners[1], corners[2], triangle, 0, nullptr};
        new (side++) half_edge{corners[2], corners[0], triangle, 0, nullptr};
    }
    return sides;
}

/// A list of pointers to all sides, in order.
ox_list<half_edge*> list_of(const half_edge_array& sides) {
    const int count = static_cast<int>(sides.count);
    ox_list<half_edge*> list(count);
    prefer_large_pages(list.get_data(), sides.count * sizeof(half_edge*));
    for (int i = 0; i < count; ++i) {
        list[i] = &sides.items[static_cast<std::size_t>(i)];
    }
    return list;
}

/// Links each side to the first one that runs the other way; tells whether all found one.
bool link_opposites(half_edge_array& sides, std::uint32_t nb_vertices) {
    const half_edge* const items = sides.items.get();
    const side_index index(sides.count, nb_vertices, [=](std::uint32_t i) {
        return side{items[i].start, items[i].end};
    });
    bool closed = true;
    for (std::uint32_t i = 0; i < sides.count; ++i) {
        half_edge& side = sides.items[i];
        const std::uint32_t opposite = index.first({side.end, side.start});
        if (opposite == side_index::none) {
            closed = false;
        } else {
            side.opposite = &sides.items[opposite];
        }
    }
    return closed;
}

/// A copy of `list` that can take `more` items without growing.
template <typename T>
ox_list<T> with_room(const ox_list<T>& list, std::size_t more) {
    const std::size_t count = static_cast<std::size_t>(std::max(list.size(), 0)) + more;
    if (count > static_cast<std::size_t>((std::numeric_limits<int>::max)())) {
        throw std::bad_alloc();
    }
    ox_list<T> copy;
    copy.reserve(static_cast<int>(count));
    for (const T& item : list) {
        copy.push_right(item);
    }
    return copy;
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

void ox_mesh::add(const ox_triangle_set& set) {
    const unsigned int first = static_cast<unsigned int>(std::max(state->vertices.size(), 0));
    const std::size_t index_count = std::size_t{3} * set.get_nb_triangles();
    ox_list<ox_3dvector> vertices = with_room(state->vertices, set.get_nb_vertices());
    ox_list<unsigned int> triangles = with_room(state->triangles, index_count);
    for (unsigned int i = 0; i < set.get_nb_vertices(); ++i) {
        vertices.push_right(set.get_vertices()[i]);
    }
    for (std::size_t i = 0; i < index_count; ++i) {
        triangles.push_right(first + set.get_triangles()[i]);
    }
    state->vertices.swap(vertices);
    state->triangles.swap(triangles);
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
    half_edge_array sides = sides_of(state->triangles);
    ox_list<half_edge*> list = list_of(sides);
    const int nb_vertices = std::max(state->vertices.size(), 0);
    state->closed = link_opposites(sides, static_cast<std::uint32_t>(nb_vertices));
    state->half_edge_objects = std::move(sides);
    state->half_edges = std::move(list);
}

bool ox_mesh::is_closed() const {
    return state->closed;
}

} // namespace ox
