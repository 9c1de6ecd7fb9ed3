#ifndef OX_SOLID_INTERNAL_CSG_CLEAR_FACES_H
#define OX_SOLID_INTERNAL_CSG_CLEAR_FACES_H

#include <vector>

#include <ox/solid/internal/csg/overlay.h>
#include <ox/solid/internal/csg/scene.h>

namespace ox::internal::csg {

/// Marks the triangles that meet no other face but in the corners and edges that they share with
/// it. A triangle is known to be one where no face of another operand is near, where every face
/// whose box its own meets shares a corner with it or is parted from it by a plane, and where the
/// triangles about each of its corners are spread out like a fan: seen along some axis all turn the
/// same way, and together they turn once. Two triangles of such a fan have nothing in common but
/// what they share. `neighbours` are those of the boxes of the faces. O(n + k) for k pairs of boxes
/// that meet.
void mark_clear_faces(scene& faces, const box_neighbours& neighbours);

/// For each triangle of a scene, true where its face is clear and no face was changed since that
/// shares a corner with it or was bent towards it: no search for what it meets is needed.
/// O(n log n).
std::vector<bool> find_clear_triangles(const scene& faces,
                                       const std::vector<face_triangle>& triangles);

} // namespace ox::internal::csg

#endif
