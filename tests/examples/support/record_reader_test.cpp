#include <examples/support/description_file.h>
#include <examples/support/record_reader.h>
#include <tests/support/log_capture.h>

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>

namespace {

using namespace ox_examples;

/// What reading the text tells: the words taken by the record `say`, or what is wrong.
std::string told(const std::string& text) {
    const std::string path = support::own_file(".txt");
    std::ofstream(path, std::ios::binary) << text;
    std::string result;
    unique_names names;
    try {
        read_records(path,
                     {{"say", [&](line_reader& line) { result += line.word("word") + " "; }},
                      {"name", [&](line_reader& line) { result += names.take(line) + " "; }}});
    } catch (const description_error& error) {
        result = std::string(error.what()).substr(path.size() + 1);
    }
    std::remove(path.c_str());
    return result;
}

TEST(RecordReader, RecordsAreTakenLineByLine) {
    EXPECT_EQ("a b ", told("say a\nsay b"));
    EXPECT_EQ("a b ", told("  say\ta # comment\r\n\n# say c\nsay b\n"));
    EXPECT_EQ("", told(""));
}

TEST(RecordReader, WhatIsWrongIsToldWithItsLine) {
    EXPECT_EQ("2: unknown keyword 'shout'", told("say a\nshout b\n"));
    EXPECT_EQ("1: missing word", told("say\n"));
    EXPECT_EQ("1: unexpected 'b'", told("say a b\n"));
    EXPECT_EQ("3: duplicate name 'x'", told("name x\nname y\nname x\n"));
    EXPECT_EQ("1: unknown keyword 'a?b?'", told("a\x01"
                                                "b\xFF a"));
}

TEST(RecordReader, ByteOrderMarkBeforeTheFirstLineIsNotRead) {
    EXPECT_EQ("a b ", told("\xEF\xBB\xBFsay a\nsay b"));
    EXPECT_EQ("", told("\xEF\xBB\xBF"));
    EXPECT_EQ("2: unknown keyword '\xEF\xBB\xBFsay'", told("say a\n\xEF\xBB\xBFsay b"));
}

TEST(RecordReader, NamesHaveLettersOfAnyAlphabet) {
    EXPECT_EQ("Größe-北_1 ", told("name Größe-北_1"));
    EXPECT_EQ("2: duplicate name 'Größe'", told("name Größe\nname Größe"));
    EXPECT_EQ("1: 'a?b' is no name: letters, digits, '_' and '-' only", told("name a\xC2\x9B"
                                                                             "b"));
    EXPECT_EQ("1: 'a?' is no name: letters, digits, '_' and '-' only", told("name a\xC3"));
}

TEST(RecordReader, LongWordsAreCutBetweenCharacters) {
    std::string word;
    std::string shown;
    for (int i = 0; i < 41; ++i) {
        word += "ö";
        shown += i < 40 ? "ö" : "";
    }
    EXPECT_EQ("1: unknown keyword '" + shown + "...'", told(word));
}

} // namespace
