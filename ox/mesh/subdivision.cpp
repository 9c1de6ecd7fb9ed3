#include <ox/mesh/ox_triangle_set.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include <ox/core/ox_log.h>
#include <ox/mesh/internal/side_index.h>

namespace ox {

namespace {

constexpr std::uint64_t max_count = (std::numeric_limits<std::uint32_t>::max)();

/// The sides of a set of triangles, each once, in the order in which they are first met.
struct numbered_sides {
    std::vector<std::uint32_t> side_of_corner; // of the side that leaves each corner
    std::vector<std::uint32_t> first_corner;   // the corner that each side was first met at
};

/// The side that leaves a corner, from its smaller to its larger vertex index.
oxp_side side_at(const unsigned int* triangles, std::size_t corner) {
    const unsigned int start = triangles[corner];
    const unsigned int end = triangles[corner % 3 == 2 ? corner - 2 : corner + 1];
    return {std::min(start, end), std::max(start, end)};
}

numbered_sides number_sides(const unsigned int* triangles, std::uint32_t nb_corners,
                            std::uint32_t nb_vertices) {
    const oxp_side_index index(nb_corners, nb_vertices,
                               [=](std::uint32_t corner) { return side_at(triangles, corner); });
    numbered_sides sides;
    sides.side_of_corner.resize(nb_corners);
    for (std::uint32_t corner = 0; corner < nb_corners; ++corner) {
        const std::uint32_t first = index.first(side_at(triangles, corner));
        if (first == corner) {
            sides.side_of_corner[corner] = static_cast<std::uint32_t>(sides.first_corner.size());
            sides.first_corner.push_back(corner);
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
    const numbered_sides sides = number_sides(triangles.get(), 3 * nb_triangles, nb_vertices);
    if (nb_vertices + sides.first_corner.size() > max_count) {
        ox_log_thread_safe("too many triangles");
        return;
    }
    ox_triangle_set refined(nb_vertices + static_cast<unsigned int>(sides.first_corner.size()),
                            4 * nb_triangles);
    std::copy(vertices.get(), vertices.get() + nb_vertices, refined.vertices.get());
    ox_3dvector* middle = refined.vertices.get() + nb_vertices;
    for (const std::uint32_t corner : sides.first_corner) {
        const oxp_side side = side_at(triangles.get(), corner);
        *middle++ = (vertices[side.start] + vertices[side.end]) * 0.5f;
    }
    unsigned int* out = refined.triangles.get();
    for (std::size_t first = 0; first < sides.side_of_corner.size(); first += 3) {
        const std::uint32_t* const side = sides.side_of_corner.data() + first;
        const unsigned int middles[3] = {nb_vertices + side[0], nb_vertices + side[1],
                                         nb_vertices + side[2]};
        out = write_parts(triangles.get() + first, middles, out);
    }
    *this = refined;
}

} // namespace ox
