#ifndef OX_SOLID_INTERNAL_BOOLEAN_COPLANAR_MERGE_H
#define OX_SOLID_INTERNAL_BOOLEAN_COPLANAR_MERGE_H

#include <vector>

#include <ox/solid/internal/boolean/boolean_trace.h>
#include <ox/solid/internal/boolean/kept_piece.h>

namespace ox::internal {

/// Unites each piece with the later ones in its plane, which is the same when the normals, and the
/// distance of each point from the other plane, differ by no more than `tolerance` (model units).
/// A union with more vertices than both had is a sign that they overlapped instead of touching:
/// that is printed, and merging into this piece ends there. O(k log k) for k pieces, unions aside.
void merge_coplanar_pieces(std::vector<kept_piece>& pieces, const operand& own, float tolerance,
                           const boolean_trace& trace);

} // namespace ox::internal

#endif
