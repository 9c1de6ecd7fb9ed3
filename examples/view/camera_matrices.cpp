#include <examples/view/camera_matrices.h>

#include <GL/gl.h>

namespace view {

namespace {

/// The vector from the middle of the picture to the pixel, in the plane at distance 1.
ox::ox_3dvector offset_of(ox::ox_camera& camera, const ox::ox_3dvector& forward, float x, float y) {
    const ox::ox_3dvector ray = camera.get_ray_direction(x, y);
    return ray / ox::ox_dot(ray, forward) - forward;
}

} // namespace

void set_opengl_camera(ox::ox_camera& camera, double nearest, double farthest) {
    const float width = static_cast<float>(camera.get_width());
    const float height = static_cast<float>(camera.get_height());
    const ox::ox_3dvector forward = camera.get_ray_direction(width / 2, height / 2);
    ox::ox_3dvector right = offset_of(camera, forward, width, height / 2);
    ox::ox_3dvector up = offset_of(camera, forward, width / 2, 0);
    const double half_width = nearest * double{right.size()};
    const double half_height = nearest * double{up.size()};
    right.normalize();
    up.normalize();

    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glFrustum(-half_width, half_width, -half_height, half_height, nearest, farthest);
    const ox::ox_3dvector& eye = camera.get_position();
    const float axes[16] = {right.x, up.x, -forward.x, 0, right.y, up.y, -forward.y, 0,
                            right.z, up.z, -forward.z, 0, 0,       0,    0,          1};
    glMatrixMode(GL_MODELVIEW);
    glLoadMatrixf(axes);
    glTranslatef(-eye.x, -eye.y, -eye.z);
}

} // namespace view
