#ifndef OX_EXAMPLES_VIEW_CAMERA_MATRICES_H
#define OX_EXAMPLES_VIEW_CAMERA_MATRICES_H

#include <ox/display/ox_camera.h>

namespace view {

/// Makes OpenGL project as the camera does: a point appears at the pixel that `get_projection`
/// tells. The matrices are derived from the camera's own rays. What lies between the distances
/// `nearest` and `farthest` from the eye is drawn.
void set_opengl_camera(ox::ox_camera& camera, double nearest, double farthest);

} // namespace view

#endif
