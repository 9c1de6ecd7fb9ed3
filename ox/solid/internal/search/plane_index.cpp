#include <ox/solid/internal/search/plane_index.h>

#include <algorithm>
#include <numeric>
#include <tuple>

#include <ox/internal/vectors.h>
#include <ox/internal/wide_vector.h>
#include <ox/solid/internal/search/roundings.h>

namespace ox::internal {

plane_index::plane_index(const std::vector<face_plane>& face_planes, float plane_tolerance)
    : planes(face_planes), tolerance(plane_tolerance), bundles(make_bundles(face_planes)),
      normals(normals_of(bundles), plane_tolerance * point_grid_reach) {}

std::vector<plane_index::bundle> plane_index::make_bundles(const std::vector<face_plane>& planes) {
    std::vector<std::size_t> order(planes.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    const auto key = [&](std::size_t i) {
        const ox_3dvector& n = planes[i].normal;
        return std::make_tuple(n.x, n.y, n.z, exact_dot(planes[i].point, n));
    };
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return key(a) < key(b); });
    std::vector<bundle> made;
    for (const std::size_t i : order) {
        const face_plane& plane = planes[i];
        if (made.empty() || made.back().normal != plane.normal) {
            made.push_back({plane.normal, 0.0, {}});
        }
        made.back().reach = std::max(made.back().reach, manhattan_size(to_wide(plane.point)));
        made.back().members.push_back({exact_dot(plane.point, plane.normal), i});
    }
    return made;
}

std::vector<ox_3dvector> plane_index::normals_of(const std::vector<bundle>& bundles) {
    std::vector<ox_3dvector> normals;
    normals.reserve(bundles.size());
    for (const bundle& each : bundles) {
        normals.push_back(each.normal);
    }
    return normals;
}

std::vector<std::size_t> plane_index::find_later(std::size_t i) const {
    std::vector<std::size_t> found;
    const face_plane& plane = planes[i];
    normals.visit_near(plane.normal, [&](std::size_t number) {
        const bundle& near = bundles[number];
        const double place = exact_dot(plane.point, near.normal);
        const double roundings = spare_roundings * rounding_allowance *
                                 (manhattan_size(to_wide(plane.point)) + near.reach) *
                                 (1.0 + manhattan_size(to_wide(near.normal)));
        const double distance = static_cast<double>(tolerance) + roundings;
        auto next =
            std::lower_bound(near.members.begin(), near.members.end(), place - distance,
                             [](const member& m, double searched) { return m.place < searched; });
        for (; next != near.members.end() && next->place <= place + distance; ++next) {
            if (next->plane > i) {
                found.push_back(next->plane);
            }
        }
    });
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace ox::internal
