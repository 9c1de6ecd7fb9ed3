#include <ox/solid/internal/csg/scene.h>

#include <algorithm>
#include <cmath>
#include <tuple>
#include <unordered_set>

#include <ox/solid/internal/csg/point_index.h>

namespace ox::internal::csg {

namespace {

/// A point of a shell that could become one of the scene.
struct vertex_match {
    double square_distance;
    int point;
    int target;

    bool operator<(const vertex_match& other) const {
        return std::tie(square_distance, point, target) <
               std::tie(other.square_distance, other.point, other.target);
    }
};

std::vector<vertex_match> find_matches(const shell& placed, const point_index& near) {
    std::vector<vertex_match> matches;
    for (std::size_t i = 0; i < placed.points.size(); ++i) {
        near.visit_near(placed.points[i], [&](int target, double square) {
            matches.push_back({square, static_cast<int>(i), target});
        });
    }
    std::sort(matches.begin(), matches.end());
    return matches;
}

/// The index in the scene of each point of a shell; points without a match are added.
std::vector<int> place_points(const shell& placed, point_index& near, scene& all) {
    std::vector<int> places(placed.points.size(), -1);
    std::unordered_set<int> taken;
    for (const vertex_match& match : find_matches(placed, near)) {
        int& place = places[static_cast<std::size_t>(match.point)];
        if (place < 0 && taken.insert(match.target).second) {
            place = match.target;
        }
    }
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i] < 0) {
            places[i] = static_cast<int>(all.points.size());
            near.add(placed.points[i], places[i]);
            all.points.push_back(placed.points[i]);
            all.vertices.push_back(placed.vertices[i]);
        }
    }
    return places;
}

/// The mean of the corners, on the grid.
grid_point middle_of(const std::vector<grid_point>& points, const face_boundary& boundary) {
    const grid_point& first = points[static_cast<std::size_t>(boundary.front()[0])];
    std::array<double, 3> sum = {0.0, 0.0, 0.0};
    for (const directed_edge& edge : boundary) {
        const std::array<double, 3> way =
            difference(first, points[static_cast<std::size_t>(edge[0])]);
        sum = {sum[0] + way[0], sum[1] + way[1], sum[2] + way[2]};
    }
    const double count = static_cast<double>(boundary.size());
    return working_grid::round({static_cast<double>(first.x) + sum[0] / count,
                                static_cast<double>(first.y) + sum[1] / count,
                                static_cast<double>(first.z) + sum[2] / count});
}

} // namespace

fitted_plane fit_plane(const std::vector<grid_point>& points, const face_boundary& boundary) {
    fitted_plane plane;
    if (boundary.empty()) {
        return plane;
    }
    plane.point = middle_of(points, boundary);
    std::array<double, 3> sum = {0.0, 0.0, 0.0};
    for (const directed_edge& edge : boundary) {
        const std::array<double, 3> part =
            cross(difference(plane.point, points[static_cast<std::size_t>(edge[0])]),
                  difference(plane.point, points[static_cast<std::size_t>(edge[1])]));
        sum = {sum[0] + part[0], sum[1] + part[1], sum[2] + part[2]};
    }
    plane.area = std::sqrt(dot(sum, sum));
    if (plane.area > 0.0) {
        plane.normal = {sum[0] / plane.area, sum[1] / plane.area, sum[2] / plane.area};
    }
    return plane;
}

double deviation_from(const fitted_plane& plane, const std::vector<grid_point>& points,
                      const face_boundary& boundary) {
    double largest = 0.0;
    for (const directed_edge& edge : boundary) {
        largest =
            std::max(largest, std::fabs(plane.distance(points[static_cast<std::size_t>(edge[0])])));
    }
    return largest;
}

bool lies_within(const fitted_plane& plane, const std::vector<grid_point>& points,
                 const face_boundary& boundary, double reach) {
    return std::all_of(boundary.begin(), boundary.end(), [&](const directed_edge& edge) {
        return std::fabs(plane.distance(points[static_cast<std::size_t>(edge[0])])) <= reach;
    });
}

bool read_triangle(const face_boundary& boundary, std::array<int, 3>& corners) {
    if (boundary.size() != 3) {
        return false;
    }
    const bool is_in_order = boundary[0][1] == boundary[1][0];
    const directed_edge& second = boundary[is_in_order ? 1 : 2];
    const directed_edge& third = boundary[is_in_order ? 2 : 1];
    corners = {boundary[0][0], second[0], third[0]};
    return boundary[0][1] == second[0] && second[1] == third[0] && third[1] == boundary[0][0];
}

grid_box box_of_face(const scene& faces, const scene_face& face) {
    grid_box box;
    for (const directed_edge& edge : face.boundary) {
        box.include(faces.points[static_cast<std::size_t>(edge[0])]);
    }
    return box;
}

bool place_shells(const std::vector<shell>& shells, const working_grid& grid,
                  const progress_report& report, scene& all) {
    point_index near(grid.get_tolerance());
    std::size_t face_count = 0;
    for (const shell& placed : shells) {
        face_count += placed.faces.size();
    }
    all.faces.reserve(face_count);
    for (std::size_t operand = 0; operand < shells.size(); ++operand) {
        const shell& placed = shells[operand];
        const std::vector<int> places = place_points(placed, near, all);
        for (const face_boundary& given : placed.faces) {
            scene_face face;
            face.operand = static_cast<int>(operand);
            face.plane = fit_plane(placed.points, given);
            face.unevenness = deviation_from(face.plane, placed.points, given);
            face.boundary.reserve(given.size());
            for (const directed_edge& edge : given) {
                face.boundary.push_back({places[static_cast<std::size_t>(edge[0])],
                                         places[static_cast<std::size_t>(edge[1])]});
            }
            all.faces.push_back(std::move(face));
        }
        if (!report(static_cast<double>(operand + 1) / static_cast<double>(shells.size()))) {
            return false;
        }
    }
    return true;
}

} // namespace ox::internal::csg
