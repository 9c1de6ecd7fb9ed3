#ifndef OX_POLYGON_INTERNAL_TOLERANCES_H
#define OX_POLYGON_INTERNAL_TOLERANCES_H

namespace ox::internal {

// Lengths of normals

/// A normal given to `set_normal` that is shorter is noise of the caller's arithmetic and ignored.
constexpr float shortest_given_normal = 0.001f;

/// A shorter normal has no reliable direction: no plane is made of it.
constexpr float shortest_plane_normal = 0.0001f;

/// Twice an area, in squared model units: a first contour whose summed cross products are shorter
/// encloses nothing that could define a plane.
constexpr float shortest_contour_normal = 0.000001f;

// Integer grid

/// Model units per unit of the integer grid in the plane's frame.
constexpr float grid_unit = 0.0001f;

/// In grid units, exclusive: 2^62, the first float beyond what the clipping library takes
/// (0x3FFFFFFFFFFFFFFF).
constexpr float grid_end = 4611686018427387904.0f;

// Contours whose clipping is known beforehand

/// Grid units: at every level the sides of such a contour, and what it surrounds, keep this far
/// apart. The clipping library rounds a side to the next unit, half a unit away at most.
constexpr double side_clearance = 3.0;

/// Grid units: a side that passes a corner farther away than half a unit is rounded to another
/// place; a fiftieth is left for what the library's doubles lose.
constexpr double rounding_clearance = 0.52;

/// Difference of the slopes (x over y) of two sides that meet in a vertex. The library computes
/// the sides in doubles, to 2^-20 units within the coordinates below; a unit away from their common
/// vertex the sides differ by more.
constexpr double smallest_slope_difference = 1.0 / 65536.0;

/// Grid units: products of coordinate differences stay within 64 bits.
constexpr long long farthest_monotone_coordinate = 1LL << 29;

/// The error of an area summed in doubles, per vertex and relative to the square of the largest
/// coordinate: two roundings of 2^-53 each are counted, and 16 times that allowed.
constexpr double area_rounding = 1.0 / static_cast<double>(1LL << 48);

// Triangles known beforehand

/// The error of a fan triangle's normal along that of the plane, relative to the two sides and the
/// plane's normal; the tessellator computes it in doubles, and takes its sign: 2^-50 is counted,
/// and a thousand times that allowed.
constexpr double fan_rounding = 1.0 / static_cast<double>(1LL << 40);

/// Relative to the extent of a contour: distances in the direction of the tessellator's sweep
/// above it are certain, and so are triangles (relative to the square). What it computes from
/// both in doubles is right to 2^-50 of the extent, and compared where it differs by 2^-40.
constexpr double sweep_clearance = 1.0 / static_cast<double>(1LL << 20);

// Offset

/// A mitred corner reaches at most this many distances from its vertex; so does no other join.
constexpr double offset_miter_limit = 2.0;

/// Grid units between an arc and its chords.
constexpr double offset_arc_tolerance = 0.25;

/// Grid units that the clipping library adds around the bounds when it shrinks a region: 10, and
/// the rounding.
constexpr double offset_bounds_margin = 16.0;

/// Vertices of all arcs of one round offset together: 3.5 gigabytes and some seconds for the
/// clipping library. The number in an arc grows with the root of its radius.
constexpr double most_arc_vertices = 16000000.0;

// Best centre

/// Model units: a shorter side has no reliable direction to measure a perpendicular from; only
/// its end vertices count.
constexpr float shortest_side_of_center_distance = 0.01f;

// Simplification of contours

/// The share of the tolerance of a simplification below which an edge is too short to be kept: its
/// ends then are one vertex for whoever accepts that tolerance.
constexpr float short_edge_share = 0.1f;

// Grids of points

/// Grid points go from the frame into space and back. In units of half the last place, what the
/// roundings on that way amount to: two of the plane's point and seven of the offset from it are
/// counted, and one and two more allowed.
constexpr double roundings_of_origin = 3.0;
constexpr double roundings_of_offset = 9.0;

/// Model units: what underflow can add to those roundings (a few units of the smallest
/// float, 1.4e-45, in space and in the frame); ten times that.
constexpr double grid_point_underflow = 1e-43;

/// Model units: beyond it the sums on the way to a grid point could come near the largest float,
/// and what is known about their roundings does not hold.
constexpr double farthest_grid_coordinate = 1e37;

/// Beyond it points are tested one by one against every side, as long as that ends within seconds.
constexpr double most_far_grid_tests = 1e9;

/// The share of the coordinates, in cells, that rounding in double precision can move a point of a
/// rasterised region by: a few times 2^-53, of which a million are allowed.
constexpr double grid_cell_slack = 1e-9;

// Cutting

/// The sine of the angle between two planes (times the length of the cutting normal): below it
/// the planes count as parallel and nothing is cut.
constexpr float parallel_cut_sine = 0.001f;

/// The cosine of the angle between two planes (times the length of the cutting normal): above it
/// they have no section line.
constexpr float parallel_section_cosine = 0.999f;

/// Model units: boxes this far apart still count as touching.
constexpr float box_contact_tolerance = 0.0001f;

} // namespace ox::internal

#endif
