#include <ox/mesh/ox_triangle_set.h>

#include <algorithm>
#include <cstddef>
#include <utility>

#include <ox/core/ox_log.h>
#include <ox/mesh/internal/large_array.h>

namespace ox {

using namespace internal;

ox_triangle_set::ox_triangle_set() = default;

ox_triangle_set::ox_triangle_set(unsigned int new_nb_vertices, unsigned int new_nb_triangles) {
    allocate(new_nb_vertices, new_nb_triangles);
}

ox_triangle_set::ox_triangle_set(const ox_triangle_set& other) = default;

ox_triangle_set& ox_triangle_set::operator=(const ox_triangle_set& other) = default;

ox_triangle_set::ox_triangle_set(ox_triangle_set&& other) noexcept {
    swap(other);
}

ox_triangle_set& ox_triangle_set::operator=(ox_triangle_set&& other) noexcept {
    swap(other);
    return *this;
}

void ox_triangle_set::swap(ox_triangle_set& other) noexcept {
    std::swap(nb_vertices, other.nb_vertices);
    vertices.swap(other.vertices);
    std::swap(nb_triangles, other.nb_triangles);
    triangles.swap(other.triangles);
}

ox_triangle_set::~ox_triangle_set() = default;

void ox_triangle_set::allocate(unsigned int new_nb_vertices, unsigned int new_nb_triangles) {
    const bool keeps_vertices = new_nb_vertices == nb_vertices;
    allocate_uninitialised(new_nb_vertices, new_nb_triangles);
    if (!keeps_vertices) {
        std::fill(vertices.get(), vertices.get() + nb_vertices, ox_3dvector());
    }
}

void ox_triangle_set::allocate_uninitialised(unsigned int new_nb_vertices,
                                             unsigned int new_nb_triangles) {
    std::shared_ptr<ox_3dvector[]> new_vertices = vertices;
    if (new_nb_vertices != nb_vertices) {
        new_vertices = make_large_array<ox_3dvector>(new_nb_vertices);
    }
    std::shared_ptr<unsigned int[]> new_triangles = triangles;
    if (new_nb_triangles != nb_triangles) {
        new_triangles = make_large_array<unsigned int>(std::size_t{3} * new_nb_triangles);
    }
    nb_vertices = new_nb_vertices;
    vertices.swap(new_vertices);
    nb_triangles = new_nb_triangles;
    triangles.swap(new_triangles);
}

bool ox_triangle_set::has_valid_triangles() const {
    // Without a branch for each index, several are compared at once.
    const unsigned int* const indices = triangles.get();
    unsigned int largest = 0;
    for (std::size_t i = 0; i < std::size_t{3} * nb_triangles; ++i) {
        largest = std::max(largest, indices[i]);
    }
    const bool valid = nb_triangles == 0 || largest < nb_vertices;
    if (!valid) {
        ox_log_thread_safe("invalid triangle index");
    }
    return valid;
}

} // namespace ox
