#include <examples/support/utf8.h>

#include <gtest/gtest.h>

namespace {

using namespace ox_examples;

TEST(Utf8, CharactersTakeOneToFourBytes) {
    EXPECT_EQ(0u, first_character_size(""));
    EXPECT_EQ(1u, first_character_size("aé"));
    EXPECT_EQ(2u, first_character_size("éa"));
    EXPECT_EQ(3u, first_character_size("北a"));
    EXPECT_EQ(4u, first_character_size("\xF0\x9F\x8F\xA0 house"));
}

TEST(Utf8, BytesThatAreNoCharacterHaveNoSize) {
    EXPECT_EQ(0u, first_character_size("\x80")) << "a byte that continues nothing";
    EXPECT_EQ(0u, first_character_size("\xC3")) << "cut off";
    EXPECT_EQ(0u, first_character_size("\xC3"
                                       "a"))
        << "not continued";
    EXPECT_EQ(0u, first_character_size("\xC0\xAF")) << "longer than needed";
    EXPECT_EQ(0u, first_character_size("\xE0\x80\xAF")) << "longer than needed";
    EXPECT_EQ(0u, first_character_size("\xED\xA0\x80")) << "half of a pair";
    EXPECT_EQ(0u, first_character_size("\xF4\x90\x80\x80")) << "beyond the last";
    EXPECT_EQ(0u, first_character_size("\xFF"));
}

TEST(Utf8, CharactersAreCountedAndEachStrayByteAsOne) {
    EXPECT_EQ(0u, count_characters(""));
    EXPECT_EQ(5u, count_characters("Größe"));
    EXPECT_EQ(3u, count_characters("a\xFF"
                                   "b"));
}

TEST(Utf8, TextIsCutBetweenCharacters) {
    EXPECT_EQ("Grö", first_characters("Größe", 3));
    EXPECT_EQ("Größe", first_characters("Größe", 9));
    EXPECT_EQ("", first_characters("Größe", 0));
}

TEST(Utf8, PaddingCountsCharacters) {
    EXPECT_EQ("Größe  ", padded("Größe", 7));
    EXPECT_EQ("Größe", padded("Größe", 2));
}

} // namespace
