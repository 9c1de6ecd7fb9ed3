#ifndef OX_DISPLAY_OX_SNAP_H
#define OX_DISPLAY_OX_SNAP_H

#include <ox/core/ox_export.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox {

/// A picked point that is snapped onto one plane after the other and loses a degree of freedom with
/// each: free, on a plane, on the line where two planes meet, fixed where three meet.
///
/// Represents the snapped point with what still constrains it, and the point first picked, from
/// which no snap leads farther than the tolerance. All fields are public; the caller reads the
/// result from them. Lengths are in model units.
///
/// Degenerate input:
/// - planes nearly parallel to the constraint (sine or cosine below 0.01): refused;
/// - a freedom of 0 or below: every plane is refused; above 3: like 3;
/// - a tolerance that is negative or NaN, or a snap to coordinates that are NaN: refused;
/// - an infinite tolerance: nothing is too far, so that coordinates may become infinite.
///
/// \code
///   ox::ox_snap snap(picked, 0.5f, 3, ox::ox_3dvector());
///   for (const plane& candidate : planes) {
///       snap.check_plane(candidate.point, candidate.normal);
///   }
///   use(snap.position);
/// \endcode
class OX_EXPORT ox_snap {
public:
    ox_3dvector position;  ///< the snapped point, at first the picked one
    int freedom;           ///< 3 free, 2 on a plane, 1 on a line, 0 fixed
    ox_3dvector direction; ///< the plane's normal at freedom 2, the line's direction at freedom 1
    ox_3dvector reference; ///< the picked point, never changed
    float tolerance;       ///< the largest distance of a snap from the picked point

    /// A pick at `point`. A free pick has freedom 3 and any direction; a caller that knows a
    /// constraint gives 2 with the plane's unit normal or 1 with the line's unit direction.
    ox_snap(const ox_3dvector& point, float snap_tolerance, int degrees_of_freedom,
            const ox_3dvector& constraint);

    /// Copies all fields.
    ox_snap(const ox_snap& other);

    /// Copies all fields.
    ox_snap& operator=(const ox_snap& other);

    /// Does nothing: the fields are plain values.
    virtual ~ox_snap();

    /// Snaps onto the plane through `point` with the unit normal `normal`, and tells whether it
    /// did: when the constraint meets the plane and the new position is at most the tolerance away
    /// from the reference. All fields stay as they are otherwise. O(1).
    bool check_plane(const ox_3dvector& point, const ox_3dvector& normal);

private:
    bool is_within_reach(const ox_3dvector& candidate) const;
    bool snap_to_plane(const ox_3dvector& point, const ox_3dvector& normal);
    bool snap_to_line(const ox_3dvector& point, const ox_3dvector& normal);
    bool snap_to_point(const ox_3dvector& point, const ox_3dvector& normal);
};

} // namespace ox

#endif
