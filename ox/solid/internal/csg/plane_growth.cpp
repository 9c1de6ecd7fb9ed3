#include <ox/solid/internal/csg/plane_growth.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ox::internal::csg {

namespace {

/// Times that what lay off the plane is tried again after the growth has come to an end.
constexpr int largest_retry_count = 4;

/// The plane of least squares through corners, by their heights over a plane that is nearly it: the
/// area vector says little where narrow faces lie far apart.
fitted_plane fit_corners(const std::array<double, 3>& normal, const std::vector<grid_point>& points,
                         const face_boundary& boundary) {
    fitted_plane fitted = fit_plane(points, boundary);
    const std::array<double, 3> axis = std::fabs(normal[0]) < 0.7
                                           ? std::array<double, 3>{1.0, 0.0, 0.0}
                                           : std::array<double, 3>{0.0, 1.0, 0.0};
    const std::array<double, 3> u = cross(axis, normal);
    const std::array<double, 3> v = cross(normal, u);
    std::array<double, 5> sums = {0.0, 0.0, 0.0, 0.0, 0.0}; // uu, uv, vv, uh, vh
    for (const directed_edge& edge : boundary) {
        const std::array<double, 3> way =
            difference(fitted.point, points[static_cast<std::size_t>(edge[0])]);
        const double along_u = dot(way, u);
        const double along_v = dot(way, v);
        const double height = dot(way, normal);
        sums = {sums[0] + along_u * along_u, sums[1] + along_u * along_v,
                sums[2] + along_v * along_v, sums[3] + along_u * height,
                sums[4] + along_v * height};
    }
    const double determinant = sums[0] * sums[2] - sums[1] * sums[1];
    if (!(determinant > 0.0)) {
        return fitted;
    }
    const double a = (sums[3] * sums[2] - sums[4] * sums[1]) / determinant;
    const double b = (sums[4] * sums[0] - sums[3] * sums[1]) / determinant;
    const std::array<double, 3> tilted = {normal[0] - a * u[0] - b * v[0],
                                          normal[1] - a * u[1] - b * v[1],
                                          normal[2] - a * u[2] - b * v[2]};
    const double length = std::sqrt(dot(tilted, tilted));
    fitted.normal = {tilted[0] / length, tilted[1] / length, tilted[2] / length};
    return fitted;
}

/// A corner of the second edge of a boundary that the first one does not have.
int third_corner(const face_boundary& boundary) {
    const directed_edge& first = boundary[0];
    const directed_edge& second = boundary[1];
    return second[0] == first[0] || second[0] == first[1] ? second[1] : second[0];
}

/// True if no plane passes within `reach` of three corners of a boundary and of all of another one.
/// Three ways of length L from one point whose ends lie within the reach of a plane span at most
/// six reaches times the square of L; what is more than that leaves room for rounding.
bool is_far_from_common_planes(const std::vector<grid_point>& points, const face_boundary& first,
                               const face_boundary& other, double reach) {
    const auto at = [&points](int point) -> const grid_point& {
        return points[static_cast<std::size_t>(point)];
    };
    const grid_point& origin = at(first[0][0]);
    const std::array<double, 3> u = difference(origin, at(first[0][1]));
    const std::array<double, 3> v = difference(origin, at(third_corner(first)));
    const std::array<double, 3> normal = cross(u, v);
    const double extent = std::max(dot(u, u), dot(v, v));
    return std::any_of(other.begin(), other.end(), [&](const directed_edge& edge) {
        const std::array<double, 3> way = difference(origin, at(edge[0]));
        return std::fabs(dot(normal, way)) > 8.0 * reach * std::max(extent, dot(way, way));
    });
}

} // namespace

void plane_growth::try_to_join(int candidate, const fitted_plane& plane) {
    const double allowed = candidates.allowed_deviation(candidate, plane.normal);
    if (allowed < 0.0) {
        return;
    }
    if (lies_within(plane, points, candidates.boundary_of(candidate), allowed)) {
        candidates.join(candidate);
        members.push_back(candidate);
    } else {
        refused.push_back(candidate);
    }
}

void plane_growth::grow(fitted_plane& plane) {
    for (; visited < members.size(); ++visited) {
        if (members.size() >= 2 * fitted_count) {
            refit(plane);
        }
        found.clear();
        candidates.find_neighbours(members[visited], found);
        for (const int candidate : found) {
            try_to_join(candidate, plane);
        }
    }
}

void plane_growth::gather_boundary(const fitted_plane& plane) {
    gathered.clear();
    for (const int member : members) {
        const bool is_reversed = candidates.is_reversed(member, plane.normal);
        for (const directed_edge& edge : candidates.boundary_of(member)) {
            gathered.push_back(is_reversed ? directed_edge{edge[1], edge[0]} : edge);
        }
    }
}

/// Takes the plane of the boundary that was gathered where all of it lies in it; true where it did.
bool plane_growth::fit(double allowed, fitted_plane& plane) const {
    const fitted_plane fitted = fit_corners(plane.normal, points, gathered);
    if (fitted.area == 0.0 || !lies_within(fitted, points, gathered, allowed) ||
        !candidates.may_become(fitted)) {
        return false;
    }
    plane = fitted;
    return true;
}

bool plane_growth::refit(fitted_plane& plane) {
    fitted_count = members.size();
    gather_boundary(plane);
    return fit(reach, plane);
}

/// Tries some of those that were refused together with all members.
void plane_growth::fit_jointly(fitted_plane& plane) {
    std::size_t gathered_members = 0;
    std::size_t own_edge_count = 0;
    for (int attempt = 0; attempt < joint_fit_count && !refused.empty(); ++attempt) {
        const int candidate = refused.back();
        refused.pop_back();
        const double allowed = candidates.allowed_deviation(candidate, plane.normal);
        if (allowed < 0.0 || is_far_from_common_planes(
                                 points, candidates.boundary_of(members.front()),
                                 candidates.boundary_of(candidate), std::min(allowed, reach))) {
            continue;
        }
        if (gathered_members != members.size()) {
            gather_boundary(plane);
            gathered_members = members.size();
            own_edge_count = gathered.size();
        }
        gathered.resize(own_edge_count);
        const face_boundary& added = candidates.boundary_of(candidate);
        gathered.insert(gathered.end(), added.begin(), added.end());
        if (fit(std::min(allowed, reach), plane)) {
            candidates.join(candidate);
            members.push_back(candidate);
            grow(plane);
        }
    }
}

/// Tries those again that lay off the plane before it was fitted to all members.
void plane_growth::retry(fitted_plane& plane) {
    for (int round = 0; round < largest_retry_count; ++round) {
        if (refused.empty() || members.size() == fitted_count || !refit(plane)) {
            return;
        }
        const std::vector<int> tried = std::exchange(refused, {});
        for (const int candidate : tried) {
            try_to_join(candidate, plane);
        }
        grow(plane);
    }
}

const std::vector<int>& plane_growth::run(int first, fitted_plane& plane) {
    members.assign(1, first);
    refused.clear();
    visited = 0;
    fitted_count = 1;
    grow(plane);
    retry(plane);
    fit_jointly(plane);
    return members;
}

} // namespace ox::internal::csg
