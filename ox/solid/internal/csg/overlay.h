#ifndef OX_SOLID_INTERNAL_CSG_OVERLAY_H
#define OX_SOLID_INTERNAL_CSG_OVERLAY_H

#include <array>
#include <vector>

#include <ox/solid/internal/csg/scene.h>

namespace ox::internal::csg {

/// A triangle of a face, by its points.
struct face_triangle {
    std::array<int, 3> vertices;
    int face;
};

/// Cuts the faces of a scene into triangles. Faces of one plane are laid over each other, and each
/// cell of the overlay is cut once, so that faces of several operands have the same triangles where
/// they coincide. The boundary of the triangles of a face is exactly its own: every directed edge
/// of one is met in the other, whatever rounding did to the plane. Triangles come in the order of
/// the faces. False where `report` ended the work. O(n log n).
bool triangulate_faces(const scene& faces, const progress_report& report,
                       std::vector<face_triangle>& triangles);

} // namespace ox::internal::csg

#endif
