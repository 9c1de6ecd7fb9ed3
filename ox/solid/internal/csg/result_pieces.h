#ifndef OX_SOLID_INTERNAL_CSG_RESULT_PIECES_H
#define OX_SOLID_INTERNAL_CSG_RESULT_PIECES_H

#include <vector>

#include <ox/solid/internal/csg/exact/progress_poll.h>
#include <ox/solid/internal/csg/overlay.h>
#include <ox/solid/internal/csg/scene.h>

namespace ox::internal::csg {

/// A piece of the boundary of the result, between points that are settled.
struct result_piece {
    face_boundary boundary;
    int face;         ///< the scene's face that it is a part of
    bool is_reversed; ///< true where it faces the other way
    int origin;
    fitted_plane plane; ///< of its face, or of its triangle where the face is uneven
    bool is_of_face;    ///< true where the plane is that of its face
};

/// The pieces of a result and their points.
struct result_pieces {
    std::vector<grid_point> points;
    std::vector<ox_3dvector> vertices; ///< the points as floats
    std::vector<result_piece> pieces;
};

/// Rounds the points of an arrangement to floats and makes those one that coincide then, or lie
/// within `reach` steps of each other; the points of operands stay what they were given as. Edges
/// are divided at points within `reach` beside them. Pieces without a boundary are left out: what
/// goes through one index goes through all that it became one with, so the boundary of the result
/// stays closed. Counts a step of `poll` for each point, edge and piece. O(n log n).
result_pieces settle_pieces(const arrangement_result& arranged, const scene& faces,
                            const std::vector<face_triangle>& triangles, const working_grid& grid,
                            exact::progress_poll& poll);

} // namespace ox::internal::csg

#endif
