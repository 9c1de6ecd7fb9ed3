#include <gtest/gtest.h>
#include <ox/ox_functions.h>
#include <string>

namespace {

TEST(Text, LowerAndUpperCaseChangeLettersOnly) {
    EXPECT_EQ(ox_to_lower("Wall 12-B"), "wall 12-b");
    EXPECT_EQ(ox_to_upper("Wall 12-b"), "WALL 12-B");
    EXPECT_EQ(ox_to_lower(""), "");
}

TEST(Text, CaseConversionKeepsNulsAndHighBytes) {
    const std::string text("\0\xC9\xE9", 3);
    EXPECT_EQ(ox_to_lower(text), text);
    EXPECT_EQ(ox_to_upper(text), text);
}

TEST(Text, CharacterReferenceTakesItsDigitsUnchecked) {
    EXPECT_EQ(ox_hex_ansi_to_ansi("e9"), "&#xe9;");
    EXPECT_EQ(ox_hex_ansi_to_ansi(""), "&#x;");
    EXPECT_EQ(ox_hex_ansi_to_ansi("<z>"), "&#x<z>;");
}

} // namespace
