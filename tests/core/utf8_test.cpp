#include <gtest/gtest.h>
#include <ox/ox_functions.h>
#include <stdexcept>
#include <string>

#include <tests/support/generator.h>

namespace {

/// Expects the range error "bad conversion".
template <typename Conversion>
void expect_refusal(const Conversion& convert) {
    try {
        convert();
        ADD_FAILURE() << "nothing was thrown";
    } catch (const std::range_error& error) {
        EXPECT_STREQ(error.what(), "bad conversion");
    }
}

void expect_no_utf8(const std::string& text) {
    SCOPED_TRACE(::testing::PrintToString(text));
    expect_refusal([&text] { ox_to_ansi(text); });
    expect_refusal([&text] { ox_to_ansi("before" + text); });
    expect_refusal([&text] { ox_to_ansi(text + "after"); });
}

TEST(Utf8, TwoBytesOfALatinLetterBecomeItsOneByte) {
    EXPECT_EQ(ox_to_ansi("\xC3\xA9"), "\xE9");
}

TEST(Utf8, AnEmptyTextStaysEmpty) {
    EXPECT_EQ(ox_to_ansi(""), "");
    EXPECT_EQ(ox_to_utf8(""), "");
}

TEST(Utf8, NarrowingKeepsTheLowEightBits) {
    EXPECT_EQ(ox_to_ansi("\xE2\x82\xAC"), "\xAC");     // U+20AC
    EXPECT_EQ(ox_to_ansi("\xF0\x9F\x98\x80"), "?");    // U+1F600: they are 0
    EXPECT_EQ(ox_to_ansi("\xC4\x80"), "?");            // U+0100
    EXPECT_EQ(ox_to_ansi("\xF4\x8F\xBF\xBF"), "\xFF"); // U+10FFFF
    EXPECT_EQ(ox_to_ansi("\xEF\xBF\xBF"), "\xFF");     // U+FFFF
}

TEST(Utf8, NulCharactersAreKept) {
    EXPECT_EQ(ox_to_ansi(std::string("a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(ox_to_utf8(std::string("a\0b", 3)), std::string("a\0b", 3));
}

TEST(Utf8, TruncatedSequencesAreRefused) {
    for (const char* text : {"\xC3", "\xE2", "\xE2\x82", "\xF0", "\xF0\x9F", "\xF0\x9F\x98"}) {
        expect_no_utf8(text);
    }
}

TEST(Utf8, StrayAndImpossibleBytesAreRefused) {
    for (const char* text : {"\x80", "\xBF", "\xFE", "\xFF", "\xF8\x88\x80\x80\x80", "\xC3\xC3"}) {
        expect_no_utf8(text);
    }
}

TEST(Utf8, OverlongFormsAreRefused) {
    for (const char* text : {"\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xE0\x9F\xBF",
                             "\xF0\x80\x80\x80", "\xF0\x8F\xBF\xBF"}) {
        expect_no_utf8(text);
    }
    expect_no_utf8(std::string("\xC0\x80", 2));
}

TEST(Utf8, SurrogatesAreRefused) {
    for (const char* text : {"\xED\xA0\x80", "\xED\xBF\xBF", "\xED\xA0\xBD\xED\xB8\x80"}) {
        expect_no_utf8(text);
    }
}

TEST(Utf8, ValuesAboveTheLastCodePointAreRefused) {
    for (const char* text : {"\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xF7\xBF\xBF\xBF"}) {
        expect_no_utf8(text);
    }
}

TEST(Utf8, EveryTextIsConvertedOrRefusedWithABadConversion) {
    support::generator random(8);
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (int n = random.between(0, 6); n > 0; --n) {
            text += static_cast<char>(random.between(0, 255));
        }
        try {
            EXPECT_LE(ox_to_ansi(text).size(), text.size());
        } catch (const std::range_error& error) {
            EXPECT_STREQ(error.what(), "bad conversion");
        }
    }
}

#ifndef _WIN32
TEST(Utf8, BytesAreReadAsIso88591ElsewhereThanOnWindows) {
    EXPECT_EQ(ox_to_utf8("caf\xE9"), "caf\xC3\xA9");
    EXPECT_EQ(ox_to_utf8("\x80"), "\xC2\x80");
    EXPECT_EQ(ox_to_utf8("\xFF"), "\xC3\xBF");
}

TEST(Utf8, EveryByteSurvivesTheWayThereAndBack) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    EXPECT_EQ(ox_to_ansi(ox_to_utf8(all)), all);
}
#endif

TEST(Utf8, HexadecimalCodesBecomeCharacters) {
    EXPECT_EQ(ox_hex_ansi_to_utf8("e9"), "\xC3\xA9");
    EXPECT_EQ(ox_hex_ansi_to_utf8("E9"), "\xC3\xA9");
    EXPECT_EQ(ox_hex_ansi_to_utf8("20AC"), "\xE2\x82\xAC");
    EXPECT_EQ(ox_hex_ansi_to_utf8("FFFF"), "\xEF\xBF\xBF");
}

TEST(Utf8, CharactersThatAreNoDigitsCountAsZero) {
    EXPECT_EQ(ox_hex_ansi_to_utf8("4x"), "@");
    EXPECT_EQ(ox_hex_ansi_to_utf8(std::string("4\0", 2)), "@");
}

TEST(Utf8, NoDigitsMakeTheNulCharacter) {
    EXPECT_EQ(ox_hex_ansi_to_utf8(""), std::string(1, '\0'));
}

TEST(Utf8, OnlyTheLowSixteenBitsOfACodeCount) {
    EXPECT_EQ(ox_hex_ansi_to_utf8("10041"), "A");
    EXPECT_EQ(ox_hex_ansi_to_utf8(std::string(100000, 'F') + "0041"), "A");
}

TEST(Utf8, ACodeThatIsALoneSurrogateIsRefused) {
    for (const char* code : {"D800", "DBFF", "DC00", "DFFF", "1D800"}) {
        expect_refusal([code] { ox_hex_ansi_to_utf8(code); });
    }
    EXPECT_EQ(ox_hex_ansi_to_utf8("D7FF"), "\xED\x9F\xBF");
    EXPECT_EQ(ox_hex_ansi_to_utf8("E000"), "\xEE\x80\x80");
}

} // namespace
