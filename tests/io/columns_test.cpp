#include "cells.h"

#include <cfloat>
#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include <tests/support/comma_locale.h>

namespace {

/// The one value cell of a column with one float.
std::string cell_of(float value, int precision, char separator = ',') {
    ox::ox_csv table;
    table.set_float_separator(separator);
    table.add_column("f", list_of<float>({value}), precision);
    return column_of(table, 0)[1];
}

ox::ox_list<float> floats_of(ox::ox_csv& table, int index) {
    ox::ox_list<std::string> headers;
    ox::ox_list<float> values;
    EXPECT_TRUE(table.get_column(index, headers, values));
    return values;
}

TEST(CsvColumns, StartsEmptyWithItsDefaults) {
    ox::ox_csv table;
    EXPECT_EQ(table.get_nb_columns(), 0);
    EXPECT_EQ(table.get_column_separator(), ';');
    EXPECT_EQ(table.get_float_separator(), ',');
    EXPECT_EQ(table.get_encoding(), ox::ox_csv::encoding_as_held);
    EXPECT_EQ(static_cast<int>(ox::ox_csv::encoding_ansi), 1);
    EXPECT_EQ(sizeof(ox::ox_csv::encoding), 4u);
}

TEST(CsvColumns, AFloatWithACommaReadsBackAsItsWholePart) {
    EXPECT_EQ(cell_of(3.5f, 2), "3,50");
    ox::ox_csv table;
    table.add_column("f", list_of<float>({3.5f}), 2);
    EXPECT_EQ(floats_of(table, 0)[0], 3.0f);
    table.set_float_separator('.');
    table.add_column("f", list_of<float>({3.5f}), 2);
    EXPECT_EQ(floats_of(table, 1)[0], 3.5f);
}

TEST(CsvColumns, BoolsAreOneAndZero) {
    ox::ox_csv table;
    table.add_column("b", list_of<bool>({true, false}));
    table.add_column(list_of<std::string>({"b", "c"}), list_of<bool>({true}));
    EXPECT_EQ(column_of(table, 0), (cells{"b", "1", "0"}));
    EXPECT_EQ(column_of(table, 1), (cells{"b", "c", "1"}));
}

TEST(CsvColumns, WholeNumbersAreDecimalWithTheirSign) {
    ox::ox_csv table;
    table.add_column("i", list_of<int>({0, -7, INT_MAX, INT_MIN}));
    EXPECT_EQ(column_of(table, 0), (cells{"i", "0", "-7", "2147483647", "-2147483648"}));
}

TEST(CsvColumns, TextsAreKeptAsGiven) {
    ox::ox_csv table;
    table.add_column(list_of<std::string>({"h1", ""}), list_of<std::string>({"", "a;b", ""}));
    EXPECT_EQ(column_of(table, 0), (cells{"h1", "", "", "a;b", ""}));
    EXPECT_EQ(count_headers(table, 0), 2);
}

TEST(CsvColumns, ListsWithANegativeCountHaveNoCells) {
    ox::ox_csv table;
    table.add_column(ox::ox_list<std::string>(-2), ox::ox_list<int>(-5));
    EXPECT_EQ(table.get_nb_columns(), 1);
    EXPECT_TRUE(column_of(table, 0).empty());
}

TEST(CsvColumns, AnIndexOutOfRangeIsRefusedAndTheListsStayAsTheyAre) {
    ox::ox_csv table;
    table.add_column("a", list_of<int>({1}));
    for (int index : {-1, 1, INT_MIN, INT_MAX}) {
        ox::ox_list<std::string> texts = list_of<std::string>({"kept"});
        ox::ox_list<float> values = list_of<float>({7.0f});
        EXPECT_FALSE(table.get_column(index, texts));
        EXPECT_FALSE(table.get_column(index, texts, values));
        EXPECT_EQ(texts.size(), 1);
        EXPECT_EQ(values.size(), 1);
    }
}

TEST(CsvColumns, TextInANumericColumnReadsAsZero) {
    ox::ox_csv table;
    table.add_column("a", list_of<std::string>({"wall", "2.5m", "", " 7", "1e999", "-1e-3"}));
    const ox::ox_list<float> values = floats_of(table, 0);
    EXPECT_EQ(values[0], 0.0f);
    EXPECT_EQ(values[1], 2.5f);
    EXPECT_EQ(values[2], 0.0f);
    EXPECT_EQ(values[3], 7.0f);
    EXPECT_TRUE(std::isinf(values[4]));
    EXPECT_EQ(values[5], -0.001f);
}

TEST(CsvColumns, ANegativePrecisionMeansSixDecimals) {
    EXPECT_EQ(cell_of(1.5f, -1), "1,500000");
    EXPECT_EQ(cell_of(1.5f, INT_MIN), "1,500000");
    EXPECT_EQ(cell_of(1.5f, 0), "2");
}

TEST(CsvColumns, AHugePrecisionIsBounded) {
    EXPECT_EQ(cell_of(-FLT_MAX, INT_MAX).size(), 1u + 39u + 1u + 1000u);
    EXPECT_EQ(cell_of(FLT_MIN, 200).size(), 202u);
}

TEST(CsvColumns, NumbersThatAreNotFiniteAreWrittenAsTheCLibraryDoes) {
    EXPECT_EQ(cell_of(std::numeric_limits<float>::infinity(), 2), "inf");
    EXPECT_EQ(cell_of(-std::numeric_limits<float>::infinity(), 2), "-inf");
    EXPECT_NE(cell_of(std::numeric_limits<float>::quiet_NaN(), 2).find("nan"), std::string::npos);
}

TEST(CsvColumns, TheLocaleOfTheProcessDoesNotChangeNumbers) {
    const support::comma_locale locale;
    if (!locale.is_chosen()) {
        GTEST_SKIP() << "this machine has no locale with a decimal comma";
    }
    const std::string cell = cell_of(3.5f, 1, '.');
    ox::ox_csv table;
    table.add_column("f", list_of<std::string>({"3.5"}));
    const float value = floats_of(table, 0)[0];
    EXPECT_EQ(cell, "3.5");
    EXPECT_EQ(value, 3.5f);
}

TEST(CsvColumns, MovedFromTableIsANewOne) {
    ox::ox_csv table;
    table.add_column("a", list_of<int>({1}));
    table.set_column_separator('|');
    ox::ox_csv taken(std::move(table));
    EXPECT_EQ(taken.write_string(), "a\n1\n");
    ox::ox_csv other;
    swap(taken, other);
    EXPECT_EQ(taken.get_nb_columns(), 0);
    EXPECT_EQ(taken.get_column_separator(), ';');
    taken = std::move(other);
    EXPECT_EQ(taken.get_nb_columns(), 1);
}

TEST(CsvColumns, CopiesAreDeep) {
    ox::ox_csv table;
    table.add_column("a", list_of<int>({1}));
    ox::ox_csv copy(table);
    ox::ox_csv assigned;
    assigned = table;
    assigned = *&assigned;
    table.clear();
    table.set_column_separator('|');
    EXPECT_EQ(table.get_nb_columns(), 0);
    EXPECT_EQ(copy.write_string(), "a\n1\n");
    EXPECT_EQ(assigned.write_string(), "a\n1\n");
    EXPECT_EQ(copy.get_column_separator(), ';');
}

TEST(CsvColumns, ClearKeepsTheSettings) {
    ox::ox_csv table;
    table.set_float_separator('.');
    table.set_encoding(ox::ox_csv::encoding_ansi);
    table.add_column("a", list_of<int>({1}));
    table.clear();
    EXPECT_EQ(table.get_float_separator(), '.');
    EXPECT_EQ(table.get_encoding(), ox::ox_csv::encoding_ansi);
}

} // namespace
