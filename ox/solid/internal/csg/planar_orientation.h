#ifndef OX_SOLID_INTERNAL_CSG_PLANAR_ORIENTATION_H
#define OX_SOLID_INTERNAL_CSG_PLANAR_ORIENTATION_H

#include <cstdint>

namespace ox::internal::csg {

/// A point of the grid seen along an axis. Coordinates are below 2^39 in magnitude.
struct planar_point {
    std::int64_t x;
    std::int64_t y;
};

/// True if `a` comes before `b` from left to right, and from bottom to top where they are level.
inline bool is_before(const planar_point& a, const planar_point& b) {
    return a.x != b.x ? a.x < b.x : a.y < b.y;
}

/// 1 where a, b, c run counter-clockwise, -1 where they run clockwise, 0 where they lie on a line.
/// Exact.
int orientation(const planar_point& a, const planar_point& b, const planar_point& c);

} // namespace ox::internal::csg

#endif
