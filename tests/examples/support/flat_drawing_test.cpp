#include <examples/support/flat_drawing.h>
#include <examples/support/offscreen_context.h>

#include <GL/gl.h>
#include <gtest/gtest.h>

namespace {

using namespace ox_examples;

/// A white picture of 100 by 60 pixels, drawn on by `draw` in red.
template <typename F>
image drawn(const F& draw) {
    offscreen_context context(100, 60, 4);
    glClearColor(1, 1, 1, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    begin_flat_drawing(100, 60);
    set_colour({1, 0, 0});
    draw();
    return context.read_pixels();
}

bool is_red(const image& picture, int x, int y) {
    const unsigned char* const pixel = picture.pixel(x, y);
    return pixel[0] == 255 && pixel[1] == 0 && pixel[2] == 0;
}

bool is_white(const image& picture, int x, int y) {
    const unsigned char* const pixel = picture.pixel(x, y);
    return pixel[0] == 255 && pixel[1] == 255 && pixel[2] == 255;
}

TEST(FlatDrawing, PixelsCountFromTheTopLeftCorner) {
    const image picture = drawn([] { fill_rectangle({10, 5}, 20, 10); });
    EXPECT_TRUE(is_red(picture, 10, 5));
    EXPECT_TRUE(is_red(picture, 29, 14));
    EXPECT_TRUE(is_white(picture, 9, 5));
    EXPECT_TRUE(is_white(picture, 30, 14));
    EXPECT_TRUE(is_white(picture, 29, 15));
}

TEST(FlatDrawing, RingIsHollowAndDiscIsNot) {
    const image ring = drawn([] { draw_ring({50, 30}, 20, 4); });
    EXPECT_TRUE(is_red(ring, 70, 30));
    EXPECT_TRUE(is_white(ring, 50, 30));
    const image disc = drawn([] { fill_disc({50, 30}, 20); });
    EXPECT_TRUE(is_red(disc, 50, 30));
    EXPECT_TRUE(is_white(disc, 75, 30));
}

TEST(FlatDrawing, TextStandsOnItsBaseLine) {
    const image picture = drawn([] { draw_text("H", {20, 40}, 24); });
    int top = 60;
    int bottom = 0;
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 100; ++x) {
            if (!is_white(picture, x, y)) {
                top = y < top ? y : top;
                bottom = y;
            }
        }
    }
    EXPECT_NEAR(16, top, 1);
    EXPECT_NEAR(39, bottom, 1);
}

TEST(FlatDrawing, TextWidthCountsTheCharacters) {
    EXPECT_DOUBLE_EQ(0, text_width("", 12));
    EXPECT_DOUBLE_EQ(8, text_width("a", 12));
    EXPECT_DOUBLE_EQ(20, text_width("ab", 12));
}

} // namespace
