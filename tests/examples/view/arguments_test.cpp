#include <examples/view/arguments.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

/// What such a command line asks for. Throws `CLI::ParseError` when it is refused.
view::arguments parsed(std::vector<std::string> words) {
    CLI::App line;
    view::arguments result;
    view::declare(line, result);
    std::reverse(words.begin(), words.end()); // as the parser takes them
    line.parse(words);
    return result;
}

TEST(ViewArguments, PickAndFolderAreOptional) {
    const view::arguments plain = parsed({"house.txt"});
    EXPECT_EQ("house.txt", plain.description);
    EXPECT_EQ(".", plain.folder);
    const view::arguments full = parsed({"--pick", "12.5", "800", "house.txt", "--out", "there"});
    EXPECT_EQ(12.5f, full.pick.first);
    EXPECT_EQ(800.0f, full.pick.second);
    EXPECT_EQ("there", full.folder);
}

TEST(ViewArguments, WhatMakesNoSenseIsRefused) {
    EXPECT_THROW(parsed({}), CLI::ParseError);
    EXPECT_THROW(parsed({"a.txt", "b.txt"}), CLI::ParseError);
    EXPECT_THROW(parsed({"a.txt", "--out"}), CLI::ParseError);
    EXPECT_THROW(parsed({"a.txt", "--out", ""}), CLI::ParseError);
    EXPECT_THROW(parsed({"a.txt", "--pick", "1"}), CLI::ParseError);
    EXPECT_THROW(parsed({"a.txt", "--pick", "nan", "1"}), CLI::ParseError);
    EXPECT_THROW(parsed({"a.txt", "--pick", "-1", "1"}), CLI::ParseError);
    EXPECT_THROW(parsed({"a.txt", "--pick", "", "1"}), CLI::ParseError);
    EXPECT_THROW(parsed({"a.txt", "--fast"}), CLI::ParseError);
}

} // namespace
