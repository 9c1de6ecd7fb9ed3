#include <ox/mesh/ox_triangle_set.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

#include <ox/core/ox_log.h>
#include <ox/mesh/internal/large_array.h>
#include <ox/mesh/internal/side_index.h>

namespace ox {

using namespace internal;

namespace {

constexpr std::uint64_t max_count = (std::numeric_limits<std::uint32_t>::max)();

/// The sides of a set of triangles, each once, in the order in which they are first met.
struct numbered_sides {
    large_array<std::uint32_t> side_of_corner; // of the side that leaves each corner
    large_array<std::uint32_t> first_corner;   // the corner that each side was first met at
    std::uint32_t count = 0;
};

/// The side that leaves a corner, from its smaller to its larger vertex index.
side side_at(const unsigned int* triangles, std::size_t corner) {
    const unsigned int start = triangles[corner];
    const unsigned int end = triangles[corner % 3 == 2 ? corner - 2 : corner + 1];
    return {std::min(start, end), std::max(start, end)};
}

numbered_sides number_sides(const unsigned int* triangles, std::uint32_t corner_count,
                            std::uint32_t nb_vertices) {
    const side_index index(corner_count, nb_vertices,
                           [=](std::uint32_t corner) { return side_at(triangles, corner); });
    numbered_sides sides;
    sides.side_of_corner = make_large_array<std::uint32_t>(corner_count);
    sides.first_corner = make_large_array<std::uint32_t>(corner_count);
    for (std::uint32_t corner = 0; corner < corner_count; ++corner) {
        const std::uint32_t first = index.first(side_at(triangles, corner));
        if (first == corner) {
            sides.first_corner[sides.count] = corner;
            sides.side_of_corner[corner] = sides.count++;
        } else {
            sides.side_of_corner[corner] = sides.side_of_corner[first];
        }
    }
    return sides;
}

/// Writes the four parts of the triangle with `corners` and side middles `m`.
unsigned int* write_parts(const unsigned int* corners, const unsigned int (&m)[3],
                          unsigned int* out) {
    const unsigned int parts[12] = {corners[0], m[0], m[2], corners[1], m[1], m[0],
                                    corners[2], m[2], m[1], m[0],       m[1], m[2]};
    return std::copy(parts, parts + 12, out);
}

} // namespace

void ox_triangle_set::subdivide() {
    if (!has_valid_triangles()) {
        return;
    }
    if (std::uint64_t{4} * nb_triangles > max_count) {
        ox_log_thread_safe("too many triangles");
        return;
    }
    const std::uint32_t corner_count = 3 * nb_triangles;
    const numbered_sides sides = number_sides(triangles.get(), corner_count, nb_vertices);
    if (std::uint64_t{nb_vertices} + sides.count > max_count) {
        ox_log_thread_safe("too many triangles");
        return;
    }
    ox_triangle_set refined;
    refined.allocate_uninitialised(nb_vertices + sides.count, 4 * nb_triangles);
    ox_3dvector* const middles =
        std::copy(vertices.get(), vertices.get() + nb_vertices, refined.vertices.get());
    for (std::uint32_t i = 0; i < sides.count; ++i) {
        const side side = side_at(triangles.get(), sides.first_corner[i]);
        middles[i] = (vertices[side.start] + vertices[side.end]) * 0.5f;
    }
    unsigned int* out = refined.triangles.get();
    for (std::uint32_t first = 0; first < corner_count; first += 3) {
        const std::uint32_t* const side = &sides.side_of_corner[first];
        const unsigned int m[3] = {nb_vertices + side[0], nb_vertices + side[1],
                                   nb_vertices + side[2]};
        out = write_parts(triangles.get() + first, m, out);
    }
    *this = refined;
}

} // namespace ox
