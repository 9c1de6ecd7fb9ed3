#ifndef OX_SOLID_INTERNAL_CSG_SCENE_H
#define OX_SOLID_INTERNAL_CSG_SCENE_H

#include <vector>

#include <ox/solid/internal/csg/box_tree.h>
#include <ox/solid/internal/csg/shell.h>

namespace ox::internal::csg {

/// A plane near some points, its normal of unit length; a zero normal where they have no area.
struct fitted_plane {
    std::array<double, 3> normal = {0.0, 0.0, 0.0};
    grid_point point = {0, 0, 0};
    double area = 0.0; ///< twice the area that was fitted, in squared steps

    /// The signed distance of a point, in steps.
    double distance(const grid_point& p) const { return dot(normal, difference(point, p)); }
};

/// The plane of a face through the middle of its corners, by the area that its edges enclose.
fitted_plane fit_plane(const std::vector<grid_point>& points, const face_boundary& boundary);

/// The largest distance of the corners of a face from a plane.
double deviation_from(const fitted_plane& plane, const std::vector<grid_point>& points,
                      const face_boundary& boundary);

/// A face of an operand among those of the others.
struct scene_face {
    int operand = 0;
    face_boundary boundary;
    fitted_plane plane;      ///< as the operand was given
    double unevenness = 0.0; ///< how far its corners lie from that plane
    int cluster = 0;         ///< faces of one plane have the same number
    bool is_apart = false;   ///< true where no face of another operand is within the tolerance
    bool is_clear = false;   ///< true for a triangle that meets others only in what they share
    bool is_divided = false; ///< true where edges were divided since
};

/// True if the corners of a face lie within `reach` of a plane. The first that does not ends it.
bool lies_within(const fitted_plane& plane, const std::vector<grid_point>& points,
                 const face_boundary& boundary, double reach);

/// The corners of a boundary that is one ring of three edges, in its direction; false for others.
bool read_triangle(const face_boundary& boundary, std::array<int, 3>& corners);

/// The shells of all operands, with shared points.
struct scene {
    std::vector<grid_point> points;
    std::vector<ox_3dvector> vertices; ///< what the first points were given as, bit for bit
    std::vector<scene_face> faces;
};

/// Puts the shells together. A point within the tolerance of one of the operands before becomes
/// that point, the nearest pairs first; no two points of one operand become the same. O(n log n).
/// False where `report` ended the work.
bool place_shells(const std::vector<shell>& shells, const working_grid& grid,
                  const progress_report& report, scene& all);

/// Gives the faces of one plane the same number. The largest face not in a cluster yet begins one;
/// faces whose boxes touch those of its members belong to it if all their corners lie within the
/// tolerance of its plane, which is fitted to all of its members (see plane_growth.h). Faces whose
/// boxes meet those of their own operand only are marked as apart, and clear ones among them.
/// False where `report` ended the work. O((n + k) log n).
bool cluster_planes(scene& faces, const working_grid& grid, const progress_report& report);

/// The box around a face.
grid_box box_of_face(const scene& faces, const scene_face& face);

} // namespace ox::internal::csg

#endif
