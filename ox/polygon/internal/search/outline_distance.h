#ifndef OX_POLYGON_INTERNAL_SEARCH_OUTLINE_DISTANCE_H
#define OX_POLYGON_INTERNAL_SEARCH_OUTLINE_DISTANCE_H

#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_2dvector.h>

namespace ox::internal {

/// A point in double precision, for bounds that must not be spoilt by rounding.
struct exact_point {
    double u;
    double v;
};

/// The sides of a region's contours, in its 2-D frame, prepared for distances.
///
/// Two kinds of distance are offered. The rounded one, in single precision, is the definition of
/// the region's best centre: the least of the distances to all vertices and of the perpendicular
/// distances to all sides that are long enough and hold the foot of the perpendicular. The other,
/// in double precision, is the true distance to the outline, which the rounded one exceeds by no
/// more than `rounding_error()`: where a side is not counted, the vertex next to the foot is.
///
/// Queries take the indices of the sides to look at, so that a search can drop the sides that
/// are too far from a whole area.
class outline_distance {
public:
    using side_indices = std::vector<int>;

    /// Takes the vertices of all contours, contour after contour, and the contours' sizes.
    outline_distance(const ox_list<ox_2dvector>& vertices, const ox_list<unsigned int>& sizes);

    /// The indices of all sides.
    side_indices all_sides() const;

    /// The rounded distance from `q` to the given sides and their end vertices.
    float rounded(const ox_2dvector& q, const side_indices& among) const;

    /// The true distance from `q` to the given sides.
    double exact(const exact_point& q, const side_indices& among) const;

    /// Those of the given sides that can be nearest to a point within `radius` of `centre`, in
    /// either kind of distance; `distance` is the exact one of `centre`.
    side_indices nearest_within(const exact_point& centre, double radius, double distance,
                                const side_indices& among) const;

    /// The largest excess of the rounded distance, penalty included, over the true one, for
    /// points within the bounds of the outline.
    double rounding_error() const { return error; }

private:
    struct side {
        ox_2dvector start;
        ox_2dvector end;
        ox_2dvector direction; ///< of unit length
        float length;
        bool counts; ///< long enough to be measured; otherwise only its end vertex is
    };

    static side make_side(const ox_2dvector& start, const ox_2dvector& end);
    static double exact_square(const side& s, const exact_point& q);

    std::vector<side> sides;
    double error = 0.0;
};

} // namespace ox::internal

#endif
