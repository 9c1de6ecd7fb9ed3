#include <ox/solid/internal/csg/overlay.h>

#include <algorithm>
#include <numeric>
#include <utility>

#include <ox/solid/internal/csg/bounded_triangulation.h>

namespace ox::internal::csg {

namespace {

/// The faces of a scene, those of one cluster next to each other.
std::vector<int> sort_by_cluster(const scene& faces) {
    std::vector<int> order(faces.faces.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&faces](int a, int b) {
        return faces.faces[static_cast<std::size_t>(a)].cluster <
               faces.faces[static_cast<std::size_t>(b)].cluster;
    });
    return order;
}

/// Cuts the faces of one cluster; those that rounding does not let be cut together are cut alone.
void triangulate_cluster(const scene& all, const std::vector<int>& members,
                         std::vector<triangle_list>& triangles) {
    const auto face = [&all](int i) -> const scene_face& {
        return all.faces[static_cast<std::size_t>(i)];
    };
    std::vector<const face_boundary*> boundaries;
    boundaries.reserve(members.size());
    for (const int member : members) {
        boundaries.push_back(&face(member).boundary);
    }
    std::vector<bool> fits;
    std::vector<triangle_list> together = triangulate_together(
        all.points, boundaries, face(face(members.front()).cluster).plane.normal, fits);
    for (std::size_t i = 0; i < members.size(); ++i) {
        const scene_face& member = face(members[i]);
        triangles[static_cast<std::size_t>(members[i])] =
            fits[i] ? std::move(together[i])
                    : triangulate_alone(all.points, member.boundary, member.plane.normal);
    }
}

} // namespace

bool triangulate_faces(const scene& faces, const progress_report& report,
                       std::vector<face_triangle>& triangles) {
    std::vector<triangle_list> lists(faces.faces.size());
    const std::vector<int> order = sort_by_cluster(faces);
    for (std::size_t begin = 0; begin < order.size();) {
        const int cluster = faces.faces[static_cast<std::size_t>(order[begin])].cluster;
        std::vector<int> members;
        for (; begin < order.size() &&
               faces.faces[static_cast<std::size_t>(order[begin])].cluster == cluster;
             ++begin) {
            members.push_back(order[begin]);
        }
        triangulate_cluster(faces, members, lists);
        if (!report(static_cast<double>(begin) / static_cast<double>(order.size()))) {
            return false;
        }
    }
    for (std::size_t f = 0; f < lists.size(); ++f) {
        for (const std::array<int, 3>& vertices : lists[f]) {
            triangles.push_back({vertices, static_cast<int>(f)});
        }
    }
    return true;
}

} // namespace ox::internal::csg
