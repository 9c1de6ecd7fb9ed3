#include <ox/solid/ox_solid.h>

#include <algorithm>
#include <utility>
#include <vector>

#include <ox/internal/contour_view.h>
#include <ox/solid/internal/ox_solid_state.h>

namespace ox {

using namespace internal;

// What is built is put together aside: it may be made from parts of the solid that it becomes.

namespace {

/// The contours of a polygon, one list each.
std::vector<ox_list<ox_3dvector>> copy_contours(ox_polygon& polygon) {
    const ox_list<ox_3dvector>& vertices = polygon.get_contour_vertices();
    std::vector<ox_list<ox_3dvector>> contours;
    for (const contour_view& view : contour_views(polygon.get_contour_sizes())) {
        contours.push_back(elements_of(vertices, view));
    }
    return contours;
}

// Brick

/// Three vectors, one for each axis of a brick.
using axis_vectors = ox_3dvector[3];

/// Adds the parallelogram spanned from `corner` by `u` and `w`, in this direction or reversed.
void add_parallelogram(solid_storage& storage, const ox_3dvector& corner, const ox_3dvector& u,
                       const ox_3dvector& w, const ox_3dvector& normal, bool is_reversed) {
    ox_list<ox_3dvector> corners = ox_make_list({corner, corner + u, corner + u + w, corner + w});
    if (is_reversed) {
        std::reverse(corners.begin(), corners.end());
    }
    ox_polygon face(corner, normal);
    face.add_contour(corners);
    storage.append_polygon(face);
}

/// Makes, for each axis, the face at the origin and the one opposite.
solid_storage make_brick(const ox_3dvector& origin, const axis_vectors& edges,
                         const axis_vectors& near_normals, const axis_vectors& far_normals) {
    solid_storage brick;
    for (int k = 0; k < 3; ++k) {
        const ox_3dvector& u = edges[(k + 1) % 3];
        const ox_3dvector& w = edges[(k + 2) % 3];
        add_parallelogram(brick, origin, u, w, near_normals[k], true);
        add_parallelogram(brick, origin + edges[k], u, w, far_normals[k], false);
    }
    return brick;
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
void add_cap(solid_storage& storage, const std::vector<ox_list<ox_3dvector>>& contours,
             bool is_reversed) {
    ox_polygon cap;
    for (ox_list<ox_3dvector> contour : contours) {
        if (is_reversed) {
            std::reverse(contour.begin(), contour.end());
        }
        cap.add_contour(contour);
    }
    storage.append_polygon(cap);
}

/// Adds the quadrilateral that each edge of a contour sweeps.
void add_sides(solid_storage& storage, const ox_list<ox_3dvector>& contour,
               const ox_3dvector& sweep) {
    for (int i = 0; i < contour.size(); ++i) {
        const int j = i + 1 == contour.size() ? 0 : i + 1;
        ox_polygon side;
        side.add_contour(
            ox_make_list({contour[i], contour[j], contour[j] + sweep, contour[i] + sweep}));
        storage.append_polygon(side);
    }
}

} // namespace

void ox_solid::add_face(ox_polygon& polygon) {
    get_state().storage.append_polygon(polygon);
    get_state().invalidate(); // only now: the polygon may be a cached face of this solid
}

void ox_solid::brick(const ox_3dvector& origin, const ox_3dvector& a, const ox_3dvector& b,
                     const ox_3dvector& c) {
    const axis_vectors edges = {a, b, c};
    axis_vectors near_normals;
    axis_vectors far_normals;
    for (int k = 0; k < 3; ++k) {
        far_normals[k] = ox_cross(edges[(k + 1) % 3], edges[(k + 2) % 3]);
        far_normals[k].normalize();
        near_normals[k] = -far_normals[k];
    }
    get_state().replace_storage(make_brick(origin, edges, near_normals, far_normals));
}

void ox_solid::brick(const ox_3dvector& origin, float dx, float dy, float dz) {
    const axis_vectors edges = {{dx, 0.0f, 0.0f}, {0.0f, dy, 0.0f}, {0.0f, 0.0f, dz}};
    const axis_vectors near_normals = {
        {-1.0f, 0.0f, 0.0f}, {0.0f, -1.0f, 0.0f}, {0.0f, 0.0f, -1.0f}};
    const axis_vectors far_normals = {{1.0f, 0.0f, 0.0f}, {0.0f, 1.0f, 0.0f}, {0.0f, 0.0f, 1.0f}};
    get_state().replace_storage(make_brick(origin, edges, near_normals, far_normals));
}

void ox_solid::extrusion(ox_polygon& polygon, const ox_3dvector& direction) {
    const float rise = ox_dot(polygon.get_normal(), direction);
    const std::vector<ox_list<ox_3dvector>> contours = copy_contours(polygon);
    solid_storage prism;
    add_cap(prism, contours, rise > 0.0f);
    std::vector<ox_list<ox_3dvector>> moved = contours;
    move_contours(moved, direction);
    add_cap(prism, moved, rise < 0.0f);
    for (const ox_list<ox_3dvector>& contour : contours) {
        add_sides(prism, contour, direction);
    }
    get_state().replace_storage(std::move(prism));
}

} // namespace ox
