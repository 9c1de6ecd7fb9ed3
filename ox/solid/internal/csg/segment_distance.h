#ifndef OX_SOLID_INTERNAL_CSG_SEGMENT_DISTANCE_H
#define OX_SOLID_INTERNAL_CSG_SEGMENT_DISTANCE_H

#include <ox/solid/internal/csg/working_grid.h>

namespace ox::internal::csg {

/// Where a segment is nearest to something.
struct nearest_place {
    double parameter;       ///< along the segment, 0 at its start and 1 at its end
    double square_distance; ///< squared steps
};

/// The place of the line through `a` and `b` that is nearest to `p`: its foot, not clamped. For two
/// equal points the parameter is -1.
inline nearest_place find_foot(const grid_point& a, const grid_point& b, const grid_point& p) {
    const std::array<double, 3> along = difference(a, b);
    const std::array<double, 3> towards = difference(a, p);
    const double length = dot(along, along);
    const double parameter = length > 0.0 ? dot(along, towards) / length : -1.0;
    const std::array<double, 3> off = {towards[0] - parameter * along[0],
                                       towards[1] - parameter * along[1],
                                       towards[2] - parameter * along[2]};
    return {parameter, dot(off, off)};
}

/// True if `p` lies within `reach` steps of the segment from `a` to `b`, beside its inside.
inline bool lies_along(const grid_point& a, const grid_point& b, const grid_point& p,
                       double reach) {
    const nearest_place foot = find_foot(a, b, p);
    return foot.parameter > 0.0 && foot.parameter < 1.0 && foot.square_distance <= reach * reach;
}

/// The point of the grid nearest to a place between `a` and `b`.
inline grid_point point_between(const grid_point& a, const grid_point& b, double parameter) {
    const std::array<double, 3> along = difference(a, b);
    return working_grid::round({static_cast<double>(a.x) + parameter * along[0],
                                static_cast<double>(a.y) + parameter * along[1],
                                static_cast<double>(a.z) + parameter * along[2]});
}

/// Where two segments are nearest to each other, by parameters along them.
struct closest_places {
    double first;
    double second;
    double square_distance;
};

/// The nearest places of the lines through two segments; parameters of -1 where they are parallel.
inline closest_places find_closest(const grid_point& a, const grid_point& b, const grid_point& c,
                                   const grid_point& d) {
    const std::array<double, 3> u = difference(a, b);
    const std::array<double, 3> v = difference(c, d);
    const std::array<double, 3> w = difference(c, a);
    const double uu = dot(u, u);
    const double uv = dot(u, v);
    const double vv = dot(v, v);
    const double uw = dot(u, w);
    const double vw = dot(v, w);
    const std::array<double, 3> normal = cross(u, v);
    const double determinant = dot(normal, normal);
    if (!(determinant > 0.0)) {
        return {-1.0, -1.0, 0.0};
    }
    const double s = (uv * vw - vv * uw) / determinant;
    const double t = (uu * vw - uv * uw) / determinant;
    const std::array<double, 3> between = {w[0] + s * u[0] - t * v[0], w[1] + s * u[1] - t * v[1],
                                           w[2] + s * u[2] - t * v[2]};
    return {s, t, dot(between, between)};
}

} // namespace ox::internal::csg

#endif
