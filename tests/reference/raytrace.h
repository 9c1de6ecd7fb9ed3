#ifndef OX_TESTS_REFERENCE_RAYTRACE_H
#define OX_TESTS_REFERENCE_RAYTRACE_H

#include <vector>

#include <ox/geometry/ox_2dvector.h>

namespace reference {

/// What a ray meets first: `vertex` is the index of the edge's first vertex, -1 for nothing.
struct ray_hit {
    int vertex = -1;
    ox::ox_2dvector point;
    ox::ox_2dvector edge;
    float distance = 0.f;
};

/// Plain version of `ox_polygon_projection::raytrace`: all edges that the ray meets are listed, and
/// the nearest one is searched in the list.
ray_hit raytrace(const std::vector<std::vector<ox::ox_2dvector>>& contours,
                 const ox::ox_2dvector& start, const ox::ox_2dvector& direction);

} // namespace reference

#endif
