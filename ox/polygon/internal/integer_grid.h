#ifndef OX_POLYGON_INTERNAL_INTEGER_GRID_H
#define OX_POLYGON_INTERNAL_INTEGER_GRID_H

#include <clipper.hpp>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/polygon/internal/ox_polygon_data.h>

// The one way between contours in space and the integers of the clipping library: coordinates in
// units of 0.0001 model units along dx and dy of a polygon's frame.

namespace ox {

/// Converts the `size` vertices of one contour into the frame of `plane`; the distance from the
/// plane is dropped. False, with an unspecified path, when a coordinate is not a number or lies
/// outside the grid.
bool contour_to_grid(const ox_polygon_data& plane, const ox_3dvector* vertices, unsigned int size,
                     ClipperLib::Path& path);

/// Converts concatenated contours and appends them to `paths`; a contour that does not fit the
/// grid is left out.
void contours_to_grid(const ox_polygon_data& plane, const ox_list<ox_3dvector>& vertices,
                      const ox_list<unsigned int>& sizes, ClipperLib::Paths& paths);

/// The point of the plane that belongs to a grid point.
ox_3dvector grid_to_plane(const ox_polygon_data& plane, const ClipperLib::IntPoint& p);

/// Replaces the normalised contours of `polygon` by those of the tree: depth first, a contour
/// before those inside it, siblings in the tree's order. O(n), without recursion.
void rebuild_contours(ox_polygon_data& polygon, const ClipperLib::PolyTree& tree);

/// Fills `tree` with the combination of two groups of closed paths, both filled even-odd. The
/// tree is empty when the clipping library fails.
void clip_paths(ClipperLib::ClipType operation, const ClipperLib::Paths& subjects,
                const ClipperLib::Paths& clips, ClipperLib::PolyTree& tree);

} // namespace ox

#endif
