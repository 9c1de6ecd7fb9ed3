#include "cells.h"

#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <thread>

#if !defined(_WIN32)
#include <sys/stat.h>
#endif

#include <tests/support/log_capture.h>

namespace {

ox::ox_csv read(const std::string& text) {
    ox::ox_csv table;
    EXPECT_TRUE(table.read_string(text));
    return table;
}

TEST(CsvReading, FindsSemicolonsAndOneHeaderLine) {
    ox::ox_csv table = read("a;b\n1;2\n");
    EXPECT_EQ(table.get_column_separator(), ';');
    ASSERT_EQ(table.get_nb_columns(), 2);
    EXPECT_EQ(count_headers(table, 0), 1);
    EXPECT_EQ(column_of(table, 0), (cells{"a", "1"}));
    EXPECT_EQ(column_of(table, 1), (cells{"b", "2"}));
}

TEST(CsvReading, LogsTheScoresAndTheHeaderLines) {
    const support::log_capture log;
    read("a;b\n1;2\n");
    EXPECT_EQ(log.text(), "Score for \t : 0.000000 0.000000 = 0.000000\n"
                          "Score for , : 0.000000 0.000000 = 0.000000\n"
                          "Score for ; : 1.000000 0.000000 = 1.000000\n"
                          "Header lines : 1\n");
}

TEST(CsvReading, ALastCellWithoutALineBreakIsLost) {
    ox::ox_csv table = read("1,2\n3,4");
    EXPECT_EQ(table.get_column_separator(), ',');
    EXPECT_EQ(column_of(table, 0), (cells{"1", "3"}));
    EXPECT_EQ(column_of(table, 1), (cells{"2"}));
    EXPECT_EQ(count_headers(table, 0), 0);
}

TEST(CsvReading, WithoutAnyCandidateTheSemicolonIsChosen) {
    EXPECT_EQ(read("abc\ndef\n").get_column_separator(), ';');
    EXPECT_EQ(read("abc").get_column_separator(), ';');
}

TEST(CsvReading, PairsOfReturnAndNewlineMakeAnEmptyRowAfterEveryRow) {
    ox::ox_csv table = read("x;y\r\n1;2\r\n");
    EXPECT_EQ(table.get_column_separator(), ';');
    EXPECT_EQ(count_headers(table, 0), 1);
    EXPECT_EQ(column_of(table, 0), (cells{"x", "", "1", ""}));
    EXPECT_EQ(column_of(table, 1), (cells{"y", "", "2"}));
}

TEST(CsvReading, WhenEveryScoreIsNegativeTheSeparatorIsTheTab) {
    EXPECT_EQ(read("a\t\t\tb,,,c;;;\n\n\n\n").get_column_separator(), '\t');
}

TEST(CsvReading, ALaterCandidateWinsATie) {
    EXPECT_EQ(read("a,b;c\n1,2;3\n").get_column_separator(), ';');
}

TEST(CsvReading, ASingleLineWithoutABreakFindsItsSeparator) {
    ox::ox_csv table = read("a,b,");
    EXPECT_EQ(table.get_column_separator(), ',');
    EXPECT_EQ(column_of(table, 0), (cells{"a"}));
    EXPECT_EQ(column_of(table, 1), (cells{"b"}));
    EXPECT_EQ(table.get_nb_columns(), 3);
}

TEST(CsvReading, AnEmptyTextGivesOneColumnWithoutCells) {
    ox::ox_csv table = read("");
    EXPECT_EQ(table.get_nb_columns(), 1);
    EXPECT_TRUE(column_of(table, 0).empty());
    EXPECT_EQ(table.write_string(), "");
}

TEST(CsvReading, OnlyTheColumnTheTextEndsInTellsTheHeader) {
    // Column 0 has text in line 2 of 4, column 1 in line 0 only. The text ends in column 1.
    ox::ox_csv table = read("a;b\n1;2\nc;3\n4;5\n6;");
    EXPECT_EQ(count_headers(table, 0), 1);
    // It ends in column 0: line 2 is the last header line.
    table = read("a;b\n1;2\nc;3\n4;5\n");
    EXPECT_EQ(count_headers(table, 0), 3);
}

TEST(CsvReading, AnEndColumnWithoutAnyTextCountsAsTextInTheFirstLine) {
    ox::ox_csv table = read("a;1;2\n3;4;5\n6;7;8");
    EXPECT_EQ(count_headers(table, 0), 1);
}

TEST(CsvReading, TextBelowTheFirstHalfOrLine10MeansNoHeader) {
    EXPECT_EQ(
        [] {
            auto t = read("1\n2\na\n");
            return count_headers(t, 0);
        }(),
        0);
    std::string top;
    for (int line = 0; line < 11; ++line) {
        top += "a\n";
    }
    const std::string numbers(60, '\n');
    ox::ox_csv eleven = read(top + numbers);
    EXPECT_EQ(count_headers(eleven, 0), 11);
    ox::ox_csv twelve = read("a\n" + top + numbers);
    EXPECT_EQ(count_headers(twelve, 0), 0);
}

TEST(CsvReading, NumbersWithBlanksSignsAndExponentsAreNoText) {
    ox::ox_csv table = read("-1.5e3; 2,5\n1E-2;- 3\n");
    EXPECT_EQ(count_headers(table, 0), 0);
}

TEST(CsvReading, ATabThatIsNotTheSeparatorIsText) {
    ox::ox_csv table = read("1\t;2\n3;4\n");
    EXPECT_EQ(table.get_column_separator(), ';');
    EXPECT_EQ(count_headers(table, 0), 1);
}

TEST(CsvReading, QuotationMarksHaveNoMeaning) {
    ox::ox_csv table = read("\"a;b\"\n1;2\n");
    EXPECT_EQ(column_of(table, 0), (cells{"\"a", "1"}));
    EXPECT_EQ(column_of(table, 1), (cells{"b\"", "2"}));
}

TEST(CsvReading, ShortRowsArePaddedOnlyWhereALaterRowReaches) {
    ox::ox_csv table = read("1;2;3\n4;5\n6;7;8\n9;1\n");
    EXPECT_EQ(column_of(table, 1), (cells{"2", "5", "7", "1"}));
    EXPECT_EQ(column_of(table, 2), (cells{"3", "", "8"}));
}

TEST(CsvReading, NulCharactersAreKept) {
    const std::string text("a\0b;c\n1;2\n", 10);
    ox::ox_csv table = read(text);
    EXPECT_EQ(column_of(table, 0)[0], std::string("a\0b", 3));
    EXPECT_EQ(table.write_string(), text);
}

TEST(CsvReading, ReplacesTheColumnsThatWereThere) {
    ox::ox_csv table = read("a;b;c\n1;2;3\n");
    table.read_string("d,e\n4,5\n");
    EXPECT_EQ(table.get_nb_columns(), 2);
    EXPECT_EQ(table.get_column_separator(), ',');
}

TEST(CsvReading, AFileIsReadWhole) {
    const std::string path = support::own_file(".csv");
    std::string text = "a;b\n";
    for (int i = 0; i < 30000; ++i) {
        text += std::to_string(i) + ";2\n";
    }
    support::write_text(path, text);
    ox::ox_csv table;
    EXPECT_TRUE(table.read_file(path));
    EXPECT_EQ(column_of(table, 0).size(), 30001u);
    EXPECT_EQ(table.write_string(), text);
}

TEST(CsvReading, AFileOf2To31BytesIsRefusedUnread) {
    const std::string path = support::own_file(".csv");
    support::write_text(path, "a;b\n");
    std::filesystem::resize_file(path, std::uintmax_t{1} << 31);
    ox::ox_csv table = read("c;d\n");
    EXPECT_FALSE(table.read_file(path));
    EXPECT_EQ(table.get_nb_columns(), 2);
    std::filesystem::remove(path);
}

TEST(CsvReading, APathWithANulInItIsNotOpened) {
    const std::string path = support::own_file(".csv");
    support::write_text(path, "a;b\n");
    ox::ox_csv table = read("c;d;e\n");
    EXPECT_FALSE(table.read_file(path + '\0' + "tail"));
    EXPECT_FALSE(table.write_file(path + '\0' + "tail"));
    EXPECT_EQ(table.get_nb_columns(), 3);
    EXPECT_EQ(support::text_of_file(path), "a;b\n");
}

#if !defined(_WIN32)
TEST(CsvReading, APipeIsReadUntilItsWriterClosesIt) {
    const std::string path = support::own_file(".pipe");
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    std::thread writer([&] { support::write_text(path, "a;b\n1;2\n"); });
    ox::ox_csv table;
    EXPECT_TRUE(table.read_file(path));
    writer.join();
    EXPECT_EQ(column_of(table, 1), (cells{"b", "2"}));
}

TEST(CsvReading, ADeviceWithoutEndIsRefused) {
    if (!std::filesystem::exists("/dev/zero")) {
        GTEST_SKIP() << "this system has no endless device";
    }
    ox::ox_csv table = read("c;d;e\n");
    EXPECT_FALSE(table.read_file("/dev/zero"));
    EXPECT_EQ(table.get_nb_columns(), 3);
}
#endif

TEST(CsvReading, AFileThatCannotBeOpenedLeavesTheTableAsItIs) {
    ox::ox_csv table = read("a;b\n1;2\n");
    EXPECT_FALSE(table.read_file("no-such-folder/table.csv"));
    EXPECT_FALSE(table.read_file("."));
    EXPECT_FALSE(table.read_file(""));
    EXPECT_EQ(table.get_nb_columns(), 2);
}

TEST(CsvReading, AnEmptyFileGivesATableWithoutCells) {
    const std::string path = support::own_file(".csv");
    support::write_text(path, "");
    ox::ox_csv table = read("a;b\n1;2\n");
    EXPECT_TRUE(table.read_file(path));
    EXPECT_EQ(table.write_string(), "");
}

} // namespace
