#ifndef OX_SOLID_INTERNAL_CSG_PLANE_GROWTH_H
#define OX_SOLID_INTERNAL_CSG_PLANE_GROWTH_H

#include <functional>
#include <vector>

#include <ox/solid/internal/csg/scene.h>

namespace ox::internal::csg {

/// Faces, or pieces of them, among which those of one plane are looked for.
struct plane_candidates {
    const std::vector<grid_point>* points;

    /// The corners and the area of a candidate.
    std::function<const face_boundary&(int)> boundary_of;

    /// Appends the candidates that touch one.
    std::function<void(int, std::vector<int>&)> find_neighbours;

    /// How far a candidate may lie off a plane with this normal; negative where it may not join.
    std::function<double(int, const std::array<double, 3>&)> allowed_deviation;

    /// True if a candidate faces against `normal`.
    std::function<bool(int, const std::array<double, 3>&)> is_reversed;

    /// Told of each one that joins.
    std::function<void(int)> join;

    /// How many that lie off the plane are tried together with all members: a narrow first face
    /// says little of the plane far from it.
    int joint_fit_count = 0;
};

/// Collects those of one plane around a first candidate, which comes first. The plane is that of
/// the first one; each time their number has doubled, it becomes the plane of all of them, if they
/// all lie within `reach` steps of it: so a plane is known the better the farther it reaches, and
/// still does not drift. O(n log n) for n corners of them and their neighbours.
std::vector<int> collect_plane(int first, fitted_plane& plane, double reach,
                               const plane_candidates& candidates);

} // namespace ox::internal::csg

#endif
