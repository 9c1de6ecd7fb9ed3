#include <algorithm>
#include <cstddef>
#include <vector>

#include <ox/solid/internal/ox_solid_state.h>
#include <ox/solid/ox_solid.h>

namespace ox {

namespace {

/// Appends one contour with vertices of its own. `is_outer` opens a face; else it is a hole of the
/// face opened last.
void append_contour(ox_solid_state& state, const ox_list<ox_3dvector>& vertices, int first,
                    int size, bool is_outer) {
    for (int i = first; i < first + size; ++i) {
        state.contours.push_right(state.count_vertices());
        state.vertices.push_right(vertices[i]);
    }
    state.contour_sizes.push_right(is_outer ? size : -size);
}

/// The holes directly inside each outer contour of a polygon, in order, as chained lists.
class hole_lists {
public:
    hole_lists(const ox_list<bool>& orientations, const ox_list<int>& parents)
        : first(static_cast<std::size_t>(parents.size()), -1),
          next(static_cast<std::size_t>(parents.size()), -1) {
        for (int hole = parents.size() - 1; hole >= 0; --hole) {
            const int outer = parents[hole];
            // A hole split off with its outline keeps the number that it had before.
            if (!orientations[hole] && outer >= 0 && outer < parents.size()) {
                next[static_cast<std::size_t>(hole)] = first_of(outer);
                first[static_cast<std::size_t>(outer)] = hole;
            }
        }
    }

    /// The first hole of an outer contour, -1 for none.
    int first_of(int outer) const { return first[static_cast<std::size_t>(outer)]; }

    /// The hole after another of the same outer contour, -1 behind the last.
    int next_of(int hole) const { return next[static_cast<std::size_t>(hole)]; }

private:
    std::vector<int> first;
    std::vector<int> next;
};

/// The contours of a polygon, one list each.
std::vector<ox_list<ox_3dvector>> copy_contours(ox_polygon& polygon) {
    const ox_list<ox_3dvector>& vertices = polygon.get_contour_vertices();
    std::vector<ox_list<ox_3dvector>> contours;
    int next = 0;
    for (const unsigned int size : polygon.get_contour_sizes()) {
        ox_list<ox_3dvector> contour(static_cast<int>(size));
        for (ox_3dvector& vertex : contour) {
            vertex = vertices[next++];
        }
        contours.push_back(contour);
    }
    return contours;
}

// Brick

/// Three vectors, one for each axis of a brick.
using axis_vectors = ox_3dvector[3];

/// Adds the parallelogram spanned from `corner` by `u` and `w`, in this direction or reversed.
void add_parallelogram(ox_solid& solid, const ox_3dvector& corner, const ox_3dvector& u,
                       const ox_3dvector& w, const ox_3dvector& normal, bool is_reversed) {
    ox_list<ox_3dvector> corners;
    corners.push_right(corner);
    corners.push_right(corner + u);
    corners.push_right(corner + u + w);
    corners.push_right(corner + w);
    if (is_reversed) {
        std::reverse(corners.begin(), corners.end());
    }
    ox_polygon face(corner, normal);
    face.add_contour(corners);
    solid.add_face(face);
}

/// Adds, for each axis, the face at the origin and the one opposite.
void add_brick_faces(ox_solid& solid, const ox_3dvector& origin, const axis_vectors& edges,
                     const axis_vectors& near_normals, const axis_vectors& far_normals) {
    for (int k = 0; k < 3; ++k) {
        const ox_3dvector& u = edges[(k + 1) % 3];
        const ox_3dvector& w = edges[(k + 2) % 3];
        add_parallelogram(solid, origin, u, w, near_normals[k], true);
        add_parallelogram(solid, origin + edges[k], u, w, far_normals[k], false);
    }
}

// Extrusion

/// Moves every vertex of the contours.
void move_contours(std::vector<ox_list<ox_3dvector>>& contours, const ox_3dvector& offset) {
    for (ox_list<ox_3dvector>& contour : contours) {
        for (ox_3dvector& vertex : contour) {
            vertex += offset;
        }
    }
}

/// Adds a copy of the contours, reversed on request, as one polygon.
void add_cap(ox_solid& solid, const std::vector<ox_list<ox_3dvector>>& contours, bool is_reversed) {
    ox_polygon cap;
    for (ox_list<ox_3dvector> contour : contours) {
        if (is_reversed) {
            std::reverse(contour.begin(), contour.end());
        }
        cap.add_contour(contour);
    }
    solid.add_face(cap);
}

/// Adds the quadrilateral that each edge of a contour sweeps.
void add_sides(ox_solid& solid, const ox_list<ox_3dvector>& contour, const ox_3dvector& sweep) {
    for (int i = 0; i < contour.size(); ++i) {
        const int j = i + 1 == contour.size() ? 0 : i + 1;
        ox_list<ox_3dvector> corners;
        corners.push_right(contour[i]);
        corners.push_right(contour[j]);
        corners.push_right(contour[j] + sweep);
        corners.push_right(contour[i] + sweep);
        ox_polygon side;
        side.add_contour(corners);
        solid.add_face(side);
    }
}

} // namespace

int ox_solid_state::append_polygon(ox_polygon& polygon) {
    const ox_list<ox_3dvector>& corners = polygon.get_contour_vertices();
    const ox_list<unsigned int>& sizes = polygon.get_contour_sizes();
    const ox_list<bool>& orientations = polygon.get_contour_orientations();
    const hole_lists holes(orientations, polygon.get_contour_parents());

    std::vector<int> starts;
    int start = 0;
    for (const unsigned int size : sizes) {
        starts.push_back(start);
        start += static_cast<int>(size);
    }
    const auto append = [&](int contour) {
        append_contour(*this, corners, starts[static_cast<std::size_t>(contour)],
                       static_cast<int>(sizes[contour]), orientations[contour]);
    };
    int face_count = 0;
    for (int outer = 0; outer < sizes.size(); ++outer) {
        if (!orientations[outer]) {
            continue;
        }
        ++face_count;
        append(outer);
        for (int hole = holes.first_of(outer); hole >= 0; hole = holes.next_of(hole)) {
            append(hole);
        }
    }
    return face_count;
}

void ox_solid::add_face(ox_polygon& polygon) {
    polygon.get_contour_vertices(); // merged while the solid is still as it was
    // The polygon may be a cached face of this solid: it lives until it has been read.
    const face_cache retired = state->invalidate();
    state->append_polygon(polygon);
}

void ox_solid::brick(const ox_3dvector& origin, const ox_3dvector& a, const ox_3dvector& b,
                     const ox_3dvector& c) {
    const ox_3dvector corner = origin; // the arguments may be vertices of this solid
    const axis_vectors edges = {a, b, c};
    axis_vectors near_normals;
    axis_vectors far_normals;
    for (int k = 0; k < 3; ++k) {
        far_normals[k] = ox_cross(edges[(k + 1) % 3], edges[(k + 2) % 3]);
        far_normals[k].normalize();
        near_normals[k] = -far_normals[k];
    }
    clear();
    add_brick_faces(*this, corner, edges, near_normals, far_normals);
}

void ox_solid::brick(const ox_3dvector& origin, float dx, float dy, float dz) {
    const ox_3dvector corner = origin; // may be a vertex of this solid
    const axis_vectors edges = {{dx, 0.0f, 0.0f}, {0.0f, dy, 0.0f}, {0.0f, 0.0f, dz}};
    const axis_vectors near_normals = {
        {-1.0f, 0.0f, 0.0f}, {0.0f, -1.0f, 0.0f}, {0.0f, 0.0f, -1.0f}};
    const axis_vectors far_normals = {{1.0f, 0.0f, 0.0f}, {0.0f, 1.0f, 0.0f}, {0.0f, 0.0f, 1.0f}};
    clear();
    add_brick_faces(*this, corner, edges, near_normals, far_normals);
}

void ox_solid::extrusion(ox_polygon& polygon, const ox_3dvector& direction) {
    const ox_3dvector sweep =
        direction; // may be a vertex of this solid, the polygon one of its faces
    const float rise = ox_dot(polygon.get_normal(), sweep);
    const std::vector<ox_list<ox_3dvector>> contours = copy_contours(polygon);
    clear();
    add_cap(*this, contours, rise > 0.0f);
    std::vector<ox_list<ox_3dvector>> moved = contours;
    move_contours(moved, sweep);
    add_cap(*this, moved, rise < 0.0f);
    for (const ox_list<ox_3dvector>& contour : contours) {
        add_sides(*this, contour, sweep);
    }
}

} // namespace ox
