#include <ox/geometry/ox_color.h>

#include <string>

#include <gtest/gtest.h>

#include <tests/geometry/support.h>

using namespace geometry_test;
using ox::ox_color;

namespace {

void expect_color(const ox_color& c, float r, float g, float b, float a) {
    EXPECT_EQ(c.r, r);
    EXPECT_EQ(c.g, g);
    EXPECT_EQ(c.b, b);
    EXPECT_EQ(c.a, a);
}

void expect_near(const ox_color& c, float r, float g, float b, float a) {
    EXPECT_NEAR(c.r, r, 1e-5f);
    EXPECT_NEAR(c.g, g, 1e-5f);
    EXPECT_NEAR(c.b, b, 1e-5f);
    EXPECT_EQ(c.a, a);
}

} // namespace

TEST(OxColor, ConstructorsFillInOpaqueAlpha) {
    expect_color(ox_color(), 0.f, 0.f, 0.f, 1.f);
    expect_color(ox_color(0.25f), 0.25f, 0.25f, 0.25f, 1.f);
    expect_color(ox_color(0.25f, 0.5f), 0.25f, 0.25f, 0.25f, 0.5f);
    expect_color(ox_color(1.f, 2.f, 3.f), 1.f, 2.f, 3.f, 1.f);
    expect_color(ox_color(1.f, 2.f, 3.f, 4.f), 1.f, 2.f, 3.f, 4.f);
}

TEST(OxColor, ReadsFourFloats) {
    float values[4] = {1.f, 2.f, 3.f, 4.f};
    expect_color(ox_color(values), 1.f, 2.f, 3.f, 4.f);
}

TEST(OxColor, ReadsFourBytes) {
    unsigned char bytes[4] = {255, 0, 127, 51};
    expect_color(ox_color(bytes), 1.f, 0.f, 127.f / 255.f, 51.f / 255.f);
}

TEST(OxColor, NullArraysGiveOpaqueBlack) {
    const float* no_floats = nullptr;
    const unsigned char* no_bytes = nullptr;
    expect_color(ox_color(no_floats), 0.f, 0.f, 0.f, 1.f);
    expect_color(ox_color(no_bytes), 0.f, 0.f, 0.f, 1.f);
}

TEST(OxColor, ConstructsFromText) {
    expect_color(ox_color(std::string("#ff0000")), 1.f, 0.f, 0.f, 1.f);
    expect_color(ox_color(std::string("no colour")), 0.f, 0.f, 0.f, 1.f);
}

TEST(OxColor, CopiesItsComponents) {
    const ox_color c(1.f, 2.f, 3.f, 4.f);
    ox_color assigned;
    assigned = c;
    expect_color(ox_color(c), 1.f, 2.f, 3.f, 4.f);
    expect_color(assigned, 1.f, 2.f, 3.f, 4.f);
}

TEST(OxColor, IndexReachesComponentsInOrder) {
    ox_color c;
    for (unsigned int i = 0; i < 4; ++i) {
        c[i] = static_cast<float>(i);
    }
    expect_color(c, 0.f, 1.f, 2.f, 3.f);
}

TEST(OxColor, OperatorsWorkOnAllFourComponentsWithoutClamping) {
    ox_color c(1.f, 2.f, 3.f, 4.f);
    c *= ox_color(2.f, 3.f, 4.f, 5.f);
    expect_color(c, 2.f, 6.f, 12.f, 20.f);
    c += ox_color(1.f, 1.f, 1.f, 1.f);
    expect_color(c, 3.f, 7.f, 13.f, 21.f);
    c *= 2.f;
    expect_color(c, 6.f, 14.f, 26.f, 42.f);
    c /= 2.f;
    expect_color(c, 3.f, 7.f, 13.f, 21.f);
}

TEST(OxColor, OperatorsAcceptTheColourItself) {
    ox_color c(1.f, 2.f, 3.f, 4.f);
    c *= c;
    expect_color(c, 1.f, 4.f, 9.f, 16.f);
    c += c;
    expect_color(c, 2.f, 8.f, 18.f, 32.f);
    c *= c.r;
    expect_color(c, 4.f, 16.f, 36.f, 64.f);
    c /= c.r;
    expect_color(c, 1.f, 4.f, 9.f, 16.f);
}

TEST(OxColor, OpaqueRedEncodesToItsPackedForms) {
    const ox_color red(1.f, 0.f, 0.f, 1.f);
    EXPECT_EQ(red.encode_rgba(), 0xFF0000FFUL);
    EXPECT_EQ(red.encode_bgra(), 0xFFFF0000UL);
}

TEST(OxColor, ChannelsAreTruncatedNotRounded) {
    EXPECT_EQ(ox_color(0.5f, 0.f).encode_rgba(), 0x7F7F7FUL);
    EXPECT_EQ(ox_color(std::nextafter(1.f, 0.f), 0.f).encode_rgba(), 0xFEFEFEUL);
}

TEST(OxColor, ChannelsOutsideTheRangeAreClamped) {
    EXPECT_EQ(ox_color(-1.f, 2.f, -0.f, 1e30f).encode_rgba(), 0xFF00FF00UL);
    EXPECT_EQ(ox_color(infinity, -infinity, smallest, not_a_number).encode_rgba(), 0x000000FFUL);
}

TEST(OxColor, DecodesPackedChannels) {
    ox_color c;
    c.decode_rgba(0x330080FFUL);
    expect_color(c, 1.f, 128.f / 255.f, 0.f, 51.f / 255.f);
}

TEST(OxColor, BitsBeyond32OfAPackedColourGoToAlpha) {
    if (sizeof(unsigned long) < 8) {
        GTEST_SKIP() << "unsigned long has 32 bits here";
    }
    ox_color c;
    c.decode_rgba(0x1FFUL << 24);
    expect_color(c, 0.f, 0.f, 0.f, 511.f / 255.f);
}

TEST(OxColor, PackedFormsStayWithinOneOfTheirRoundTrip) {
    for (unsigned long channel = 0; channel < 256; ++channel) {
        ox_color c;
        c.decode_rgba(channel * 0x01010101UL);
        // Truncation may lose one where channel / 255 rounds down.
        const unsigned long back = c.encode_rgba() & 255;
        EXPECT_TRUE(back == channel || back + 1 == channel);
        EXPECT_EQ(c.encode_rgba(), back * 0x01010101UL);
        EXPECT_EQ(c.encode_bgra(), back * 0x01010101UL);
    }
}

TEST(OxColor, EncodesTextInLowerCaseWithoutAlpha) {
    EXPECT_EQ(ox_color(0.5f, 1.f, 0.f).encode_string(), "#7fff00");
    EXPECT_EQ(ox_color(0.5f, 1.f, 0.f, 0.f).encode_string(), "#7fff00");
    EXPECT_EQ(ox_color(not_a_number, infinity, -infinity).encode_string(), "#00ff00");
}

TEST(OxColor, DecodesTextInEitherCase) {
    ox_color c(0.f, 0.f, 0.f, 0.f);
    EXPECT_TRUE(c.decode_string("#7FFF00"));
    expect_color(c, 127.f / 255.f, 1.f, 0.f, 1.f);
    EXPECT_TRUE(c.decode_string("#00ff7f"));
    expect_color(c, 0.f, 1.f, 127.f / 255.f, 1.f);
}

TEST(OxColor, TextWithoutHashIsRefusedAndChangesNothing) {
    ox_color c(0.1f, 0.2f, 0.3f, 0.4f);
    EXPECT_FALSE(c.decode_string("7fff00"));
    expect_color(c, 0.1f, 0.2f, 0.3f, 0.4f);
}

TEST(OxColor, MalformedTextIsRefusedAndChangesNothing) {
    const std::string with_nul("#12\0", 4);
    const std::string texts[] = {"",        "#",       "#1234",    "#gg0000",
                                 "#ff00zz", "#-f0zz0", " #ff0000", with_nul + "3456"};
    for (const std::string& text : texts) {
        ox_color c(0.1f, 0.2f, 0.3f, 0.4f);
        EXPECT_FALSE(c.decode_string(text)) << text;
        expect_color(c, 0.1f, 0.2f, 0.3f, 0.4f);
    }
}

TEST(OxColor, FieldOfOneDigitIsEnough) {
    ox_color c;
    EXPECT_TRUE(c.decode_string("#12345"));
    expect_color(c, 18.f / 255.f, 52.f / 255.f, 5.f / 255.f, 1.f);
    EXPECT_TRUE(c.decode_string("#f f f"));
    expect_color(c, 15.f / 255.f, 15.f / 255.f, 15.f / 255.f, 1.f);
}

TEST(OxColor, FieldsMayStartWithWhiteSpaceOrASignAsInAnyScan) {
    ox_color c;
    EXPECT_TRUE(c.decode_string("# 7f\t00\nff"));
    expect_color(c, 127.f / 255.f, 0.f, 1.f, 1.f);
    EXPECT_TRUE(c.decode_string("#+f+f+f"));
    expect_color(c, 15.f / 255.f, 15.f / 255.f, 15.f / 255.f, 1.f);
    EXPECT_TRUE(c.decode_string("#-10000"));
    EXPECT_EQ(c.r, 4294967295.f / 255.f);
}

TEST(OxColor, WhatFollowsTheThreeFieldsIsNotLookedAt) {
    ox_color c;
    EXPECT_TRUE(c.decode_string("#ff000080 and more"));
    expect_color(c, 1.f, 0.f, 0.f, 1.f);
    EXPECT_TRUE(c.decode_string("#00ff00" + std::string(100000, 'f')));
    expect_color(c, 0.f, 1.f, 0.f, 1.f);
}

TEST(OxColor, TextRoundTripStaysWithinOne) {
    for (int channel = 0; channel < 256; ++channel) {
        const float value = static_cast<float>(channel) / 255.f;
        ox_color c;
        ASSERT_TRUE(c.decode_string(ox_color(value).encode_string()));
        EXPECT_NEAR(c.r, value, 1.001f / 255.f);
        EXPECT_EQ(c.r, c.g);
        EXPECT_EQ(c.g, c.b);
    }
}

TEST(OxColor, HeatRunsFromDarkBlueToDarkRed) {
    expect_color(ox_color::heat(0.f), 0.f, 0.f, 0.5f, 1.f);
    expect_color(ox_color::heat(0.5f), 0.5f, 1.f, 0.5f, 1.f);
    expect_color(ox_color::heat(1.f), 0.5f, 0.f, 0.f, 1.f);
}

TEST(OxColor, HeatMeetsEveryColourOfItsScale) {
    expect_color(ox_color::heat(0.125f), 0.f, 0.f, 1.f, 1.f);
    expect_color(ox_color::heat(0.25f), 0.f, 0.5f, 1.f, 1.f);
    expect_color(ox_color::heat(0.375f), 0.f, 1.f, 1.f, 1.f);
    expect_color(ox_color::heat(0.625f), 1.f, 1.f, 0.f, 1.f);
    expect_color(ox_color::heat(0.75f), 1.f, 0.5f, 0.f, 1.f);
    expect_color(ox_color::heat(0.875f), 1.f, 0.f, 0.f, 1.f);
}

TEST(OxColor, HeatOutsideItsScaleTakesTheColourOfTheEnd) {
    for (const float v : {-smallest, -1.f, -1e30f, -infinity}) {
        expect_color(ox_color::heat(v), 0.f, 0.f, 0.5f, 1.f);
    }
    for (const float v : {std::nextafter(1.f, 2.f), 2.f, 1e30f, infinity}) {
        expect_color(ox_color::heat(v), 0.5f, 0.f, 0.f, 1.f);
    }
}

TEST(OxColor, HeatOfNotANumberHasANotANumberRed) {
    const ox_color c = ox_color::heat(not_a_number);
    EXPECT_TRUE(std::isnan(c.r));
    EXPECT_EQ(c.g, 0.f);
    EXPECT_EQ(c.b, 0.f);
}

TEST(OxColor, PseudoRunsFromBlackToWhite) {
    expect_color(ox_color::pseudo(0.f), 0.f, 0.f, 0.f, 1.f);
    expect_near(ox_color::pseudo(0.1f), 0.f, 0.f, 0.5f, 1.f);
    expect_near(ox_color::pseudo(0.3f), 0.5f, 0.f, 1.f, 1.f);
    expect_color(ox_color::pseudo(0.5f), 1.f, 0.f, 0.5f, 1.f);
    expect_near(ox_color::pseudo(0.7f), 1.f, 0.5f, 0.f, 1.f);
    expect_near(ox_color::pseudo(0.9f), 1.f, 1.f, 0.5f, 1.f);
    expect_color(ox_color::pseudo(1.f), 1.f, 1.f, 1.f, 1.f);
}

TEST(OxColor, PseudoOutsideItsScaleIsBlackOrWhite) {
    for (const float v : {-smallest, -1.f, -infinity}) {
        expect_color(ox_color::pseudo(v), 0.f, 0.f, 0.f, 1.f);
    }
    for (const float v : {1.5f, 1e38f, infinity, not_a_number}) {
        expect_color(ox_color::pseudo(v), 1.f, 1.f, 1.f, 1.f);
    }
}

TEST(OxColor, MapsStayWithinTheRangeAndContinuous) {
    constexpr int steps = 4000;
    ox_color last_heat = ox_color::heat(0.f);
    ox_color last_pseudo = ox_color::pseudo(0.f);
    for (int i = 1; i <= steps; ++i) {
        const float v = static_cast<float>(i) / static_cast<float>(steps);
        ox_color heat = ox_color::heat(v);
        ox_color pseudo = ox_color::pseudo(v);
        for (unsigned int k = 0; k < 3; ++k) {
            EXPECT_TRUE(heat[k] >= 0.f && heat[k] <= 1.f);
            EXPECT_TRUE(pseudo[k] >= 0.f && pseudo[k] <= 1.f);
            EXPECT_NEAR(heat[k], last_heat[k], 0.002f);
            EXPECT_NEAR(pseudo[k], last_pseudo[k], 0.002f);
        }
        last_heat = heat;
        last_pseudo = pseudo;
    }
}
