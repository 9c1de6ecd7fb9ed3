#include <gtest/gtest.h>
#include <ox/ox_functions.h>
#include <string>

#include <tests/reference/plain_base64.h>
#include <tests/support/generator.h>

namespace {

using bytes = ox::ox_list<unsigned char>;

std::string text_of(const bytes& list) {
    return std::string(list.begin(), list.end());
}

std::string encoded(const std::string& text) {
    return text_of(ox_to_b64(ox_from_stdstring(text)));
}

std::string decoded(const std::string& text) {
    return text_of(ox_from_b64(ox_from_stdstring(text)));
}

bytes random_bytes(support::generator& random, int n, int highest) {
    bytes list;
    for (int i = 0; i < n; ++i) {
        list.push_right(static_cast<unsigned char>(random.between(0, highest)));
    }
    return list;
}

TEST(Base64, EncodesManMaAndM) {
    EXPECT_EQ(encoded("Man"), "TWFu");
    EXPECT_EQ(encoded("Ma"), "TWE=");
    EXPECT_EQ(encoded("M"), "TQ==");
}

TEST(Base64, AnEmptyInputGivesAnEmptyList) {
    EXPECT_EQ(ox_to_b64(bytes()).size(), 0);
    EXPECT_EQ(ox_from_b64(bytes()).size(), 0);
    EXPECT_EQ(ox_to_b64(bytes(-4)).size(), 0);
    EXPECT_EQ(ox_from_b64(bytes(-4)).size(), 0);
}

TEST(Base64, ALengthThatIsNoMultipleOfFourDecodesToNothing) {
    EXPECT_EQ(decoded("TWFuT"), "");
    EXPECT_EQ(decoded("TQ="), "");
}

TEST(Base64, DecodesOneByteBeforeTwoPads) {
    EXPECT_EQ(decoded("TQ=="), "\x4D");
}

TEST(Base64, CharactersOutsideTheAlphabetCountAs64) {
    EXPECT_EQ(decoded("=QEB"), "\x01\x01\x01"); // 64 << 2 leaves nothing in a byte
    EXPECT_EQ(decoded("A=EB"), "\x04\x01\x01"); // 64 >> 4 is 4
    EXPECT_EQ(decoded("TW=u"), "M");
    EXPECT_EQ(decoded("TWE\n"), "Ma");
}

TEST(Base64, PadsInTheMiddleEndTheirGroupOnly) {
    EXPECT_EQ(decoded("TQ==TQ=="), "MM");
}

TEST(Base64, DecodingWhatWasEncodedGivesTheBytesBack) {
    support::generator random(64);
    for (int n = 0; n < 300; ++n) {
        const bytes original = random_bytes(random, n, 255);
        EXPECT_EQ(text_of(ox_from_b64(ox_to_b64(original))), text_of(original));
    }
}

TEST(Base64, EqualsThePlainVersionsInBytesAndCapacity) {
    support::generator random(6464);
    for (int i = 0; i < 5000; ++i) {
        const bytes source = random_bytes(random, random.between(0, 40), i % 2 == 0 ? 255 : 127);
        const bytes text = ox_to_b64(source);
        const bytes plain_text = reference::plain_to_b64(source);
        ASSERT_EQ(text_of(text), text_of(plain_text));
        ASSERT_EQ(text.get_capacity(), plain_text.get_capacity());
        const bytes back = ox_from_b64(source);
        const bytes plain_back = reference::plain_from_b64(source);
        ASSERT_EQ(text_of(back), text_of(plain_back)) << "for " << text_of(source);
        ASSERT_EQ(back.get_capacity(), plain_back.get_capacity());
    }
}

TEST(Base64, TextsWithWrongCharactersAnywhereDecodeAsThePlainVersionDoes) {
    support::generator random(646464);
    for (int i = 0; i < 10000; ++i) {
        bytes text = ox_to_b64(random_bytes(random, random.between(0, 60), 255));
        for (int n = random.between(0, 4); n > 0 && text.size() > 0; --n) {
            const int highest = random.one_in(2) ? 255 : 127;
            text[random.between(0, text.size() - 1)] =
                random.one_in(2) ? static_cast<unsigned char>('=')
                                 : static_cast<unsigned char>(random.between(0, highest));
        }
        const bytes back = ox_from_b64(text);
        const bytes plain_back = reference::plain_from_b64(text);
        ASSERT_EQ(text_of(back), text_of(plain_back)) << "for " << text_of(text);
        ASSERT_EQ(back.get_capacity(), plain_back.get_capacity());
    }
}

TEST(Base64, EveryCharacterInEveryPlaceOfAGroupDecodesAsThePlainVersionDoes) {
    for (int place = 0; place < 16; ++place) {
        for (int c = 0; c < 256; ++c) {
            bytes text = ox_from_stdstring("abcd+/01WXYZefgh");
            text[place] = static_cast<unsigned char>(c);
            ASSERT_EQ(text_of(ox_from_b64(text)), text_of(reference::plain_from_b64(text)));
        }
    }
}

} // namespace
