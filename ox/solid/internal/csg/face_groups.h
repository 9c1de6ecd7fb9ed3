#ifndef OX_SOLID_INTERNAL_CSG_FACE_GROUPS_H
#define OX_SOLID_INTERNAL_CSG_FACE_GROUPS_H

#include <ox/solid/internal/csg/result_pieces.h>

namespace ox::internal::csg {

/// Pieces of one plane that touch along edges: one face of the result, or several that lie apart.
struct face_group {
    std::vector<int> pieces;
    face_boundary boundary; ///< what is left of the pieces' edges when opposite ones cancel
    fitted_plane plane;     ///< its normal out of the result
    int first_face;         ///< the lowest of the scene's faces that it has a part of
};

/// Puts pieces together, the largest planes first: a piece that touches a group along an edge
/// belongs to it if its corners lie in the plane of the group (see plane_growth.h). They do so
/// within three tenths of the tolerance; for another face of the same operand within the spacing of
/// floats, so that the facets of a fine curve stay. Groups come in the order of their first faces.
/// Counts a step of `poll` for each piece. O(n log n).
std::vector<face_group> group_faces(const result_pieces& result, const scene& faces,
                                    const working_grid& grid, exact::progress_poll& poll);

/// Leaves out the points on straight lines that no third edge meets, in all groups alike.
/// Counts a step of `poll` for each edge. O(n log n).
void straighten(std::vector<face_group>& groups, const std::vector<grid_point>& points,
                const working_grid& grid, exact::progress_poll& poll);

} // namespace ox::internal::csg

#endif
