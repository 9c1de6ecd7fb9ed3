#ifndef OX_SOLID_INTERNAL_CSG_CONVEX_FACES_H
#define OX_SOLID_INTERNAL_CSG_CONVEX_FACES_H

#include <ox/solid/internal/csg/bounded_triangulation.h>

namespace ox::internal::csg {

/// Cuts a face of one ring of three or four edges, convex in the view along `normal` and seen from
/// outside, into the triangles that the sweep of `triangulate_regions` cuts it into: most faces of
/// buildings are of this kind. Empty for any other face.
triangle_list cut_convex_face(const std::vector<grid_point>& points, const face_boundary& face,
                              const std::array<double, 3>& normal);

} // namespace ox::internal::csg

#endif
