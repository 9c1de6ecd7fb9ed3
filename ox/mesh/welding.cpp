#include <ox/mesh/ox_triangle_set.h>

#include <algorithm>
#include <cstddef>

#include <ox/core/ox_log.h>
#include <ox/mesh/internal/large_array.h>
#include <ox/mesh/internal/tolerances.h>
#include <ox/mesh/internal/welding/vertex_octree.h>
#include <ox/mesh/internal/welding/vertex_welder.h>
#include <ox/mesh/internal/welding/welded_leaves.h>

namespace ox {

using namespace internal;

namespace {

/// True if a cell contains all of some vertices. The bounds of four vertices are laid out as
/// their coordinates are: in that form a processor compares several at once.
bool contains_all(const octree_cell& cell, const ox_3dvector* vertices, std::size_t count) {
    constexpr std::size_t lanes = 12;
    const ox_3dvector o = cell.origin;
    const float low[lanes] = {o.x, o.y, o.z, o.x, o.y, o.z, o.x, o.y, o.z, o.x, o.y, o.z};
    float high[lanes];
    std::transform(low, low + lanes, high, [&](float origin) { return origin + cell.edge; });
    unsigned int outside[lanes] = {};
    std::size_t i = 0;
    for (; i + 4 <= count; i += 4) {
        const float* const coordinates = &vertices[i].x;
        for (std::size_t lane = 0; lane < lanes; ++lane) {
            outside[lane] |= static_cast<unsigned int>(!(low[lane] <= coordinates[lane])) |
                             static_cast<unsigned int>(!(coordinates[lane] < high[lane]));
        }
    }
    const auto is_inside = [&](const ox_3dvector& p) { return cell.contains(p); };
    return std::all_of(vertices + i, vertices + count, is_inside) &&
           std::count(outside, outside + lanes, 0u) == static_cast<std::ptrdiff_t>(lanes);
}

/// Grows the root over some vertices in order; false when that takes too many doublings, which are
/// counted on from `doubling_count`.
bool grow_over(vertex_octree& octree, const ox_3dvector* vertices, std::size_t count,
               int& doubling_count) {
    for (std::size_t i = 0; i < count; ++i) {
        while (!octree.contains(vertices[i])) {
            if (++doubling_count > max_root_doublings) {
                return false;
            }
            octree.grow_towards(vertices[i]);
        }
    }
    return true;
}

/// Grows the root over all vertices in order; false when that takes too many doublings.
bool grow_over_all(vertex_octree& octree, const ox_3dvector* vertices, std::size_t nb_vertices) {
    int doubling_count = 0;
    for (std::size_t first = 0; first < nb_vertices; first += welding_block) {
        const std::size_t count = std::min(welding_block, nb_vertices - first);
        if (!contains_all(octree.get_root(), vertices + first, count) &&
            !grow_over(octree, vertices + first, count, doubling_count)) {
            return false;
        }
    }
    return true;
}

ox_3dvector unit_normal(const ox_3dvector& a, const ox_3dvector& b, const ox_3dvector& c) {
    ox_3dvector normal = ox_cross(b - a, c - a);
    normal.normalize();
    return normal;
}

/// True if normals can keep the corners of a set apart. Otherwise they need no computing.
bool tells_normals_apart(float normal_tolerance, const octree_cell& root) {
    return !(normal_tolerance >= indifferent_normal_tolerance) ||
           root.edge > max_root_edge_of_finite_normals;
}

/// The corners of triangles on their way into a welder.
class corner_block {
public:
    corner_block(const ox_3dvector* set_vertices, const vertex_welder& target, bool needs_normals)
        : vertices(set_vertices), welder(target), with_normals(needs_normals) {}

    /// Fills the block with `count` corners, of whole triangles.
    void fill(const unsigned int* corners, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            block[i].position = vertices[corners[i]];
            block[i].cell = welder.cell_of(block[i].position);
        }
        for (std::size_t i = 0; with_normals && i < count; i += 3) {
            const ox_3dvector normal =
                unit_normal(block[i].position, block[i + 1].position, block[i + 2].position);
            block[i].normal = block[i + 1].normal = block[i + 2].normal = normal;
        }
    }

    const vertex_welder::candidate* data() const { return block; }

private:
    const ox_3dvector* vertices;
    const vertex_welder& welder;
    bool with_normals;
    vertex_welder::candidate block[welding_block];
};

} // namespace

void ox_triangle_set::optimize(float position_tolerance, float normal_tolerance) {
    vertex_octree octree;
    if (!has_valid_triangles()) {
        return;
    }
    if (!grow_over_all(octree, vertices.get(), nb_vertices)) {
        ox_log_thread_safe("too many octrees");
        return;
    }
    const octree_cell root = octree.get_root();
    const float leaf_size = root.edge / set_root_in_leaf_parents;
    const double crowding_edge = search_grid(position_tolerance).narrowest_cell_edge();
    vertex_welder welder(position_tolerance, normal_tolerance,
                         welded_leaves(octree, leaf_size, crowding_edge));
    // The indices are rewritten last, so that memory that runs out midway leaves them whole.
    const std::size_t corner_count = std::size_t{3} * nb_triangles;
    const auto welded_corners = make_large_array<unsigned int>(corner_count);
    welder.expect(corner_count);
    corner_block block(vertices.get(), welder, tells_normals_apart(normal_tolerance, root));
    for (std::size_t first = 0; first < corner_count; first += welding_block) {
        const std::size_t count = std::min(welding_block, corner_count - first);
        block.fill(triangles.get() + first, count);
        welder.weld(block.data(), count, welded_corners.get() + first);
    }
    replace_vertices(welder.get_positions());
    std::copy(welded_corners.get(), welded_corners.get() + corner_count, triangles.get());
}

void ox_triangle_set::replace_vertices(const ox_list<ox_3dvector>& replacements) {
    const std::size_t count = static_cast<std::size_t>(replacements.size());
    std::shared_ptr<ox_3dvector[]> replaced = make_large_array<ox_3dvector>(count);
    std::copy(replacements.begin(), replacements.end(), replaced.get());
    vertices.swap(replaced);
    nb_vertices = static_cast<unsigned int>(count);
}

} // namespace ox
