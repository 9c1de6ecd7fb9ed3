#include <ox/mesh/ox_triangle_set.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include <ox/core/ox_log.h>
#include <ox/mesh/internal/edge_table.h>

namespace ox {

namespace {

constexpr std::uint64_t max_count = (std::numeric_limits<std::uint32_t>::max)();

/// The sides of a set of triangles, each once, in the order in which they are first met.
struct numbered_sides {
    std::vector<std::uint32_t> side_of_corner; // of the side that leaves each corner
    std::vector<std::uint32_t> first_corner;   // the corner that each side was first met at
};

unsigned int next_corner_index(const unsigned int* triangles, std::size_t corner) {
    return triangles[corner % 3 == 2 ? corner - 2 : corner + 1];
}

numbered_sides number_sides(const unsigned int* triangles, std::uint32_t nb_corners) {
    numbered_sides sides;
    sides.side_of_corner.resize(nb_corners);
    // A closed mesh has half as many sides as corners.
    sides.first_corner.reserve(nb_corners / 2);
    oxp_edge_table table(nb_corners / 2);
    for (std::uint32_t corner = 0; corner < nb_corners; ++corner) {
        const unsigned int start = triangles[corner];
        const unsigned int end = next_corner_index(triangles, corner);
        const std::uint32_t next = static_cast<std::uint32_t>(sides.first_corner.size());
        const std::uint32_t side =
            table.find_or_add(std::min(start, end), std::max(start, end), next);
        if (side == next) {
            sides.first_corner.push_back(corner);
        }
        sides.side_of_corner[corner] = side;
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
        ox_log("too many triangles");
        return;
    }
    const numbered_sides sides = number_sides(triangles.get(), 3 * nb_triangles);
    if (nb_vertices + sides.first_corner.size() > max_count) {
        ox_log("too many triangles");
        return;
    }
    ox_triangle_set refined(nb_vertices + static_cast<unsigned int>(sides.first_corner.size()),
                            4 * nb_triangles);
    std::copy(vertices.get(), vertices.get() + nb_vertices, refined.vertices.get());
    ox_3dvector* middle = refined.vertices.get() + nb_vertices;
    for (const std::uint32_t corner : sides.first_corner) {
        const unsigned int start = triangles[corner];
        const unsigned int end = next_corner_index(triangles.get(), corner);
        *middle++ = (vertices[std::min(start, end)] + vertices[std::max(start, end)]) * 0.5f;
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
