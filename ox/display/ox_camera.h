#ifndef OX_DISPLAY_OX_CAMERA_H
#define OX_DISPLAY_OX_CAMERA_H

#include <ox/core/ox_export.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox {

/// A pinhole camera for a window: viewing rays of pixels, pixels of points, and the usual moves.
///
/// Represents eye, target, up direction (neither of unit length nor square to the view), vertical
/// field of view in degrees and the window's size in pixels, with derived quantities that are
/// recomputed by the first query after a change. Each recomputation takes a new date
/// (`ox_get_new_date`), so others can tell whether what they projected is out of date.
///
/// Pixel coordinates run from (0, 0) at the top left corner of the window to (width, height) at its
/// bottom right corner.
///
/// Degenerate input (nothing is checked, everything is answered):
/// - a window without width or height (the default), a field of view of 0 or 180 degrees, an eye
///   on its target, an up direction along the view, numbers that are not finite: rays and pixels
///   are zero, infinite or NaN;
/// - in a window of height 0 a turn leads to NaN or infinite angles, hence positions.
///
/// A plain value: copies are independent. Queries fill derived fields: a camera shared by threads
/// must be asked once (for its date, say) before they query it.
///
/// \code
///   ox::ox_camera camera(eye, target, ox::ox_3dvector(0, 0, 1), 60, 800, 600);
///   const ox::ox_3dvector ray = camera.get_ray_direction(400, 300);
///   float x = 0, y = 0;
///   if (camera.get_projection(point, x, y)) { ... } // the point is in front of the eye
/// \endcode
class OX_EXPORT ox_camera {
public:
    /// At the origin with up (0, 0, 1), 30 degrees and a window of no size: to be set up.
    ox_camera();

    /// A camera at `position` that looks at `target`; `angle` in degrees, the size in pixels.
    ox_camera(const ox_3dvector& position, const ox_3dvector& target, const ox_3dvector& upaxis,
              float angle, int width, int height);

    // Setters, O(1); a value equal to the stored one changes nothing, not even the date. Values are
    // stored as they are, numbers that are not finite included.

    /// Moves the eye (model units), without the target.
    void set_position(const ox_3dvector& value);

    /// Sets the point looked at (model units).
    void set_target(const ox_3dvector& value);

    /// Sets the up direction, of any length and any angle to the view but 0.
    void set_upaxis(const ox_3dvector& value);

    /// Sets the vertical field of view (degrees).
    void set_angle(float value);

    /// Sets the width of the window (pixels).
    void set_width(int value);

    /// Sets the height of the window (pixels).
    void set_height(int value);

    // Getters, O(1), without a recomputation

    /// The eye (model units).
    const ox_3dvector& get_position() const { return position; }

    /// The point looked at (model units).
    const ox_3dvector& get_target() const { return target; }

    /// The up direction, as it was set.
    const ox_3dvector& get_upaxis() const { return upaxis; }

    /// The vertical field of view (degrees).
    float get_angle() const { return angle; }

    /// The width of the window (pixels).
    int get_width() const { return width; }

    /// The height of the window (pixels).
    int get_height() const { return height; }

    // Queries, O(1)

    /// The date of the last recomputation, after one that may be due.
    unsigned int get_precompute_date();

    /// The unit direction from the eye through the pixel coordinates (x, y).
    ox_3dvector get_ray_direction(float x, float y);

    /// Writes the pixel coordinates of a point and returns true; false, both untouched, unless it
    /// lies in front of the eye.
    bool get_projection(const ox_3dvector& point, float& x, float& y);

    // Moves, O(1)

    /// Pans by a mouse move in pixels, so that what lies at the target's distance follows the
    /// mouse. Uses the steps of the last recomputation, as they were before pending changes:
    /// nothing moves before the first one.
    void do_travelling(float dx, float dy);

    /// Moves eye and target by the share `factor` of the way from the eye to `point`; 1 brings the
    /// eye onto it.
    void go_toward(const ox_3dvector& point, float factor);

    /// Looks around: turns the target about the eye by a mouse move in pixels, the window's height
    /// being the field of view. z is vertical, whatever the up direction is, and the elevation
    /// stops at 1.57 radians.
    void turn_around_position(float dx, float dy);

    /// Orbits: turns the eye about the target, as `turn_around_position` does.
    void turn_around_target(float dx, float dy);

protected:
    /// Brings the derived fields up to date, if something changed.
    void _compute();

private:
    template <typename value_type>
    void store(value_type& field, const value_type& value);
    void move_by(const ox_3dvector& delta);
    ox_3dvector turned(const ox_3dvector& view, float dx, float dy) const;

    ox_3dvector position;
    ox_3dvector target;
    ox_3dvector upaxis;
    float angle;
    int width;
    int height;
    bool dirty = true;
    unsigned int precompute_date = 0;
    ox_3dvector corner;     ///< from the eye to pixel (0, 0), at distance 1 along the view
    ox_3dvector right_step; ///< one pixel to the right, at distance 1
    ox_3dvector down_step;  ///< one pixel down, at distance 1
    ox_3dvector forward;
    ox_3dvector projection_x_axis;
    ox_3dvector projection_y_axis;
};

} // namespace ox

#endif
