#include <examples/view/arguments.h>

#include <gtest/gtest.h>
#include <stdexcept>
#include <vector>

namespace {

view::arguments parsed(std::vector<std::string> words) {
    std::vector<char*> line;
    words.insert(words.begin(), "ox_view");
    for (std::string& word : words) {
        line.push_back(&word[0]);
    }
    return view::parse(static_cast<int>(line.size()), line.data());
}

TEST(ViewArguments, PickAndFolderAreOptional) {
    const view::arguments plain = parsed({"house.txt"});
    EXPECT_EQ("house.txt", plain.description);
    EXPECT_EQ(".", plain.folder);
    const view::arguments full = parsed({"--pick", "12.5", "800", "house.txt", "--out", "there"});
    EXPECT_EQ(12.5f, full.pick_x);
    EXPECT_EQ(800.f, full.pick_y);
    EXPECT_EQ("there", full.folder);
}

TEST(ViewArguments, WhatMakesNoSenseIsRefused) {
    EXPECT_THROW(parsed({}), std::invalid_argument);
    EXPECT_THROW(parsed({"a.txt", "b.txt"}), std::invalid_argument);
    EXPECT_THROW(parsed({"a.txt", "--out"}), std::invalid_argument);
    EXPECT_THROW(parsed({"a.txt", "--pick", "1"}), std::invalid_argument);
    EXPECT_THROW(parsed({"a.txt", "--pick", "nan", "1"}), std::invalid_argument);
    EXPECT_THROW(parsed({"a.txt", "--pick", "-1", "1"}), std::invalid_argument);
    EXPECT_THROW(parsed({"a.txt", "--pick", "", "1"}), std::invalid_argument);
    EXPECT_THROW(parsed({"a.txt", "--fast"}), std::invalid_argument);
}

} // namespace
