#ifndef OX_SOLID_INTERNAL_CSG_ARRANGEMENT_H
#define OX_SOLID_INTERNAL_CSG_ARRANGEMENT_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace ox::internal::csg {

/// A point of the integer grid on which every operand lies; each coordinate is at most 2^37 in
/// magnitude, so that an orientation of four points fits 128 bits.
struct grid_point {
    std::int64_t x;
    std::int64_t y;
    std::int64_t z;
};

/// The coordinate of a grid point along an axis.
inline std::int64_t coordinate(const grid_point& point, std::size_t axis) {
    return axis == 0 ? point.x : (axis == 1 ? point.y : point.z);
}

/// A triangle of the boundary of an operand: indices into the points, counter-clockwise seen from
/// outside. One without area is allowed.
struct operand_triangle {
    std::array<int, 3> vertices;
    int operand;
    /// True where it is known to meet others only in the corners and sides that they share.
    bool is_clear = false;
};

/// What an operand does to what stands so far.
enum class operation { unite, substract, intersect };

/// The operands of a combination. The triangles of each operand are a closed chain: every directed
/// edge of indices has as many opposites. What an operand encloses is where the winding number of
/// its triangles is not 0. Different indices name different points.
struct arrangement_input {
    std::vector<grid_point> points;
    std::vector<operand_triangle> triangles;
    /// One for each operand, applied in order to what stands so far, beginning with nothing.
    std::vector<operation> operations;
};

/// A piece of the boundary of the result: a part of one operand triangle.
struct boundary_piece {
    /// The triangle that the piece lies in (of several coincident ones, one of the origin).
    int triangle;
    /// True where the piece faces the other way than its triangle.
    bool reversed;
    /// The lowest number of the operands whose triangles cover the piece.
    int origin;
    /// Its directed edges, interior on the left seen from outside the result, as a range of the
    /// edges of the arrangement: of one or more closed loops, in no particular order.
    int first_edge;
    int edge_count;
};

/// The boundary of the result as a closed chain: every directed edge of all pieces has as many
/// opposites. The first points are those of the input (used or not), then the crossings.
struct arrangement_result {
    /// In units of the grid, each coordinate the exact one rounded to the nearest double.
    std::vector<std::array<double, 3>> points;
    std::vector<std::array<int, 2>> edges;
    std::vector<boundary_piece> pieces;
};

/// Told how much of the work is done, 0 to 1; false ends it.
using progress_report = std::function<bool(double)>;

/// Makes the boundary of the combination of `input` into `result`. False where `report` ended the
/// work; `result` is then as it was. O((n + k) log n) time for n triangles of which k pairs have
/// overlapping boxes, O(n + k) memory. The answer depends on nothing but the input.
bool arrange(const arrangement_input& input, const progress_report& report,
             arrangement_result& result);

} // namespace ox::internal::csg

#endif
