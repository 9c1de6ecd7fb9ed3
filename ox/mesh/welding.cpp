#include <ox/mesh/ox_triangle_set.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include <ox/core/ox_log.h>
#include <ox/mesh/internal/tolerances.h>
#include <ox/mesh/internal/vertex_octree.h>
#include <ox/mesh/internal/vertex_welder.h>

namespace ox {

namespace {

/// Grows the root over all vertices; false when that takes too many doublings.
bool grow_over(oxp_vertex_octree& octree, const ox_3dvector* vertices, std::size_t nb_vertices) {
    int nb_doublings = 0;
    for (std::size_t i = 0; i < nb_vertices; ++i) {
        while (!octree.contains(vertices[i])) {
            if (++nb_doublings > max_root_doublings) {
                return false;
            }
            octree.grow_towards(vertices[i]);
        }
    }
    return true;
}

ox_3dvector unit_normal(const ox_3dvector& a, const ox_3dvector& b, const ox_3dvector& c) {
    ox_3dvector normal = ox_cross(b - a, c - a);
    normal.normalize();
    return normal;
}

} // namespace

void ox_triangle_set::optimize(float position_tolerance, float normal_tolerance) {
    oxp_vertex_octree octree;
    if (!has_valid_triangles()) {
        return;
    }
    if (!grow_over(octree, vertices.get(), nb_vertices)) {
        ox_log_thread_safe("too many octrees");
        return;
    }
    // The indices are rewritten last, so that memory that runs out midway leaves them whole.
    const std::size_t nb_corners = std::size_t{3} * nb_triangles;
    std::vector<unsigned int> welded_corners(nb_corners);
    oxp_vertex_welder welder(position_tolerance, normal_tolerance);
    for (std::size_t first = 0; first < nb_corners; first += 3) {
        const unsigned int* const corners = triangles.get() + first;
        const ox_3dvector normal =
            unit_normal(vertices[corners[0]], vertices[corners[1]], vertices[corners[2]]);
        for (std::size_t i = 0; i < 3; ++i) {
            const ox_3dvector& p = vertices[corners[i]];
            const std::uint32_t leaf = octree.leaf_at_depth(p, set_octree_depth);
            welded_corners[first + i] = welder.weld(leaf, p, normal);
        }
    }
    replace_vertices(welder.get_positions());
    std::copy(welded_corners.begin(), welded_corners.end(), triangles.get());
}

void ox_triangle_set::replace_vertices(const ox_list<ox_3dvector>& replacements) {
    const std::size_t count = static_cast<std::size_t>(replacements.size());
    std::shared_ptr<ox_3dvector[]> replaced(count == 0 ? nullptr : new ox_3dvector[count]);
    std::copy(replacements.begin(), replacements.end(), replaced.get());
    vertices.swap(replaced);
    nb_vertices = static_cast<unsigned int>(count);
}

} // namespace ox
