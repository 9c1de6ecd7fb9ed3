#include <cstddef>

#include <tests/reference/raytrace.h>

namespace reference {

ray_hit raytrace(const std::vector<std::vector<ox::ox_2dvector>>& contours,
                 const ox::ox_2dvector& start, const ox::ox_2dvector& direction) {
    const auto f = [&](const ox::ox_2dvector& q) {
        return direction.x * q.y - direction.y * q.x -
               (direction.x * start.y - direction.y * start.x);
    };
    std::vector<ray_hit> hits;
    int vertex = 0;
    for (const auto& contour : contours) {
        for (std::size_t i = 0; i < contour.size(); ++i, ++vertex) {
            const ox::ox_2dvector a = contour[i];
            const ox::ox_2dvector b = contour[(i + 1) % contour.size()];
            const float fa = f(a);
            const float fb = f(b);
            if ((fa > 0.f && fb > 0.f) || (fa < 0.f && fb < 0.f) || fa == fb) {
                continue;
            }
            const float t = -fa / (fb - fa);
            ray_hit hit;
            hit.vertex = vertex;
            hit.point = a + t * (b - a);
            hit.edge = b - a;
            hit.distance = ox::ox_dot(hit.point - start, direction);
            if (hit.distance >= 0.f) {
                hits.push_back(hit);
            }
        }
    }
    ray_hit nearest;
    for (const ray_hit& hit : hits) {
        if (nearest.vertex == -1 || hit.distance < nearest.distance) {
            nearest = hit;
        }
    }
    nearest.edge.normalize();
    return nearest;
}

} // namespace reference
