#include <ox/display/ox_opengl_shapes.h>

#include <tests/display/canvas.h>
#include <tests/display/gl_call_recorder.h>

#include <gmock/gmock.h>

#include <limits>
#include <type_traits>

namespace {

using namespace ox;
using ox_test::gl_calls;
using ox_test::pixel_at;
using testing::ElementsAre;
using testing::IsEmpty;

const ox_color red(1, 0, 0);
const ox_color green(0, 1, 0);
const ox_color blue(0, 0, 1, 0.5f);

class OxOpenglShapes : public ox_test::canvas_test {};

gl_calls drawing_calls(const ox_opengl_shapes& shapes) {
    return ox_test::calls_of([&] { shapes.draw_opengl(); });
}

gl_calls calls_for_point_of_size(int size) {
    ox_opengl_shapes shapes;
    shapes.add_point(ox_3dvector(1, 2, 3), red, size);
    return drawing_calls(shapes);
}

gl_calls calls_for_line_of_width(int width) {
    ox_opengl_shapes shapes;
    shapes.add_line(ox_3dvector(1, 2, 3), ox_3dvector(4, 5, 6), red, width);
    return drawing_calls(shapes);
}

TEST_F(OxOpenglShapes, AnEmptyCollectionMakesNoOpenglCall) {
    EXPECT_THAT(drawing_calls(ox_opengl_shapes()), IsEmpty());
}

TEST_F(OxOpenglShapes, APointIsDrawnWithItsSizeColourAndPosition) {
    EXPECT_THAT(calls_for_point_of_size(4),
                ElementsAre("glPointSize 4", "glBegin GL_POINTS", "glColor4fv 1 0 0 1",
                            "glVertex3fv 1 2 3", "glEnd"));
}

TEST_F(OxOpenglShapes, APointOfSizeTwelveIsDrawnWithSizeNine) {
    EXPECT_EQ(calls_for_point_of_size(12), calls_for_point_of_size(9));
    EXPECT_EQ(calls_for_point_of_size(12).front(), "glPointSize 9");
}

TEST_F(OxOpenglShapes, APointOfSizeMinusThreeIsDrawnWithSizeZero) {
    EXPECT_EQ(calls_for_point_of_size(-3), calls_for_point_of_size(0));
    EXPECT_EQ(calls_for_point_of_size(-3).front(), "glPointSize 0");
}

TEST_F(OxOpenglShapes, TheMostExtremePointSizesAreClamped) {
    EXPECT_EQ(calls_for_point_of_size(std::numeric_limits<int>::max()).front(), "glPointSize 9");
    EXPECT_EQ(calls_for_point_of_size(std::numeric_limits<int>::min()).front(), "glPointSize 0");
}

TEST_F(OxOpenglShapes, PointsAreGroupedByAscendingSizeAndKeepTheirOrderWithinASize) {
    ox_opengl_shapes shapes;
    shapes.add_point(ox_3dvector(1, 0, 0), red, 7);
    shapes.add_point(ox_3dvector(2, 0, 0), green, 2);
    shapes.add_point(ox_3dvector(3, 0, 0), blue, 7);
    shapes.add_point(ox_3dvector(4, 0, 0), red, 2);
    EXPECT_THAT(drawing_calls(shapes),
                ElementsAre("glPointSize 2", "glBegin GL_POINTS", "glColor4fv 0 1 0 1",
                            "glVertex3fv 2 0 0", "glColor4fv 1 0 0 1", "glVertex3fv 4 0 0", "glEnd",
                            "glPointSize 7", "glBegin GL_POINTS", "glColor4fv 1 0 0 1",
                            "glVertex3fv 1 0 0", "glColor4fv 0 0 1 0.5", "glVertex3fv 3 0 0",
                            "glEnd"));
}

TEST_F(OxOpenglShapes, ALineIsDrawnWithItsWidthAndTheColourOfEachEnd) {
    ox_opengl_shapes shapes;
    shapes.add_line(ox_3dvector(1, 2, 3), ox_3dvector(4, 5, 6), red, blue, 3);
    EXPECT_THAT(drawing_calls(shapes),
                ElementsAre("glLineWidth 3", "glBegin GL_LINES", "glColor4fv 1 0 0 1",
                            "glVertex3fv 1 2 3", "glColor4fv 0 0 1 0.5", "glVertex3fv 4 5 6",
                            "glEnd"));
}

TEST_F(OxOpenglShapes, ALineOfOneColourHasItAtBothEnds) {
    EXPECT_THAT(calls_for_line_of_width(1),
                ElementsAre("glLineWidth 1", "glBegin GL_LINES", "glColor4fv 1 0 0 1",
                            "glVertex3fv 1 2 3", "glColor4fv 1 0 0 1", "glVertex3fv 4 5 6",
                            "glEnd"));
}

TEST_F(OxOpenglShapes, WidthZeroIsHandedToOpenglAsItIs) {
    EXPECT_EQ(calls_for_line_of_width(0).front(), "glLineWidth 0");
}

TEST_F(OxOpenglShapes, LinesAreGroupedByAscendingWidthAndKeepTheirOrderWithinAWidth) {
    ox_opengl_shapes shapes;
    const ox_3dvector origin;
    shapes.add_line(ox_3dvector(1, 0, 0), origin, red, 9);
    shapes.add_line(ox_3dvector(2, 0, 0), origin, red, 0);
    shapes.add_line(ox_3dvector(3, 0, 0), origin, red, 9);
    EXPECT_THAT(drawing_calls(shapes),
                ElementsAre("glLineWidth 0", "glBegin GL_LINES", "glColor4fv 1 0 0 1",
                            "glVertex3fv 2 0 0", "glColor4fv 1 0 0 1", "glVertex3fv 0 0 0", "glEnd",
                            "glLineWidth 9", "glBegin GL_LINES", "glColor4fv 1 0 0 1",
                            "glVertex3fv 1 0 0", "glColor4fv 1 0 0 1", "glVertex3fv 0 0 0",
                            "glColor4fv 1 0 0 1", "glVertex3fv 3 0 0", "glColor4fv 1 0 0 1",
                            "glVertex3fv 0 0 0", "glEnd"));
}

TEST_F(OxOpenglShapes, LinesAreDrawnAfterEveryPoint) {
    ox_opengl_shapes shapes;
    shapes.add_line(ox_3dvector(1, 0, 0), ox_3dvector(2, 0, 0), red, 0);
    shapes.add_point(ox_3dvector(), green, 9);
    EXPECT_THAT(drawing_calls(shapes),
                ElementsAre("glPointSize 9", "glBegin GL_POINTS", "glColor4fv 0 1 0 1",
                            "glVertex3fv 0 0 0", "glEnd", "glLineWidth 0", "glBegin GL_LINES",
                            "glColor4fv 1 0 0 1", "glVertex3fv 1 0 0", "glColor4fv 1 0 0 1",
                            "glVertex3fv 2 0 0", "glEnd"));
}

TEST_F(OxOpenglShapes, LinesWhoseWidthIsOutsideZeroToNineAreNeverDrawn) {
    for (const int width : {-1, 10, 11, -1000000, 1000000, std::numeric_limits<int>::min(),
                            std::numeric_limits<int>::max()}) {
        EXPECT_THAT(calls_for_line_of_width(width), IsEmpty()) << width;
    }
}

TEST_F(OxOpenglShapes, AWidthOutsideZeroToNineTouchesNoOtherShape) {
    ox_opengl_shapes shapes;
    shapes.add_point(ox_3dvector(1, 2, 3), green, 5);
    shapes.add_line(ox_3dvector(1, 2, 3), ox_3dvector(4, 5, 6), green, 5);
    const gl_calls before = drawing_calls(shapes);
    for (int width = -50; width < 0; ++width) {
        shapes.add_line(ox_3dvector(), ox_3dvector(1, 1, 1), red, width);
    }
    for (int width = 10; width < 60; ++width) {
        shapes.add_line(ox_3dvector(), ox_3dvector(1, 1, 1), red, width);
    }
    EXPECT_EQ(drawing_calls(shapes), before);
}

TEST_F(OxOpenglShapes, DrawingTwiceMakesTheSameCalls) {
    ox_opengl_shapes shapes;
    shapes.add_point(ox_3dvector(1, 2, 3), green, 5);
    shapes.add_line(ox_3dvector(1, 2, 3), ox_3dvector(4, 5, 6), green, 5);
    EXPECT_EQ(drawing_calls(shapes), drawing_calls(shapes));
}

TEST_F(OxOpenglShapes, ClearForgetsEveryPointAndLine) {
    ox_opengl_shapes shapes;
    for (int size = -1; size <= 10; ++size) {
        shapes.add_point(ox_3dvector(), red, size);
        shapes.add_line(ox_3dvector(), ox_3dvector(1, 0, 0), red, size);
    }
    shapes.clear();
    EXPECT_THAT(drawing_calls(shapes), IsEmpty());
}

TEST_F(OxOpenglShapes, ShapesAddedAfterClearAreTheOnlyOnesDrawn) {
    ox_opengl_shapes shapes;
    shapes.add_point(ox_3dvector(9, 9, 9), green, 6);
    shapes.clear();
    shapes.add_point(ox_3dvector(1, 2, 3), red, 4);
    EXPECT_EQ(drawing_calls(shapes), calls_for_point_of_size(4));
}

TEST_F(OxOpenglShapes, ACopyDrawsTheSame) {
    ox_opengl_shapes shapes;
    shapes.add_point(ox_3dvector(1, 2, 3), green, 5);
    shapes.add_line(ox_3dvector(1, 2, 3), ox_3dvector(4, 5, 6), green, 12);
    const ox_opengl_shapes copy(shapes);
    ox_opengl_shapes assigned;
    assigned.add_line(ox_3dvector(), ox_3dvector(1, 1, 1), red, 1);
    assigned = shapes;
    EXPECT_EQ(drawing_calls(copy), drawing_calls(shapes));
    EXPECT_EQ(drawing_calls(assigned), drawing_calls(shapes));
}

TEST_F(OxOpenglShapes, AMovedCollectionLeavesAnEmptyOneBehind) {
    ox_opengl_shapes shapes;
    shapes.add_point(ox_3dvector(1, 2, 3), red, 4);
    const ox_test::gl_calls calls = drawing_calls(shapes);
    ox_opengl_shapes taken(std::move(shapes));
    EXPECT_EQ(drawing_calls(taken), calls);
    ox_opengl_shapes other;
    swap(taken, other);
    EXPECT_THAT(drawing_calls(taken), testing::IsEmpty());
    taken = std::move(other);
    EXPECT_EQ(drawing_calls(taken), calls);
}

TEST_F(OxOpenglShapes, ACopyHasNothingInCommonWithItsSource) {
    ox_opengl_shapes shapes;
    shapes.add_point(ox_3dvector(1, 2, 3), red, 4);
    ox_opengl_shapes copy(shapes);
    ox_opengl_shapes assigned;
    assigned = shapes;
    shapes.clear();
    copy.add_line(ox_3dvector(), ox_3dvector(1, 0, 0), green, 1);
    EXPECT_EQ(drawing_calls(assigned), calls_for_point_of_size(4));
    EXPECT_THAT(drawing_calls(shapes), IsEmpty());
}

TEST_F(OxOpenglShapes, AssigningACollectionToItselfChangesNothing) {
    ox_opengl_shapes shapes;
    shapes.add_point(ox_3dvector(1, 2, 3), red, 4);
    const ox_opengl_shapes& same = shapes;
    shapes = same;
    EXPECT_EQ(drawing_calls(shapes), calls_for_point_of_size(4));
}

TEST_F(OxOpenglShapes, CoordinatesThatAreNotFiniteAreHandedOver) {
    const float infinity = std::numeric_limits<float>::infinity();
    ox_opengl_shapes shapes;
    shapes.add_point(ox_3dvector(infinity, 0, -infinity), red, 1);
    EXPECT_THAT(drawing_calls(shapes), testing::Contains("glVertex3fv inf 0 -inf"));
}

TEST_F(OxOpenglShapes, APointFillsASquareOfItsSizeInPixels) {
    ox_opengl_shapes shapes;
    shapes.add_point(ox_3dvector(20, 20, 0), red, 4);
    shapes.add_point(ox_3dvector(40, 20, 0), green, 6);
    shapes.draw_opengl();
    const ox_examples::image picture = get_picture();
    EXPECT_EQ(count_pixels(picture, ox_test::red), 4 * 4);
    EXPECT_EQ(count_pixels(picture, ox_test::green), 6 * 6);
    EXPECT_EQ(pixel_at(picture, 20, pixels - 20), ox_test::red);
}

TEST_F(OxOpenglShapes, ALineIsAsWideAsItsWidthSays) {
    ox_opengl_shapes shapes;
    shapes.add_line(ox_3dvector(10, 32, 0), ox_3dvector(50, 32, 0), red, 4);
    shapes.draw_opengl();
    EXPECT_EQ(count_pixels(get_picture(), ox_test::red), 40 * 4);
}

TEST_F(OxOpenglShapes, TheColourOfALineRunsFromOneEndToTheOther) {
    ox_opengl_shapes shapes;
    shapes.add_line(ox_3dvector(0, 32, 0), ox_3dvector(64, 32, 0), red, green, 3);
    shapes.draw_opengl();
    const ox_examples::image picture = get_picture();
    EXPECT_GT(pixel_at(picture, 1, 32).red, 240);
    EXPECT_NEAR(pixel_at(picture, 32, 32).red, 128, 4);
    EXPECT_NEAR(pixel_at(picture, 32, 32).green, 128, 4);
    EXPECT_GT(pixel_at(picture, 62, 32).green, 240);
}

TEST(OxOpenglShapesClass, IsAHandleWithAVirtualDestructor) {
    EXPECT_TRUE(std::has_virtual_destructor_v<ox_opengl_shapes>);
    EXPECT_EQ(sizeof(ox_opengl_shapes), 2 * sizeof(void*));
}

} // namespace
