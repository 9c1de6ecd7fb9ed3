#include <ox/display/ox_camera.h>

#include <algorithm>
#include <cmath>

#include <ox/geometry/ox_polar.h>
#include <ox/internal/angles.h>
#include <ox/ox_functions.h>

namespace ox {

using namespace internal;

namespace {

/// Radians: an orbit stops here, just short of a right angle, so that the view never flips over
/// the pole.
constexpr float largest_elevation = 1.57f;

} // namespace

ox_camera::ox_camera()
    : ox_camera(ox_3dvector(), ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f), 30.0f, 0, 0) {}

ox_camera::ox_camera(const ox_3dvector& eye, const ox_3dvector& looked_at, const ox_3dvector& up,
                     float field_of_view, int window_width, int window_height)
    : position(eye), target(looked_at), upaxis(up), angle(field_of_view), width(window_width),
      height(window_height) {}

template <typename value_type>
void ox_camera::store(value_type& field, const value_type& value) {
    if (field != value) {
        field = value;
        dirty = true;
    }
}

void ox_camera::set_position(const ox_3dvector& value) {
    store(position, value);
}

void ox_camera::set_target(const ox_3dvector& value) {
    store(target, value);
}

void ox_camera::set_upaxis(const ox_3dvector& value) {
    store(upaxis, value);
}

void ox_camera::set_angle(float value) {
    store(angle, value);
}

void ox_camera::set_width(int value) {
    store(width, value);
}

void ox_camera::set_height(int value) {
    store(height, value);
}

void ox_camera::_compute() {
    if (!dirty) {
        return;
    }
    dirty = false;
    forward = target - position;
    forward.normalize();
    ox_3dvector right = ox_cross(forward, upaxis);
    right.normalize();
    ox_3dvector down = ox_cross(forward, right);
    down.normalize();

    const float columns = static_cast<float>(width);
    const float rows = static_cast<float>(height);
    const float half_angle = angle * 0.5f * half_turn / 180.0f;
    const float half_height = static_cast<float>(std::tan(static_cast<double>(half_angle)));
    const float half_width = columns * half_height / rows;
    corner = forward - half_width * right - half_height * down;
    projection_x_axis = right * (columns / (2.0f * half_width));
    projection_y_axis = down * (rows / (2.0f * half_height));
    right_step = right * (2.0f * half_width / columns);
    down_step = down * (2.0f * half_height / rows);
    precompute_date = ox_get_new_date();
}

unsigned int ox_camera::get_precompute_date() {
    _compute();
    return precompute_date;
}

ox_3dvector ox_camera::get_ray_direction(float x, float y) {
    _compute();
    ox_3dvector ray = corner + x * right_step + y * down_step;
    ray.normalize();
    return ray;
}

bool ox_camera::get_projection(const ox_3dvector& point, float& x, float& y) {
    _compute();
    const ox_3dvector from_eye = point - position;
    const float depth = ox_dot(from_eye, forward);
    if (!(depth > 0.0f)) {
        return false;
    }
    const ox_3dvector from_corner = from_eye / depth - corner;
    x = ox_dot(from_corner, projection_x_axis);
    y = ox_dot(from_corner, projection_y_axis);
    return true;
}

void ox_camera::move_by(const ox_3dvector& delta) {
    const ox_3dvector moved_target = target + delta;
    store(position, position + delta);
    store(target, moved_target);
}

void ox_camera::do_travelling(float dx, float dy) {
    const float distance = target.distance_to(position);
    move_by(-(distance * dx) * right_step - (distance * dy) * down_step);
}

void ox_camera::go_toward(const ox_3dvector& point, float factor) {
    move_by((point - position) * factor);
}

/// The vector `view` after a mouse move, the z axis being vertical.
ox_3dvector ox_camera::turned(const ox_3dvector& view, float dx, float dy) const {
    const float radians_per_pixel = (angle * half_turn) / (static_cast<float>(height) * 180.0f);
    const ox_polar polar(view);
    const float elevation =
        std::clamp(radians_per_pixel * dy + polar.latitude, -largest_elevation, largest_elevation);
    const float azimuth = radians_per_pixel * dx + polar.longitude;
    return polar.radius * ox_3dvector(rounded_cos(elevation) * rounded_cos(azimuth),
                                      rounded_cos(elevation) * rounded_sin(azimuth),
                                      rounded_sin(elevation));
}

void ox_camera::turn_around_position(float dx, float dy) {
    store(target, position + turned(target - position, dx, dy));
}

void ox_camera::turn_around_target(float dx, float dy) {
    store(position, target + turned(position - target, dx, dy));
}

} // namespace ox
