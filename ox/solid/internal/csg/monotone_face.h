#ifndef OX_SOLID_INTERNAL_CSG_MONOTONE_FACE_H
#define OX_SOLID_INTERNAL_CSG_MONOTONE_FACE_H

#include <array>
#include <vector>

#include <ox/solid/internal/csg/planar_view.h>
#include <ox/solid/internal/csg/shell.h>

namespace ox::internal::csg {

/// A face of few corners whose ring runs to the right and back once in the view, so that a line
/// that sweeps over it meets one edge below and one above: all triangles, and most faces of
/// buildings. It is cut into the triangles that the sweep over any regions makes of it
/// (planar_triangulation.h), with their corners in the same order, but needs no memory for that.
class monotone_face {
public:
    /// The corners that a face may have; two such faces together have too few for their view to be
    /// turned.
    static constexpr std::size_t largest_count = 7;

    /// Reads a boundary; false where it is none of such a face.
    bool read(const std::vector<grid_point>& points, const face_boundary& boundary,
              const planar_view& view);

    /// Makes triangles by their points; false where the ring is not simple or one has no area.
    bool triangulate(std::vector<std::array<int, 3>>& triangles) const;

    /// True if an edge of this face has the other face on its outer side, but for the edge's ends.
    bool has_outside(const monotone_face& other) const;

private:
    /// A corner; they are in the order in which the sweep meets them.
    struct corner {
        int name;
        planar_point place;
        int next;   ///< where the boundary goes on, -1 while it is not known
        int before; ///< where it comes from
    };

    bool read_corners(const std::vector<grid_point>& points, const face_boundary& boundary,
                      const planar_view& view);
    bool link(const face_boundary& boundary);
    bool find_sides();
    int find_corner(int name) const;

    /// The corner ahead on the way to the right along the lower or the upper side.
    int ahead(int from, bool is_lower) const {
        return is_lower != is_reversed ? corners[static_cast<std::size_t>(from)].next
                                       : corners[static_cast<std::size_t>(from)].before;
    }

    const planar_point& at(int i) const { return corners[static_cast<std::size_t>(i)].place; }

    friend class monotone_sweep;

    std::array<corner, largest_count> corners;
    int count = 0;
    bool is_reversed = false;                 ///< true where the ring runs clockwise
    std::array<bool, largest_count> is_below; ///< true for the corners of the lower side
};

} // namespace ox::internal::csg

#endif
