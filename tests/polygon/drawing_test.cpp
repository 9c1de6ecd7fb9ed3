#include <ox/polygon/ox_polygon.h>

#include <tests/display/canvas.h>
#include <tests/display/gl_call_recorder.h>

#include <gmock/gmock.h>

namespace {

using namespace ox;
using ox_test::call_with_vector;
using ox_test::calls_of;
using ox_test::gl_calls;
using ox_test::pixel_at;
using testing::ElementsAre;
using testing::IsEmpty;

class OxPolygonDrawing : public ox_test::canvas_test {};

ox_list<ox_3dvector> square(float low, float high) {
    ox_list<ox_3dvector> contour;
    contour.push_right(ox_3dvector(low, low, 0));
    contour.push_right(ox_3dvector(high, low, 0));
    contour.push_right(ox_3dvector(high, high, 0));
    contour.push_right(ox_3dvector(low, high, 0));
    return contour;
}

ox_polygon square_ring() {
    ox_polygon polygon;
    polygon.add_contour(square(16, 48));
    polygon.add_contour(square(24, 40));
    return polygon;
}

ox_polygon triangle() {
    ox_list<ox_3dvector> contour;
    contour.push_right(ox_3dvector(0, 0, 0));
    contour.push_right(ox_3dvector(4, 0, 0));
    contour.push_right(ox_3dvector(0, 3, 0));
    ox_polygon polygon;
    polygon.add_contour(contour);
    return polygon;
}

gl_calls expected_triangle_calls(ox_polygon& polygon) {
    gl_calls calls = {call_with_vector("glNormal3fv", polygon.get_normal()),
                      "glBegin GL_TRIANGLES"};
    for (const unsigned int index : polygon.get_tesselation_triangles()) {
        const int vertex = static_cast<int>(index);
        calls.push_back(
            call_with_vector("glVertex3fv", polygon.get_tesselation_vertices().at(vertex)));
    }
    calls.push_back("glEnd");
    return calls;
}

gl_calls expected_contour_calls(ox_polygon& polygon) {
    gl_calls calls;
    int first = 0;
    for (const unsigned int size : polygon.get_contour_sizes()) {
        calls.push_back("glBegin GL_LINE_STRIP");
        for (unsigned int i = 0; i <= size; ++i) {
            const int vertex = first + static_cast<int>(i % size);
            calls.push_back(
                call_with_vector("glVertex3fv", polygon.get_contour_vertices().at(vertex)));
        }
        calls.push_back("glEnd");
        first += static_cast<int>(size);
    }
    return calls;
}

TEST_F(OxPolygonDrawing, ATriangleIsDrawnWithItsNormalThenItsVerticesWithoutColour) {
    ox_polygon polygon = triangle();
    EXPECT_THAT(calls_of([&] { polygon.draw_opengl(); }),
                ElementsAre("glNormal3fv 0 0 1", "glBegin GL_TRIANGLES", "glVertex3fv 0 0 0",
                            "glVertex3fv 4 0 0", "glVertex3fv 0 3 0", "glEnd"));
}

TEST_F(OxPolygonDrawing, EveryTriangleIsDrawnInOneBlockInTheOrderOfItsIndices) {
    ox_polygon polygon = square_ring();
    const gl_calls calls = calls_of([&] { polygon.draw_opengl(); });
    EXPECT_EQ(calls, expected_triangle_calls(polygon));
    EXPECT_GE(calls.size(), 3u + 3 * 8);
}

TEST_F(OxPolygonDrawing, AContourIsDrawnAsALineStripThatEndsWithItsFirstVertex) {
    ox_polygon polygon = triangle();
    EXPECT_THAT(calls_of([&] { polygon.draw_opengl_contour(false); }),
                ElementsAre("glBegin GL_LINE_STRIP", "glVertex3fv 0 0 0", "glVertex3fv 4 0 0",
                            "glVertex3fv 0 3 0", "glVertex3fv 0 0 0", "glEnd"));
}

TEST_F(OxPolygonDrawing, TheVerticesOfAContourAreDrawnAsPointsOfFivePixelsOnRequest) {
    ox_polygon polygon = triangle();
    EXPECT_THAT(calls_of([&] { polygon.draw_opengl_contour(true); }),
                ElementsAre("glBegin GL_LINE_STRIP", "glVertex3fv 0 0 0", "glVertex3fv 4 0 0",
                            "glVertex3fv 0 3 0", "glVertex3fv 0 0 0", "glEnd", "glPointSize 5",
                            "glBegin GL_POINTS", "glVertex3fv 0 0 0", "glVertex3fv 4 0 0",
                            "glVertex3fv 0 3 0", "glEnd"));
}

TEST_F(OxPolygonDrawing, EveryContourHasALineStripOfItsOwn) {
    ox_polygon polygon = square_ring();
    const gl_calls calls = calls_of([&] { polygon.draw_opengl_contour(false); });
    EXPECT_EQ(calls, expected_contour_calls(polygon));
    EXPECT_EQ(calls.size(), 2u * (2 + 5));
}

TEST_F(OxPolygonDrawing, ThePointsOfEveryContourShareOneBlock) {
    ox_polygon polygon = square_ring();
    gl_calls expected = expected_contour_calls(polygon);
    expected.push_back("glPointSize 5");
    expected.push_back("glBegin GL_POINTS");
    for (const ox_3dvector& vertex : polygon.get_contour_vertices()) {
        expected.push_back(call_with_vector("glVertex3fv", vertex));
    }
    expected.push_back("glEnd");
    EXPECT_EQ(calls_of([&] { polygon.draw_opengl_contour(true); }), expected);
}

TEST_F(OxPolygonDrawing, APolygonWithNoContourDrawsNothing) {
    ox_polygon empty;
    ox_polygon plane_only(ox_3dvector(0, 0, 1), ox_3dvector(0, 0, 1));
    ox_polygon cleared = square_ring();
    cleared.clear();
    for (ox_polygon* polygon : {&empty, &plane_only, &cleared}) {
        EXPECT_THAT(calls_of([&] { polygon->draw_opengl(); }), IsEmpty());
        EXPECT_THAT(calls_of([&] { polygon->draw_opengl_contour(false); }), IsEmpty());
        EXPECT_THAT(calls_of([&] { polygon->draw_opengl_contour(true); }), IsEmpty());
    }
}

TEST_F(OxPolygonDrawing, APolygonWhoseContoursWereAllDroppedDrawsNothing) {
    ox_list<ox_3dvector> two_points;
    two_points.push_right(ox_3dvector(0, 0, 0));
    two_points.push_right(ox_3dvector(1, 0, 0));
    ox_polygon polygon;
    polygon.add_contour(two_points);
    EXPECT_THAT(calls_of([&] { polygon.draw_opengl(); }), IsEmpty());
    EXPECT_THAT(calls_of([&] { polygon.draw_opengl_contour(true); }), IsEmpty());
}

TEST_F(OxPolygonDrawing, AReversedPolygonIsDrawnWithTheOppositeNormal) {
    ox_polygon polygon = triangle();
    polygon.reverse();
    EXPECT_EQ(calls_of([&] { polygon.draw_opengl(); }), expected_triangle_calls(polygon));
    EXPECT_LT(polygon.get_normal().z, 0);
}

TEST_F(OxPolygonDrawing, ADrawnSquareFillsItsPixelsInTheCurrentColour) {
    ox_polygon polygon;
    polygon.add_contour(square(16, 48));
    polygon.draw_opengl();
    const ox_examples::image picture = get_picture();
    EXPECT_EQ(count_pixels(picture, ox_test::white), 32 * 32);
    EXPECT_EQ(pixel_at(picture, 16, 16), ox_test::white);
    EXPECT_EQ(pixel_at(picture, 15, 16), ox_test::black);
}

TEST_F(OxPolygonDrawing, AHoleStaysEmpty) {
    ox_polygon polygon = square_ring();
    polygon.draw_opengl();
    const ox_examples::image picture = get_picture();
    EXPECT_EQ(count_pixels(picture, ox_test::white), 32 * 32 - 16 * 16);
    EXPECT_EQ(pixel_at(picture, 32, 32), ox_test::black);
}

TEST_F(OxPolygonDrawing, AContourLineRunsAllTheWayRound) {
    ox_polygon polygon;
    polygon.add_contour(square(16.5f, 47.5f));
    polygon.draw_opengl_contour(false);
    const ox_examples::image picture = get_picture();
    // OpenGL leaves it open whether the pixel of a corner belongs to a line that ends there.
    for (int i = 17; i < 47; ++i) {
        EXPECT_EQ(pixel_at(picture, i, 16), ox_test::white) << "upper side, " << i;
        EXPECT_EQ(pixel_at(picture, i, 47), ox_test::white) << "lower side, " << i;
        EXPECT_EQ(pixel_at(picture, 16, i), ox_test::white) << "left side, " << i;
        EXPECT_EQ(pixel_at(picture, 47, i), ox_test::white) << "right side, " << i;
    }
    EXPECT_EQ(pixel_at(picture, 32, 32), ox_test::black);
}

TEST_F(OxPolygonDrawing, TheMarkedVerticesAreSquaresOfFivePixels) {
    ox_polygon polygon;
    polygon.add_contour(square(16.5f, 47.5f));
    polygon.draw_opengl_contour(true);
    const ox_examples::image picture = get_picture();
    EXPECT_EQ(pixel_at(picture, 14, 14), ox_test::white);
    EXPECT_EQ(pixel_at(picture, 18, 18), ox_test::white);
    EXPECT_EQ(pixel_at(picture, 13, 13), ox_test::black);
    EXPECT_EQ(pixel_at(picture, 19, 19), ox_test::black);
}

} // namespace
