#ifndef OX_SOLID_INTERNAL_CSG_SHELL_H
#define OX_SOLID_INTERNAL_CSG_SHELL_H

#include <array>
#include <vector>

#include <ox/geometry/ox_3dvector.h>
#include <ox/solid/internal/csg/arrangement.h>
#include <ox/solid/internal/csg/operand.h>
#include <ox/solid/internal/csg/working_grid.h>
#include <ox/solid/ox_csg.h>

namespace ox::internal::csg {

/// A directed edge between two points, by their indices.
using directed_edge = std::array<int, 2>;

/// The edges of a face, in any order: interior on the left seen from outside.
using face_boundary = std::vector<directed_edge>;

/// The shell of one operand on the grid.
struct shell {
    std::vector<grid_point> points;
    std::vector<ox_3dvector> vertices; ///< what the points were before the grid, bit for bit
    std::vector<face_boundary> faces;
};

/// Reads the faces of a solid: those that its primary storage begins up to the first index out of
/// range or the end of the indices. Points are in the order in which rings name them. Problems for
/// coordinates that are not finite, or farther than 2^30 tolerances away, are appended to
/// `problems`; the shell is then of no use. O(n).
shell read_shell(const operand& given, int number, float tolerance, const working_grid& grid,
                 std::vector<ox_csg_problem>& problems);

/// Makes points that are equal or nearer to each other than the tolerance of the grid one, in
/// chains; the lowest index stays. Edges between points that became one are dropped. O(n log n)
/// while bounded numbers of points lie within a tolerance.
void weld(shell& welded, const working_grid& grid);

/// Divides the edges that are met by others only in parts at the points, within the tolerance, of
/// such other edges, and appends a problem for each edge that no other meets even then. O(n log n).
void close_shell(shell& closed, int number, const working_grid& grid,
                 std::vector<ox_csg_problem>& problems);

} // namespace ox::internal::csg

#endif
