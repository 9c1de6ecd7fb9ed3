#ifndef OX_POLYGON_INTERNAL_CLIPPING_GRID_LINES_H
#define OX_POLYGON_INTERNAL_CLIPPING_GRID_LINES_H

#include <clipper.hpp>

namespace ox::internal {

inline ClipperLib::IntPoint difference(const ClipperLib::IntPoint& a,
                                       const ClipperLib::IntPoint& b) {
    return ClipperLib::IntPoint(a.X - b.X, a.Y - b.Y);
}

/// Twice the signed area that turning from `a` to `b` spans.
inline ClipperLib::cInt turn(const ClipperLib::IntPoint& a, const ClipperLib::IntPoint& b) {
    return a.X * b.Y - a.Y * b.X;
}

/// The x of the line through two points of different levels at a level.
inline double x_at(const ClipperLib::IntPoint& a, const ClipperLib::IntPoint& b,
                   ClipperLib::cInt y) {
    const double part = static_cast<double>(y - a.Y) / static_cast<double>(b.Y - a.Y);
    return static_cast<double>(a.X) + static_cast<double>(b.X - a.X) * part;
}

} // namespace ox::internal

#endif
