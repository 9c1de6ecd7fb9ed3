#ifndef OX_SOLID_INTERNAL_CSG_RESULT_BOUNDARY_H
#define OX_SOLID_INTERNAL_CSG_RESULT_BOUNDARY_H

#include <ox/solid/internal/csg/evaluation.h>
#include <ox/solid/internal/csg/overlay.h>
#include <ox/solid/internal/csg/scene.h>

namespace ox::internal::csg {

/// Makes the boundary of a result from its arrangement: pieces of one plane become faces with
/// holes, cut into triangles of the same points. What is closed in the arrangement is closed in the
/// faces and in the triangles. False where `report` ended the work. O(n log n).
bool make_boundary(const arrangement_result& arranged, const scene& faces,
                   const std::vector<face_triangle>& triangles, const working_grid& grid,
                   const progress_report& report, boundary& result);

} // namespace ox::internal::csg

#endif
