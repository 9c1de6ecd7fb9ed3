#include <ox/solid/ox_solid.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include <ox/solid/internal/ox_solid_state.h>

namespace ox {

namespace {

/// From this capacity on the vertex list grows by halves of itself; below, to the exact need.
constexpr int geometric_growth_start = 16;

/// The capacity a vertex list takes to hold `needed` vertices.
int grown_capacity(int capacity, int needed) {
    if (needed <= capacity) {
        return capacity;
    }
    if (capacity < geometric_growth_start) {
        return needed;
    }
    std::int64_t grown = capacity;
    while (grown < needed) {
        grown += grown / 2;
    }
    return static_cast<int>(std::min<std::int64_t>(grown, (std::numeric_limits<int>::max)()));
}

void append_vertices(ox_list<ox_3dvector>& vertices, const ox_list<ox_3dvector>& added) {
    const int base = vertices.size();
    const int needed = base + added.size();
    vertices.set_size(grown_capacity(vertices.get_capacity(), needed));
    vertices.set_size(needed);
    std::copy(added.begin(), added.end(), vertices.begin() + base);
}

void append_triangles(ox_list<unsigned int>& triangles, const ox_list<unsigned int>& added,
                      unsigned int base) {
    for (const unsigned int index : added) {
        triangles.push_right(index + base);
    }
}

void compute_tesselation(ox_solid_state& state) {
    if (state.tesselation_vertices.size() > 0) {
        return;
    }
    ox_list<ox_3dvector> vertices;
    ox_list<unsigned int> triangles;
    for (ox_polygon* face : state.faces.get_list()) {
        const unsigned int base = static_cast<unsigned int>(vertices.size());
        append_vertices(vertices, face->get_tesselation_vertices());
        append_triangles(triangles, face->get_tesselation_triangles(), base);
    }
    state.tesselation_vertices = std::move(vertices);
    state.tesselation_triangles = std::move(triangles);
}

} // namespace

const ox_list<ox_3dvector>& ox_solid::get_tesselation_vertices() {
    compute_tesselation(get_state());
    return get_state().tesselation_vertices;
}

const ox_list<unsigned int>& ox_solid::get_tesselation_triangles() {
    compute_tesselation(get_state());
    return get_state().tesselation_triangles;
}

void ox_solid::draw_opengl() {
    for (ox_polygon* face : get_faces()) {
        face->draw_opengl();
    }
}

void ox_solid::draw_opengl_contour() {
    for (ox_polygon* face : get_faces()) {
        face->draw_opengl_contour(false);
    }
}

} // namespace ox
