#ifndef OX_SOLID_INTERNAL_CSG_EXACT_POINT_TABLE_H
#define OX_SOLID_INTERNAL_CSG_EXACT_POINT_TABLE_H

// The points of an arrangement: those of the input and the crossings.
//
// A crossing is held by what it is made from, a line and a plane or three planes (the implicit
// points of Attene, "Indirect predicates for geometric constructions", 2020), and by its
// coordinates, each rounded correctly to the nearest double. That rounding is a function of the
// exact coordinate alone, and monotone, so two things come for free: points of different rounded
// coordinates are different and in that order, and the rounded coordinates are a hash key under
// which the same point, made in another way, is found again. One point of space has one index.
//
// Widths: the line crossing x = X / W has 155 bits in X and 117 in W, the crossing of three planes
// 273 and 234; a side of it 352, a comparison of two of them 507.

#include <array>
#include <cstdint>
#include <vector>

#include <ox/solid/internal/csg/arrangement.h>
#include <ox/solid/internal/csg/exact/plane.h>

namespace ox::internal::csg::exact {

/// The exact coordinates of a point: numerators and their common denominator, which is above 0.
struct homogeneous_point {
    std::array<wide<5>, 3> numerator;
    wide<4> denominator;
};

/// A point rounded to the nearest doubles.
using near_point = std::array<double, 3>;

/// The points of an arrangement by index, and the planes that they are made from.
class point_table {
public:
    /// The grid's points come first. They are not copied and outlive the table.
    explicit point_table(const std::vector<grid_point>& grid);

    /// The planes; whoever appends to them may use them for crossings.
    std::vector<plane> planes;

    /// The index of the point in which the line through two grid points crosses a plane that it is
    /// not parallel to.
    int add_line_crossing(int from, int to, int plane_index);

    /// The index of the common point of three planes of independent normals.
    int add_plane_crossing(int a, int b, int c);

    /// The number of points.
    int count() const { return static_cast<int>(rounded.size()); }

    /// The coordinates, each the exact one rounded to the nearest double.
    const near_point& near(int point) const { return rounded[static_cast<std::size_t>(point)]; }

    /// All of them.
    const std::vector<near_point>& near_points() const { return rounded; }

    /// The side of a plane on which a point lies: 1, 0 or -1.
    int side(int point, int plane_index) const;

    /// The order of two points along an axis: -1 where the first has the smaller coordinate.
    int compare(int a, int b, int axis) const;

    /// The order of two points by x, then y, then z; 0 only for the same index.
    int compare(int a, int b) const;

    /// The exact coordinates.
    homogeneous_point exact(int point) const;

private:
    /// What a crossing is made from: three planes, or a plane and a line through two grid points.
    struct crossing {
        std::array<int, 3> planes;
        std::array<int, 2> line;
    };

    int find_or_add(const crossing& made_from);
    bool is_same(int point, const homogeneous_point& other, const near_point& other_rounded,
                 std::uint8_t other_exactness) const;
    std::size_t slot_of(const near_point& coordinates) const;
    void insert(int point);
    void grow();
    homogeneous_point exact(const crossing& made_from) const;
    homogeneous_point line_crossing(const crossing& made_from) const;
    homogeneous_point plane_crossing(const crossing& made_from) const;

    const std::vector<grid_point>& grid;
    std::vector<near_point> rounded;
    /// For each point a bit for each coordinate that its rounding left as it was.
    std::vector<std::uint8_t> exactness;
    std::vector<crossing> crossings;
    /// Open addressing: indices of points, -1 where free; as many slots as a power of two.
    std::vector<int> slots;
};

/// The quotient of two whole numbers, rounded to the nearest double, ties to even; the divisor is
/// above 0 and the quotient below 2^40 in magnitude. Tells whether nothing was rounded.
double rounded_quotient(const wide<5>& dividend, const wide<4>& divisor, bool& is_exact);

} // namespace ox::internal::csg::exact

#endif
