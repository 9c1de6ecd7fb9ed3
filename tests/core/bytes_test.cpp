#include <gtest/gtest.h>
#include <ox/ox_functions.h>
#include <string>

namespace {

std::string text_of(const ox::ox_list<unsigned char>& bytes) {
    return std::string(bytes.begin(), bytes.end());
}

TEST(Bytes, FromCharPointerKeepsNulsAndHighBytes) {
    EXPECT_EQ(text_of(ox_from_char_ptr("a\0\xFF", 3)), std::string("a\0\xFF", 3));
}

TEST(Bytes, FromUnsignedCharPointerGivesTheSameBytes) {
    const unsigned char bytes[] = {0, 127, 255};
    EXPECT_EQ(text_of(ox_from_uchar_ptr(bytes, 3)), std::string("\0\x7F\xFF", 3));
}

TEST(Bytes, ANumberBelowOneGivesAnEmptyListWithThatCount) {
    EXPECT_EQ(ox_from_char_ptr("abc", 0).size(), 0);
    EXPECT_EQ(ox_from_char_ptr("abc", -7).size(), -7);
    EXPECT_EQ(ox_from_uchar_ptr(nullptr, -7).size(), -7);
    EXPECT_EQ(ox_from_char_ptr("abc", -7).get_capacity(), 0);
}

TEST(Bytes, ANullPointerIsEmpty) {
    EXPECT_EQ(ox_from_char_ptr(nullptr, 5).size(), 0);
    EXPECT_EQ(ox_from_uchar_ptr(nullptr, 5).size(), 0);
}

TEST(Bytes, FromStringHasNoTerminatorAndKeepsNuls) {
    EXPECT_EQ(text_of(ox_from_stdstring(std::string("a\0b", 3))), std::string("a\0b", 3));
    EXPECT_EQ(ox_from_stdstring("").size(), 0);
}

TEST(Bytes, HexadecimalTextShowsTheLowFourBitsOnlyEachFollowedByZero) {
    const unsigned char bytes[] = {0x00, 0xFF, 0x3C};
    EXPECT_EQ(ox_to_hexa(ox_from_uchar_ptr(bytes, 2)), "00F0");
    EXPECT_EQ(ox_to_hexa(ox_from_uchar_ptr(bytes, 3)), "00F0C0");
}

TEST(Bytes, HexadecimalTextOfNothingIsEmpty) {
    EXPECT_EQ(ox_to_hexa(ox::ox_list<unsigned char>()), "");
    EXPECT_EQ(ox_to_hexa(ox::ox_list<unsigned char>(-3)), "");
}

TEST(Bytes, EncodingsAreTheSameFunctionsInBothNamespaces) {
    EXPECT_EQ(&::ox_to_utf8, &ox::ox_to_utf8);
    EXPECT_EQ(&::ox_to_b64, &ox::ox_to_b64);
    EXPECT_EQ(&::ox_uuid, &ox::ox_uuid);
}

} // namespace
