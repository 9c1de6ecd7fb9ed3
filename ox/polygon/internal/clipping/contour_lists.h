#ifndef OX_POLYGON_INTERNAL_CLIPPING_CONTOUR_LISTS_H
#define OX_POLYGON_INTERNAL_CLIPPING_CONTOUR_LISTS_H

#include <cstddef>

#include <clipper.hpp>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/polygon/internal/clipping/integer_grid.h>
#include <ox/polygon/internal/clipping/monotone_contour.h>
#include <ox/polygon/internal/ox_polygon_data.h>

namespace ox::internal {

/// The four lists of normalised contours, gathered aside: a failed allocation leaves those of the
/// polygon as they are. They are made at their final size.
class contour_lists {
public:
    contour_lists() = default;

    /// Makes room for contours of so many vertices in total.
    contour_lists(std::size_t contours, std::size_t vertices);

    /// Makes room for one contour of so many vertices, in the memory of a list of at least as many
    /// and of a list of one size. Both are left as they are when there is none for the others.
    contour_lists(std::size_t vertex_count, ox_list<ox_3dvector>&& vertex_memory,
                  ox_list<unsigned int>&& size_memory);

    /// The number of contours appended so far.
    int count() const { return contours; }

    /// Opens the next contour; its vertices follow.
    void begin_contour(std::size_t size, bool hole, int parent);

    /// Appends the point of the plane that belongs to a grid point.
    void append(const plane_frame& plane, const ClipperLib::IntPoint& p) {
        vertices[points++] = grid_to_plane(plane, p);
    }

    /// Appends a whole contour as the clipping library hands it out.
    void append(const plane_frame& plane, const monotone_contour& contour, bool hole, int parent);

    /// Replaces the normalised contours of `polygon`.
    void move_to(ox_polygon_data& polygon);

private:
    ox_list<bool> orientations;
    ox_list<int> parents;
    ox_list<ox_3dvector> vertices;
    ox_list<unsigned int> sizes;
    int contours = 0;
    int points = 0;
};

} // namespace ox::internal

#endif
