#ifndef OX_SOLID_INTERNAL_CSG_BOUNDED_TRIANGULATION_H
#define OX_SOLID_INTERNAL_CSG_BOUNDED_TRIANGULATION_H

#include <array>
#include <vector>

#include <ox/solid/internal/csg/planar_view.h>
#include <ox/solid/internal/csg/scene.h>

namespace ox::internal::csg {

/// Triangles by their points.
using triangle_list = std::vector<std::array<int, 3>>;

/// Cuts faces into triangles in the view along `normal`, the same ones where they overlap; gives a
/// list for each face. A list whose boundary is not exactly that of its face is left empty, with
/// false at its place in `fits`. O(n log n).
std::vector<triangle_list> triangulate_together(const std::vector<grid_point>& points,
                                                const std::vector<const face_boundary*>& faces,
                                                const std::array<double, 3>& normal,
                                                std::vector<bool>& fits);

/// Cuts one face into triangles: in the view along `normal` where that can be done, else as a cone
/// over its edges, which has the right boundary always. O(n log n).
triangle_list triangulate_alone(const std::vector<grid_point>& points, const face_boundary& face,
                                const std::array<double, 3>& normal);

/// True if the border of a region, seen along an axis, winds once around every place that it winds
/// around at all, always the same way. O(n log n).
bool winds_once(const std::vector<grid_point>& points, const face_boundary& border,
                const planar_view& view);

/// True if the triangles have exactly the given boundary.
bool is_boundary_of(const face_boundary& boundary, const triangle_list& triangles);

} // namespace ox::internal::csg

#endif
