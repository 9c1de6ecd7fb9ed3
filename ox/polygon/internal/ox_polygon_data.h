#ifndef OX_POLYGON_INTERNAL_OX_POLYGON_DATA_H
#define OX_POLYGON_INTERNAL_OX_POLYGON_DATA_H

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/geometry/ox_box.h>
#include <ox/internal/boolean_operation.h>
#include <ox/polygon/internal/change_watch.h>
#include <ox/polygon/internal/plane_frame.h>
#include <ox/polygon/internal/search/containment_index.h>

namespace ox {

/// The record behind an `ox_polygon`. Its operations do what the polygon's do, for the code that
/// works on several polygons at once.
struct ox_polygon_data : internal::plane_frame {
    bool counted = true; ///< among the living polygons
    bool plane_defined = false;
    bool contours_computed = false; ///< the pending contours have been merged
    bool tesselation_computed = false;
    bool best_center_computed = false;
    ox_list<ox_3dvector> pending_vertices; ///< of the contours added since the last merge
    ox_list<unsigned int> pending_sizes;
    ox_list<ox_3dvector> contour_vertices;
    ox_list<unsigned int> contour_sizes;
    ox_list<bool> contour_orientations; ///< true for an outer boundary, false for a hole
    ox_list<int> contour_parents;       ///< -1 at the top level
    ox_box bounding_box;                ///< empty while unknown
    ox_3dvector best_center;
    float area = 0.0f; ///< of the triangles
    ox_list<ox_3dvector> tesselation_vertices;
    ox_list<unsigned int> tesselation_triangles;
    internal::change_watch watch; ///< of contours and plane
    internal::lazy_containment_index containment;

    /// Merges the pending contours: the head of every query.
    void compute_contours();

    /// Merges the pending contours, then brings triangles and area up to date.
    void compute_tesselation();

    /// Sets the plane through `new_point` with `new_normal` (any length; one shorter than the
    /// tolerance is refused after the point was stored) and projects what is computed on it.
    void set_plane(const ox_3dvector& new_point, ox_3dvector new_normal);

    /// Empties the polygon and forgets its plane.
    void clear();

    /// True where the projection of `p` lies inside the region, which must have been merged.
    bool contains(const ox_3dvector& p) const;

    /// Combines the normalised contours with those of `other`, on this plane; both must have
    /// been merged. No operand is checked for being empty.
    void combine(const ox_polygon_data& other, internal::boolean_operation operation);

    /// Appends a contour to the normalised ones as it stands. The caller forgets the derived
    /// values afterwards.
    void append_contour(const ox_3dvector* vertices, int size, bool outer, int parent);

    /// Empties the four lists of the normalised contours.
    void clear_contours();

    /// To be called with every change of the contours or the plane: what was found out about them
    /// no longer holds.
    void tell_change() noexcept;

    /// To be called after every change of the normalised contours: tells it, and forgets
    /// their triangles and their bounding box.
    void forget_derived();

    /// Empties the region when the plane or a vertex holds a number that is not finite, so that
    /// none ever reaches the clipping library or the tessellator. To be called after every
    /// operation that can bring one in.
    void drop_region_unless_finite();

    /// A deep copy of this record, merged first; the bounding box is left to be found anew.
    ox_polygon_data* copy();
};

} // namespace ox

#endif
