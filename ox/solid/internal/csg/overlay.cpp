#include <ox/solid/internal/csg/overlay.h>

#include <numeric>
#include <utility>

#include <ox/solid/internal/csg/bounded_triangulation.h>
#include <ox/solid/internal/csg/edge_register.h>
#include <ox/solid/internal/csg/planar_view.h>
#include <ox/solid/internal/csg/sorted_edges.h>

namespace ox::internal::csg {

namespace {

/// Clusters between two reports; one may have all faces.
constexpr std::size_t report_interval = 16;

/// The faces of one plane.
struct cluster_members {
    const int* first;
    const int* end;

    std::ptrdiff_t count() const { return end - first; }
};

/// Cuts the faces of a scene, cluster by cluster.
class cluster_cutter {
public:
    explicit cluster_cutter(const scene& all_faces)
        : all(all_faces), is_whole(all.faces.size(), false), lists(all.faces.size()) {}

    void cut(const cluster_members& members);
    void append_triangles(std::vector<face_triangle>& triangles) const;

private:
    bool are_tiles(const cluster_members& members, const planar_view& view);
    bool are_beside_each_other(const cluster_members& members, const planar_view& view);
    void overlay(const cluster_members& members, const std::array<double, 3>& normal);

    const scene_face& face(int number) const { return all.faces[static_cast<std::size_t>(number)]; }

    const scene& all;
    std::vector<bool> is_whole; // faces that are triangles already
    std::vector<triangle_list> lists;
    face_boundary border;
};

void cluster_cutter::cut(const cluster_members& members) {
    const std::array<double, 3>& normal = face(face(*members.first).cluster).plane.normal;
    if (are_tiles(members, planar_view(normal))) {
        for (const int* member = members.first; member != members.end; ++member) {
            is_whole[static_cast<std::size_t>(*member)] = true;
        }
    } else {
        overlay(members, normal);
    }
}

/// True if the faces are triangles beside each other: an overlay would leave them as they are.
bool cluster_cutter::are_tiles(const cluster_members& members, const planar_view& view) {
    int common_turn = 0;
    for (const int* member = members.first; member != members.end; ++member) {
        std::array<int, 3> corners;
        if (!read_triangle(face(*member).boundary, corners)) {
            return false;
        }
        const auto seen = [&](std::size_t i) {
            return view.see(all.points[static_cast<std::size_t>(corners[i])]);
        };
        const int turn = orientation(seen(0), seen(1), seen(2));
        if (turn == 0 || turn == -common_turn) {
            return false;
        }
        common_turn = turn;
    }
    return members.count() == 1 || are_beside_each_other(members, view);
}

/// True if triangles that all turn the same way do not overlap: so often as one covers a place, the
/// border that is left of all of them winds around it.
bool cluster_cutter::are_beside_each_other(const cluster_members& members,
                                           const planar_view& view) {
    border.clear();
    for (const int* member = members.first; member != members.end; ++member) {
        border.insert(border.end(), face(*member).boundary.begin(), face(*member).boundary.end());
    }
    cancel_opposites(border);
    return (members.count() == 2 && border.size() == 4) || winds_once(all.points, border, view);
}

/// Lays the faces over each other; those that rounding does not let be cut together are cut alone.
void cluster_cutter::overlay(const cluster_members& members, const std::array<double, 3>& normal) {
    std::vector<const face_boundary*> boundaries;
    boundaries.reserve(static_cast<std::size_t>(members.count()));
    for (const int* member = members.first; member != members.end; ++member) {
        boundaries.push_back(&face(*member).boundary);
    }
    std::vector<bool> fits;
    std::vector<triangle_list> together =
        triangulate_together(all.points, boundaries, normal, fits);
    for (std::size_t i = 0; i < together.size(); ++i) {
        const int member = members.first[i];
        lists[static_cast<std::size_t>(member)] =
            fits[i]
                ? std::move(together[i])
                : triangulate_alone(all.points, face(member).boundary, face(member).plane.normal);
    }
}

void cluster_cutter::append_triangles(std::vector<face_triangle>& triangles) const {
    triangles.reserve(all.faces.size());
    for (int f = 0; f < static_cast<int>(lists.size()); ++f) {
        std::array<int, 3> corners;
        if (is_whole[static_cast<std::size_t>(f)] && read_triangle(face(f).boundary, corners)) {
            triangles.push_back({corners, f});
        }
        for (const std::array<int, 3>& vertices : lists[static_cast<std::size_t>(f)]) {
            triangles.push_back({vertices, f});
        }
    }
}

} // namespace

bool triangulate_faces(const scene& faces, const progress_report& report,
                       std::vector<face_triangle>& triangles) {
    std::vector<int> order(faces.faces.size());
    std::iota(order.begin(), order.end(), 0);
    const std::vector<std::size_t> first = sort_by_start(order, order.size(), [&faces](int face) {
        return faces.faces[static_cast<std::size_t>(face)].cluster;
    });
    cluster_cutter cutter(faces);
    for (std::size_t cluster = 0; cluster < order.size(); ++cluster) {
        if (first[cluster] < first[cluster + 1]) {
            cutter.cut({order.data() + first[cluster], order.data() + first[cluster + 1]});
        }
        if (cluster % report_interval == 0 &&
            !report(static_cast<double>(cluster) / static_cast<double>(order.size()))) {
            return false;
        }
    }
    cutter.append_triangles(triangles);
    return true;
}

} // namespace ox::internal::csg
