#include "cells.h"

#include <gtest/gtest.h>
#include <new>
#include <string>

#include <tests/support/generator.h>

namespace {

TEST(HostileCsv, AMillionLineBreaksThenOneCell) {
    ox::ox_csv table;
    table.read_string(std::string(1000000, '\n') + "1;2;3\n");
    ASSERT_EQ(table.get_nb_columns(), 1); // the three cells are too uneven a sign
    EXPECT_EQ(column_of(table, 0).size(), 1000001u);
}

TEST(HostileCsv, AMillionLineBreaksThenOneCellThatEndsTheText) {
    ox::ox_csv table;
    table.read_string(std::string(1000000, '\n') + "cell");
    ASSERT_EQ(table.get_nb_columns(), 1);
    EXPECT_EQ(column_of(table, 0), cells(1000000)); // the last cell is not read
}

TEST(HostileCsv, OnlySeparatorsMakeEmptyCells) {
    for (const char separator : {'\t', ',', ';'}) {
        const std::string row(1000, separator);
        ox::ox_csv table;
        table.read_string(row);
        EXPECT_EQ(table.get_column_separator(), separator);
        ASSERT_EQ(table.get_nb_columns(), 1001);
        EXPECT_EQ(column_of(table, 0), cells(1));
        EXPECT_EQ(column_of(table, 1000), cells());
        EXPECT_EQ(table.write_string(), row + "\n");
    }
}

TEST(HostileCsv, AMillionEmptyRowsAreFilledUpInEveryColumn) {
    std::string text;
    for (int i = 0; i < 1000000; ++i) {
        text += ";\n";
    }
    ox::ox_csv table;
    table.read_string(text + "1;2\n");
    ASSERT_EQ(table.get_nb_columns(), 2);
    const cells last = column_of(table, 1);
    ASSERT_EQ(last.size(), 1000001u);
    EXPECT_EQ(last.back(), "2");
    EXPECT_EQ(table.write_string(), text + "1;2\n");
}

TEST(HostileCsv, AMillionColumnsInOneLine) {
    const std::string text = std::string(999999, ';') + "\n";
    ox::ox_csv table;
    table.read_string(text);
    EXPECT_EQ(table.get_nb_columns(), 1000000);
    EXPECT_EQ(table.write_string(), text);
}

TEST(HostileCsv, AMillionRowsBesideAMillionColumnsTakeNoMoreThanTheirText) {
    // Each candidate is in one line only, so all scores are negative and the tab is chosen.
    const std::string text =
        std::string(1000000, '\n') + ",,;;" + std::string(1000000, '\t') + "\n";
    ox::ox_csv table;
    table.read_string(text);
    ASSERT_EQ(table.get_nb_columns(), 1000001);
    EXPECT_EQ(column_of(table, 999999).size(), 1000001u);
}

TEST(HostileCsv, ATableWhoseTextCannotFitTheMemoryFailsAsAnAllocation) {
#if defined(__SANITIZE_ADDRESS__) || defined(__clang__)
    GTEST_SKIP() << "sanitizers end the process instead";
#endif
    ox::ox_csv table;
    table.read_string(std::string(2000000, '\t') + "\n"); // two million columns
    ox::ox_list<std::string> many(4000000);
    table.add_column(many, ox::ox_list<int>());
    EXPECT_THROW(table.write_string(), std::bad_alloc);
    EXPECT_GT(table.get_nb_columns(), 2000000);
}

TEST(HostileCsv, RandomBytesAreReadAndWritten) {
    support::generator random(8);
    for (int i = 0; i < 500; ++i) {
        std::string text;
        for (int n = random.between(0, 400); n > 0; --n) {
            text += static_cast<char>(random.between(0, 255));
        }
        ox::ox_csv table;
        EXPECT_TRUE(table.read_string(text));
        table.write_string();
        ox::ox_list<std::string> headers;
        ox::ox_list<float> values;
        for (int column = 0; column < table.get_nb_columns(); ++column) {
            EXPECT_TRUE(table.get_column(column, headers, values));
        }
    }
}

} // namespace
