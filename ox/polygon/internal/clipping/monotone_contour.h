#ifndef OX_POLYGON_INTERNAL_CLIPPING_MONOTONE_CONTOUR_H
#define OX_POLYGON_INTERNAL_CLIPPING_MONOTONE_CONTOUR_H

#include <cstddef>
#include <vector>

#include <clipper.hpp>

namespace ox::internal {

/// The bounds of a contour on the integer grid, ends included.
struct grid_box {
    ClipperLib::IntPoint low;
    ClipperLib::IntPoint high;
};

/// The bounds of `size` points, at least one. O(size).
grid_box bounds_of(const ClipperLib::IntPoint* points, std::size_t size);

/// A closed contour whose way through the clipping library is known without asking: it climbs
/// once from its lowest to its highest level, falls once back, and keeps its two sides apart. All
/// convex contours are of this kind, and every L, T or stair whose sides follow the frame.
///
/// The library sweeps such a contour with one edge on either side and records the vertices of
/// the left side before, those of the right side behind what it has. So the answer is known to
/// the order: `points` run counter-clockwise and end with the lowest vertex, of two with the right
/// one. As a hole, the contour runs the other way round and ends with that same vertex.
///
/// A side may fall back by one level, in a fold, as where a corner was rounded twice and the second
/// time a unit lower: the library hands out its two corners where they are. `points` have the inner
/// one only.
///
/// The points belong to the caller.
struct monotone_contour {
    const ClipperLib::IntPoint* points = nullptr;
    std::size_t size = 0;
    std::vector<ClipperLib::IntPoint> with_folds; ///< all corners in that order; empty: `points`
    std::vector<ClipperLib::cInt> entries;        ///< of the sweep; empty: the highest level
    std::size_t high_right = 0; ///< index of the highest vertex, of two the right one
    std::size_t high_left = 0;  ///< index of the highest vertex, of two the left one

    /// The highest level: tips of spikes do not count.
    ClipperLib::cInt highest() const { return points[high_right].Y; }

    /// All corners: those that the library would hand out.
    const ClipperLib::IntPoint* corners() const {
        return with_folds.empty() ? points : with_folds.data();
    }
    std::size_t corner_count() const { return with_folds.empty() ? size : with_folds.size(); }

    /// True if the box lies inside, clear of both sides at every level. O(log size) plus the
    /// vertices at the levels of the box.
    bool surrounds(const grid_box& box) const;
};

/// Brings `size` points of a closed contour into the order in which the clipping library would
/// answer them, without the vertices that it leaves out: repeated ones, those at which the contour
/// goes straight on, and the tips of spikes, at which it turns back along its way. False, with the
/// points in an unspecified state, for a contour that is not of this kind or so thin, flat or far
/// away that roundings inside the library could decide: then only the library knows. O(size).
///
/// The contour's points lie among the given ones, not always from the first on.
bool read_monotone_contour(ClipperLib::IntPoint* points, std::size_t size,
                           monotone_contour& contour);

} // namespace ox::internal

#endif
