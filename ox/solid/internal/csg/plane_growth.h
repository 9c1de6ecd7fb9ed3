#ifndef OX_SOLID_INTERNAL_CSG_PLANE_GROWTH_H
#define OX_SOLID_INTERNAL_CSG_PLANE_GROWTH_H

#include <functional>
#include <utility>
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

/// Collects candidates of one plane, for one first candidate after another.
class plane_growth {
public:
    /// Members lie within `allowed` steps of the plane of all of them.
    plane_growth(plane_candidates all, double allowed)
        : candidates(std::move(all)), reach(allowed) {}

    /// Collects those of one plane around a first candidate, which comes first; valid until the
    /// next call. The plane is that of the first one; each time their number has doubled, it
    /// becomes the plane of all of them, if they all lie within reach of it: so a plane is known
    /// the better the farther it reaches, and still does not drift. O(n log n) for n corners of
    /// them and their neighbours.
    const std::vector<int>& collect(int first, const fitted_plane& plane_of_first);

    /// The plane of those collected last.
    const fitted_plane& get_plane() const { return plane; }

private:
    void grow();
    void try_to_join(int candidate);
    bool refit();
    bool fit(const face_boundary& all, double allowed);
    face_boundary boundary_of_members() const;
    void retry_refused();
    void fit_jointly();

    plane_candidates candidates;
    double reach;
    fitted_plane plane;
    std::vector<int> members;
    std::vector<int> refused;
    std::vector<int> neighbours;
    std::size_t visited = 0;      // members whose neighbours were tried
    std::size_t fitted_count = 1; // members when the plane was fitted last
};

} // namespace ox::internal::csg

#endif
