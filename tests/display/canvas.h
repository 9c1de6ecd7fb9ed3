#ifndef OX_TESTS_DISPLAY_CANVAS_H
#define OX_TESTS_DISPLAY_CANVAS_H

#include <examples/support/image.h>
#include <examples/support/offscreen_context.h>

#include <gtest/gtest.h>

namespace ox_test {

/// A red, green and blue value of a picture, in [0, 255].
struct rgb {
    int red;
    int green;
    int blue;
};

inline bool operator==(const rgb& a, const rgb& b) {
    return a.red == b.red && a.green == b.green && a.blue == b.blue;
}

inline void PrintTo(const rgb& color, std::ostream* out) {
    *out << '(' << color.red << ", " << color.green << ", " << color.blue << ')';
}

constexpr rgb black = {0, 0, 0};
constexpr rgb white = {255, 255, 255};
constexpr rgb red = {255, 0, 0};
constexpr rgb green = {0, 255, 0};

inline rgb pixel_at(const ox_examples::image& picture, int x, int y) {
    const unsigned char* pixel = picture.pixel(x, y);
    return {pixel[0], pixel[1], pixel[2]};
}

inline int count_pixels(const ox_examples::image& picture, const rgb& color) {
    int count = 0;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            count += pixel_at(picture, x, y) == color ? 1 : 0;
        }
    }
    return count;
}

/// A test that draws on a black picture of 64 by 64 pixels. The model unit is the pixel: x runs to
/// the right from the left border, y upwards from the bottom. The current colour is white.
class canvas_test : public testing::Test {
protected:
    static constexpr int pixels = 64;

    void SetUp() override;

    ox_examples::image get_picture() { return context.read_pixels(); }

    ox_examples::offscreen_context context{pixels, pixels};
};

} // namespace ox_test

#endif
