#include <ox/solid/internal/csg/clear_faces.h>

#include <algorithm>

#include <ox/solid/internal/csg/exact/plane.h>
#include <ox/solid/internal/csg/planar_view.h>
#include <ox/solid/internal/csg/sorted_edges.h>

namespace ox::internal::csg {

namespace {

/// A corner of a triangle with the ones that follow it.
struct fan_triangle {
    int apex;
    int from;
    int to;
    int face;

    bool operator<(const fan_triangle& other) const { return face < other.face; }
};

/// Looks at the triangles about each point.
class fan_check {
public:
    explicit fan_check(const scene& all_faces);

    /// True if the faces about a point are triangles spread out like a fan.
    bool is_fan(int point) const;

private:
    void add(int number);

    const scene& faces;
    std::vector<bool> has_other_faces; // points of faces that are no triangles
    std::vector<fan_triangle> triangles;
    std::vector<std::size_t> first; // triangle of each point
};

fan_check::fan_check(const scene& all_faces)
    : faces(all_faces), has_other_faces(faces.points.size(), false) {
    triangles.reserve(3 * faces.faces.size());
    for (int face = 0; face < static_cast<int>(faces.faces.size()); ++face) {
        add(face);
    }
    first = sort_by_start(triangles, faces.points.size(),
                          [](const fan_triangle& sorted) { return sorted.apex; });
}

void fan_check::add(int number) {
    const face_boundary& boundary = faces.faces[static_cast<std::size_t>(number)].boundary;
    std::array<int, 3> corners;
    if (read_triangle(boundary, corners)) {
        triangles.push_back({corners[0], corners[1], corners[2], number});
        triangles.push_back({corners[1], corners[2], corners[0], number});
        triangles.push_back({corners[2], corners[0], corners[1], number});
        return;
    }
    for (const directed_edge& edge : boundary) {
        has_other_faces[static_cast<std::size_t>(edge[0])] = true;
    }
}

/// True if a place is seen above another one, or right of it at the same height.
bool is_in_upper_half(const planar_point& place, const planar_point& about) {
    return place.y != about.y ? place.y > about.y : place.x > about.x;
}

bool fan_check::is_fan(int point) const {
    if (has_other_faces[static_cast<std::size_t>(point)]) {
        return false;
    }
    const fan_triangle* const begin = triangles.data() + first[static_cast<std::size_t>(point)];
    const fan_triangle* const end = triangles.data() + first[static_cast<std::size_t>(point) + 1];
    std::array<double, 3> normal = {0.0, 0.0, 0.0};
    for (const fan_triangle* triangle = begin; triangle != end; ++triangle) {
        const std::array<double, 3>& own =
            faces.faces[static_cast<std::size_t>(triangle->face)].plane.normal;
        normal = {normal[0] + own[0], normal[1] + own[1], normal[2] + own[2]};
    }
    const planar_view view(normal);
    const auto seen = [&](int p) { return view.see(faces.points[static_cast<std::size_t>(p)]); };
    const planar_point apex = seen(point);
    int turn_count = 0;
    for (const fan_triangle* triangle = begin; triangle != end; ++triangle) {
        const planar_point from = seen(triangle->from);
        const planar_point to = seen(triangle->to);
        if (orientation(apex, from, to) <= 0) {
            return false;
        }
        turn_count += !is_in_upper_half(from, apex) && is_in_upper_half(to, apex) ? 1 : 0;
    }
    return turn_count == 1;
}

bool shares_corner(const face_boundary& face, const std::array<int, 3>& corners) {
    return std::any_of(face.begin(), face.end(), [&corners](const directed_edge& edge) {
        return edge[0] == corners[0] || edge[0] == corners[1] || edge[0] == corners[2];
    });
}

/// True if all corners of a face lie strictly on one side of a triangle's plane.
bool is_off_plane(const std::vector<grid_point>& points, const std::array<int, 3>& triangle,
                  const face_boundary& face) {
    const auto at = [&points](int i) -> const grid_point& {
        return points[static_cast<std::size_t>(i)];
    };
    const auto side_of = [&](const directed_edge& edge) {
        return exact::orientation(at(triangle[0]), at(triangle[1]), at(triangle[2]), at(edge[0]));
    };
    const int side = face.empty() ? 0 : side_of(face.front());
    return side != 0 && std::all_of(face.begin(), face.end(), [&](const directed_edge& edge) {
               return side_of(edge) == side;
           });
}

/// True if a side of a triangle has, in a view of its front, all corners of a face strictly on its
/// outer side.
bool is_off_side(const std::vector<grid_point>& points, const std::array<int, 3>& triangle,
                 const face_boundary& face, const planar_view& view) {
    const auto seen = [&](int i) { return view.see(points[static_cast<std::size_t>(i)]); };
    const bool is_seen_from_front =
        orientation(seen(triangle[0]), seen(triangle[1]), seen(triangle[2])) > 0;
    for (std::size_t side = 0; side < 3 && is_seen_from_front; ++side) {
        const planar_point from = seen(triangle[side]);
        const planar_point to = seen(triangle[(side + 1) % 3]);
        if (std::all_of(face.begin(), face.end(), [&](const directed_edge& edge) {
                return orientation(from, to, seen(edge[0])) < 0;
            })) {
            return true;
        }
    }
    return false;
}

/// True if a plane is found that parts two faces, the first a triangle with the given corners: that
/// of one of them, or one that stands on a side.
bool are_parted(const scene& faces, const std::array<int, 3>& corners, const scene_face& face,
                const scene_face& other) {
    std::array<int, 3> other_corners;
    const bool is_triangle = read_triangle(other.boundary, other_corners);
    const std::vector<grid_point>& points = faces.points;
    return is_off_plane(points, corners, other.boundary) ||
           (is_triangle && is_off_plane(points, other_corners, face.boundary)) ||
           is_off_side(points, corners, other.boundary, planar_view(face.plane.normal)) ||
           (is_triangle &&
            is_off_side(points, other_corners, face.boundary, planar_view(other.plane.normal)));
}

/// The points of faces that are no longer the triangles that they were.
std::vector<bool> find_changed_points(const scene& faces,
                                      const std::vector<face_triangle>& triangles) {
    std::vector<int> counts(faces.faces.size(), 0);
    for (const face_triangle& triangle : triangles) {
        ++counts[static_cast<std::size_t>(triangle.face)];
    }
    std::vector<bool> is_changed(faces.points.size(), false);
    for (std::size_t f = 0; f < faces.faces.size(); ++f) {
        for (const directed_edge& edge : faces.faces[f].boundary) {
            if (counts[f] != 1 || faces.faces[f].is_divided) {
                is_changed[static_cast<std::size_t>(edge[0])] = true;
            }
        }
    }
    return is_changed;
}

/// The boxes around the faces whose edges were divided, and thereby bent.
std::vector<grid_box> boxes_of_divided(const scene& faces) {
    std::vector<grid_box> boxes;
    for (const scene_face& face : faces.faces) {
        if (face.is_divided) {
            boxes.push_back(box_of_face(faces, face));
        }
    }
    return boxes;
}

} // namespace

void mark_clear_faces(scene& faces, const box_neighbours& neighbours) {
    const fan_check fans(faces);
    std::vector<bool> is_fan(faces.points.size());
    for (int point = 0; point < static_cast<int>(faces.points.size()); ++point) {
        is_fan[static_cast<std::size_t>(point)] = fans.is_fan(point);
    }
    for (int number = 0; number < static_cast<int>(faces.faces.size()); ++number) {
        scene_face& face = faces.faces[static_cast<std::size_t>(number)];
        std::array<int, 3> corners;
        face.is_clear =
            face.is_apart && read_triangle(face.boundary, corners) &&
            std::all_of(corners.begin(), corners.end(),
                        [&](int point) { return is_fan[static_cast<std::size_t>(point)]; }) &&
            std::all_of(neighbours.begin_of(number), neighbours.end_of(number), [&](int other) {
                const scene_face& near = faces.faces[static_cast<std::size_t>(other)];
                return shares_corner(near.boundary, corners) ||
                       are_parted(faces, corners, face, near);
            });
    }
}

std::vector<bool> find_clear_triangles(const scene& faces,
                                       const std::vector<face_triangle>& triangles) {
    const std::vector<bool> is_changed = find_changed_points(faces, triangles);
    const box_tree bent(boxes_of_divided(faces));
    std::vector<bool> is_clear;
    is_clear.reserve(triangles.size());
    for (const face_triangle& triangle : triangles) {
        const scene_face& face = faces.faces[static_cast<std::size_t>(triangle.face)];
        bool is_untouched =
            face.is_clear &&
            std::none_of(triangle.vertices.begin(), triangle.vertices.end(),
                         [&](int point) { return is_changed[static_cast<std::size_t>(point)]; });
        if (is_untouched) {
            bent.visit_meeting(box_of_face(faces, face),
                               [&is_untouched](int) { is_untouched = false; });
        }
        is_clear.push_back(is_untouched);
    }
    return is_clear;
}

} // namespace ox::internal::csg
