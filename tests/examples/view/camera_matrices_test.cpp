#include <examples/support/offscreen_context.h>
#include <examples/view/camera_matrices.h>

#include <GL/glu.h>
#include <gtest/gtest.h>

namespace {

/// Where OpenGL draws a point, in pixels from the top left corner.
void project(const ox::ox_3dvector& p, double& x, double& y) {
    double modelview[16];
    double projection[16];
    int viewport[4];
    glGetDoublev(GL_MODELVIEW_MATRIX, modelview);
    glGetDoublev(GL_PROJECTION_MATRIX, projection);
    glGetIntegerv(GL_VIEWPORT, viewport);
    double depth = 0;
    gluProject(double{p.x}, double{p.y}, double{p.z}, modelview, projection, viewport, &x, &y,
               &depth);
    y = viewport[3] - y;
}

TEST(ViewCameraMatrices, OpenGlDrawsPointsWhereTheCameraSeesThem) {
    ox_examples::offscreen_context context(640, 480);
    ox::ox_camera camera(ox::ox_3dvector(3, -20, 7), ox::ox_3dvector(1, 2, 1),
                         ox::ox_3dvector(0, 0, 1), 40, 640, 480);
    view::set_opengl_camera(camera, 0.5, 100);
    for (int i = 0; i < 200; ++i) {
        const auto coordinate = [i](int factor) {
            return static_cast<float>(i * factor % 101) / 10.f - 5.f;
        };
        const ox::ox_3dvector p(coordinate(17), coordinate(31), coordinate(53));
        float x = 0;
        float y = 0;
        ASSERT_TRUE(camera.get_projection(p, x, y));
        double drawn_x = 0;
        double drawn_y = 0;
        project(p, drawn_x, drawn_y);
        EXPECT_NEAR(double{x}, drawn_x, 0.01);
        EXPECT_NEAR(double{y}, drawn_y, 0.01);
    }
}

} // namespace
