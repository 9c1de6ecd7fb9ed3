#ifndef OX_POLYGON_OX_POLYGON_PROJECTION_H
#define OX_POLYGON_OX_POLYGON_PROJECTION_H

#include <memory>
#include <ox/core/ox_export.h>
#include <ox/geometry/ox_2dvector.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

struct ox_polygon_projection_data;

/// A 2-D frame laid over a polygon, for placing things in a face.
///
/// Represents an origin at the lower left corner of the polygon's extent in its plane, widened by a
/// margin, two unit axes, the size of the extent, and the polygon's contours in these coordinates.
/// Lengths are in model units.
///
/// Degenerate input:
/// - a polygon without contours: an extent of no size about the polygon's point, widened by the
///   margin, which contains nothing;
/// - a null polygon: an empty frame at the origin, with zero axes.
///
/// Ownership: the polygon is not owned, and must outlive the projection for `get_polygon`. The
/// contours are copied once and not refreshed when the polygon changes. Copies share everything.
///
/// \code
///   ox::ox_polygon_projection frame(&face, 0.1f);
///   const ox::ox_3dvector middle = frame.polygon_to_world(frame.get_size() / 2.0f);
/// \endcode
class OX_EXPORT ox_polygon_projection {
public:
    /// The frame of `polygon`, whose contours it merges, wider by `margin` on all four sides. O(n).
    ox_polygon_projection(ox_polygon* polygon, float margin);

    /// Copies share the frame and the contours. O(1).
    ox_polygon_projection(const ox_polygon_projection& other);

    /// Shares the frame and the contours of `other`. O(1).
    ox_polygon_projection& operator=(const ox_polygon_projection& other);

    /// Lets go of the frame and the contours, which go with their last owner.
    virtual ~ox_polygon_projection();

    /// The polygon that the frame was laid over, which is not owned; null if it was.
    ox_polygon* get_polygon() const;

    /// The world position of the frame's (0, 0).
    const ox_3dvector& get_origin() const;

    /// The first axis of the frame, of unit length: that of the polygon's own frame.
    const ox_3dvector& get_dx() const;

    /// The second axis of the frame, of unit length: that of the polygon's own frame.
    const ox_3dvector& get_dy() const;

    /// The polygon's normal.
    const ox_3dvector& get_normal() const;

    /// The extent along both axes in model units, the margins included.
    const ox_2dvector& get_size() const;

    /// The coordinates of a point's projection on the plane.
    ox_2dvector world_to_polygon(const ox_3dvector& p) const;

    /// The coordinates of a direction.
    ox_2dvector world_vector_to_polygon(const ox_3dvector& v) const;

    /// The world position of the point (u, v).
    ox_3dvector polygon_to_world(float u, float v) const;

    /// The world position of the point q.
    ox_3dvector polygon_to_world(const ox_2dvector& q) const;

    /// The world direction of the vector (u, v).
    ox_3dvector polygon_vector_to_world(float u, float v) const;

    /// The world direction of the vector q.
    ox_3dvector polygon_vector_to_world(const ox_2dvector& q) const;

    /// True if the point (u, v) lies inside the region, as `ox_polygon::contains` does. O(n).
    bool contains(float u, float v) const;

    /// True if the point q lies inside the region, as `ox_polygon::contains` does. O(n).
    bool contains(const ox_2dvector& q) const;

    /// Finds the first contour edge that a ray hits, edges parallel to it left out. Writes the
    /// point hit, the edge's unit direction and the dot product of the way there with `direction`
    /// (the distance, when that is of unit length), and returns the index of the edge's first
    /// vertex; -1 for none, with all three untouched. Of edges hit at the same distance the first
    /// counts. O(n).
    int raytrace(const ox_2dvector& start, const ox_2dvector& direction, ox_2dvector& hit,
                 ox_2dvector& edge, float& distance) const;

private:
    std::shared_ptr<ox_polygon_projection_data> data;
};

} // namespace ox

#endif
