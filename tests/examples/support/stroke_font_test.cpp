#include <examples/support/stroke_font.h>

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace ox_examples;

const std::string letters_and_digits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.,:'()+/%=";

std::string shape_of(char c) {
    std::string shape;
    for (const stroke& line : strokes_of(c)) {
        for (const stroke_point& p : line) {
            shape += std::to_string(p.x) + "," + std::to_string(p.y) + " ";
        }
        shape += "| ";
    }
    return shape;
}

TEST(StrokeFont, CharactersConsistOfLinesOnTheGrid) {
    for (const char c : letters_and_digits) {
        EXPECT_FALSE(strokes_of(c).empty()) << c;
        for (const stroke& line : strokes_of(c)) {
            EXPECT_GE(line.size(), 2u) << c;
            for (const stroke_point& p : line) {
                EXPECT_TRUE(p.x >= 0 && p.x <= 4 && p.y >= -2 && p.y <= 6) << c;
            }
        }
    }
}

TEST(StrokeFont, CharactersDifferExceptForOAndZero) {
    for (const char a : letters_and_digits) {
        for (const char b : letters_and_digits) {
            if (a < b && !(a == '0' && b == 'O')) {
                EXPECT_NE(shape_of(a), shape_of(b)) << a << b;
            }
        }
    }
}

TEST(StrokeFont, BlankIsEmptyAndUnknownCharactersAreBoxes) {
    EXPECT_TRUE(strokes_of(' ').empty());
    EXPECT_EQ("0,0 0,6 4,6 4,0 0,0 | ", shape_of('@'));
    EXPECT_EQ(shape_of('@'), shape_of('\0'));
    EXPECT_EQ(shape_of('@'), shape_of('\xE9'));
}

} // namespace
