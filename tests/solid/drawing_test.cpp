#include <ox/solid/ox_solid.h>

#include <tests/display/canvas.h>
#include <tests/display/gl_call_recorder.h>

#include <gmock/gmock.h>

#include <algorithm>

namespace {

using namespace ox;
using ox_test::calls_of;
using ox_test::gl_calls;
using ox_test::pixel_at;
using testing::IsEmpty;

class OxSolidDrawing : public ox_test::canvas_test {
protected:
    void SetUp() override {
        canvas_test::SetUp();
        brick.brick(ox_3dvector(16, 16, -0.5f), 32, 24, 1);
    }

    ox_solid brick;
};

TEST_F(OxSolidDrawing, EveryFaceIsDrawnInOrder) {
    gl_calls expected;
    for (ox_polygon* face : brick.get_faces()) {
        const gl_calls of_face = calls_of([&] { face->draw_opengl(); });
        expected.insert(expected.end(), of_face.begin(), of_face.end());
    }
    EXPECT_EQ(calls_of([&] { brick.draw_opengl(); }), expected);
    EXPECT_EQ(std::count(expected.begin(), expected.end(), "glBegin GL_TRIANGLES"), 6);
}

TEST_F(OxSolidDrawing, TheContoursOfEveryFaceAreDrawnInOrderWithoutPoints) {
    gl_calls expected;
    for (ox_polygon* face : brick.get_faces()) {
        const gl_calls of_face = calls_of([&] { face->draw_opengl_contour(false); });
        expected.insert(expected.end(), of_face.begin(), of_face.end());
    }
    EXPECT_EQ(calls_of([&] { brick.draw_opengl_contour(); }), expected);
    EXPECT_EQ(std::count(expected.begin(), expected.end(), "glBegin GL_LINE_STRIP"), 6);
}

TEST_F(OxSolidDrawing, TheFacesNeedNotHaveBeenAskedForBefore) {
    ox_solid same(brick);
    brick.get_faces();
    EXPECT_EQ(calls_of([&] { same.draw_opengl(); }), calls_of([&] { brick.draw_opengl(); }));
}

TEST_F(OxSolidDrawing, ASolidWithoutFacesDrawsNothing) {
    ox_solid empty;
    brick.clear();
    for (ox_solid* solid : {&empty, &brick}) {
        EXPECT_THAT(calls_of([&] { solid->draw_opengl(); }), IsEmpty());
        EXPECT_THAT(calls_of([&] { solid->draw_opengl_contour(); }), IsEmpty());
    }
}

TEST_F(OxSolidDrawing, ABrickSeenFromAboveFillsARectangle) {
    brick.draw_opengl();
    EXPECT_EQ(count_pixels(get_picture(), ox_test::white), 32 * 24);
}

TEST_F(OxSolidDrawing, TheContoursOfABrickLeaveItsMiddleEmpty) {
    brick.draw_opengl_contour();
    const ox_examples::image picture = get_picture();
    EXPECT_GE(count_pixels(picture, ox_test::white), 2 * (32 + 24) - 4);
    EXPECT_EQ(pixel_at(picture, 32, pixels - 28), ox_test::black);
}

} // namespace
