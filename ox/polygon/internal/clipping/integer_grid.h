#ifndef OX_POLYGON_INTERNAL_CLIPPING_INTEGER_GRID_H
#define OX_POLYGON_INTERNAL_CLIPPING_INTEGER_GRID_H

#include <array>
#include <cstddef>
#include <vector>

#include <clipper.hpp>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/polygon/internal/plane_frame.h>
#include <ox/polygon/internal/tolerances.h>

// The one way between contours in space and the integers of the clipping library: coordinates in
// units of 0.0001 model units along dx and dy of a polygon's frame.

namespace ox::internal {

/// The points of one contour. Those of a small one, as most are, need no memory from the heap.
class grid_path {
public:
    std::size_t size() const { return count; }
    const ClipperLib::IntPoint* data() const {
        return count > few.size() ? many.data() : few.data();
    }
    ClipperLib::IntPoint* data() { return count > few.size() ? many.data() : few.data(); }

    /// Converts the vertices of a contour into the frame of `plane`. False, without points, when it
    /// does not fit the grid.
    bool take(const plane_frame& plane, const ox_3dvector* vertices, std::size_t size);

    /// True if the contour runs counter-clockwise, or encloses nothing: what the clipping library
    /// says, summed in its order.
    bool is_counter_clockwise() const;

private:
    std::array<ClipperLib::IntPoint, 8> few;
    std::vector<ClipperLib::IntPoint> many;
    std::size_t count = 0;
};

/// Closed contours on the integer grid, concatenated: one array, whatever their number.
class grid_contours {
public:
    std::size_t count() const { return ends.size(); }
    std::size_t size(std::size_t contour) const { return ends[contour] - first(contour); }
    const ClipperLib::IntPoint* begin(std::size_t contour) const {
        return points.data() + first(contour);
    }
    ClipperLib::IntPoint* begin(std::size_t contour) { return points.data() + first(contour); }

    const ClipperLib::IntPoint* end(std::size_t contour) const {
        return points.data() + ends[contour];
    }

    /// True if the contour runs counter-clockwise or encloses nothing, as the clipping library
    /// tells it: by an area summed in its order.
    bool is_counter_clockwise(std::size_t contour) const;

    /// The points of all contours.
    const std::vector<ClipperLib::IntPoint>& all() const { return points; }

    /// Converts concatenated contours into the frame of `plane` and appends them; a contour that
    /// does not fit the grid is left out.
    void append(const plane_frame& plane, const ox_list<ox_3dvector>& vertices,
                const ox_list<unsigned int>& sizes);

    /// Appends a contour that was converted before.
    void append(const grid_path& path);

    /// Turns every contour round.
    void reverse_each();

private:
    std::size_t first(std::size_t contour) const { return contour == 0 ? 0 : ends[contour - 1]; }

    std::vector<ClipperLib::IntPoint> points;
    std::vector<std::size_t> ends; ///< one past the last point of each contour
};

/// The point of the plane that belongs to a grid point.
inline ox_3dvector grid_to_plane(const plane_frame& plane, const ClipperLib::IntPoint& p) {
    const float u = static_cast<float>(p.X) * grid_unit;
    const float v = static_cast<float>(p.Y) * grid_unit;
    return plane.point + u * plane.dx + v * plane.dy;
}

} // namespace ox::internal

#endif
