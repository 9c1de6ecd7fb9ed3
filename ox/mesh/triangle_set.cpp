#include <ox/mesh/ox_triangle_set.h>

#include <algorithm>
#include <cstddef>

#include <ox/core/ox_log.h>

namespace ox {

namespace {

template <typename T>
std::shared_ptr<T[]> new_array(std::size_t count) {
    return std::shared_ptr<T[]>(count == 0 ? nullptr : new T[count]);
}

} // namespace

ox_triangle_set::ox_triangle_set() = default;

ox_triangle_set::ox_triangle_set(unsigned int new_nb_vertices, unsigned int new_nb_triangles) {
    allocate(new_nb_vertices, new_nb_triangles);
}

ox_triangle_set::ox_triangle_set(const ox_triangle_set& other) = default;

ox_triangle_set& ox_triangle_set::operator=(const ox_triangle_set& other) = default;

ox_triangle_set::~ox_triangle_set() = default;

void ox_triangle_set::allocate(unsigned int new_nb_vertices, unsigned int new_nb_triangles) {
    const bool keeps_vertices = new_nb_vertices == nb_vertices;
    const bool keeps_triangles = new_nb_triangles == nb_triangles;
    std::shared_ptr<ox_3dvector[]> new_vertices =
        keeps_vertices ? vertices : new_array<ox_3dvector>(new_nb_vertices);
    std::shared_ptr<unsigned int[]> new_triangles =
        keeps_triangles ? triangles : new_array<unsigned int>(std::size_t{3} * new_nb_triangles);
    nb_vertices = new_nb_vertices;
    vertices.swap(new_vertices);
    nb_triangles = new_nb_triangles;
    triangles.swap(new_triangles);
}

bool ox_triangle_set::has_valid_triangles() const {
    const unsigned int* const indices = triangles.get();
    const bool valid = std::all_of(indices, indices + std::size_t{3} * nb_triangles,
                                   [this](unsigned int index) { return index < nb_vertices; });
    if (!valid) {
        ox_log_thread_safe("invalid triangle index");
    }
    return valid;
}

} // namespace ox
