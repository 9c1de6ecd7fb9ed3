#ifndef OX_SOLID_INTERNAL_CSG_PLANE_GROWTH_H
#define OX_SOLID_INTERNAL_CSG_PLANE_GROWTH_H

#include <vector>

#include <ox/solid/internal/csg/scene.h>

namespace ox::internal::csg {

/// Faces, or pieces of them, among which those of one plane are looked for.
class plane_candidates {
public:
    /// The corners and the area of a candidate.
    virtual const face_boundary& boundary_of(int candidate) const = 0;

    /// Appends the candidates that touch one.
    virtual void find_neighbours(int candidate, std::vector<int>& found) const = 0;

    /// How far a candidate may lie off a plane with this normal; negative where it may not join.
    virtual double allowed_deviation(int candidate, const std::array<double, 3>& normal) const = 0;

    /// True if a candidate faces against `normal`.
    virtual bool is_reversed(int candidate, const std::array<double, 3>& normal) const = 0;

    /// True if the plane of those that have joined may become this one.
    virtual bool may_become(const fitted_plane& plane) const = 0;

    /// Told of each one that joins.
    virtual void join(int candidate) = 0;

protected:
    ~plane_candidates() = default;
};

/// Collects those of one plane around a first candidate. The plane is that of the first one; each
/// time their number has doubled, it becomes the plane of all of them, if they all lie within
/// the reach of it: so a plane is known the better the farther it reaches, and still does not
/// drift.
class plane_growth {
public:
    /// Members lie within `allowed` steps of their plane. Of those that lie off the plane, so many
    /// as `joint_fits` are tried together with all members: a narrow first face says little of the
    /// plane far from it. The candidates and their points outlive the growth.
    plane_growth(plane_candidates& all, const std::vector<grid_point>& all_points, double allowed,
                 int joint_fits)
        : candidates(all), points(all_points), reach(allowed), joint_fit_count(joint_fits) {}

    /// The candidates of one plane, `first` first, until the next call; `plane` is that of the
    /// first one and becomes theirs. O(n log n) for n corners of them and their neighbours.
    const std::vector<int>& run(int first, fitted_plane& plane);

private:
    void grow(fitted_plane& plane);
    void try_to_join(int candidate, const fitted_plane& plane);
    void retry(fitted_plane& plane);
    bool refit(fitted_plane& plane);
    bool fit(double allowed, fitted_plane& plane) const;
    void gather_boundary(const fitted_plane& plane);
    void fit_jointly(fitted_plane& plane);

    plane_candidates& candidates;
    const std::vector<grid_point>& points;
    double reach;
    int joint_fit_count;
    std::vector<int> members;
    std::vector<int> refused;
    std::vector<int> found;       // neighbours of a member
    face_boundary gathered;       // the edges of the members
    std::size_t visited = 0;      // members whose neighbours were tried
    std::size_t fitted_count = 1; // members when the plane was fitted last
};

} // namespace ox::internal::csg

#endif
