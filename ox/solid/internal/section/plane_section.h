#ifndef OX_SOLID_INTERNAL_SECTION_PLANE_SECTION_H
#define OX_SOLID_INTERNAL_SECTION_PLANE_SECTION_H

#include <memory>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/polygon/ox_polygon.h>
#include <ox/solid/internal/search/face_tree.h>

namespace ox::internal {

/// The region of the plane through `point` with `normal` that lies inside the solid bounded by
/// `faces`, as a polygon in that plane; none when the plane meets no face. A vertex no farther than
/// `tolerance` (model units) from the plane lies on it; ends no farther apart (Manhattan distance)
/// are joined. `tree` is the tree over these faces: only those it finds are looked at.
std::unique_ptr<ox_polygon> plane_section(const ox_list<ox_polygon*>& faces, const face_tree& tree,
                                          const ox_3dvector& point, const ox_3dvector& normal,
                                          float tolerance);

} // namespace ox::internal

#endif
