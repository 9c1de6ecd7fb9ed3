#include "cells.h"

#include <gtest/gtest.h>
#include <ox/progress/ox_progress_manager.h>
#include <stdexcept>
#include <string>

#include <tests/support/log_capture.h>
#include <tests/support/recording_manager.h>

namespace {

ox::ox_csv four_rows() {
    ox::ox_csv table;
    table.add_column("n", list_of<int>({1, 2, 3, 4}));
    return table;
}

TEST(CsvWriting, AnEmptyTableIsAnEmptyText) {
    EXPECT_EQ(ox::ox_csv().write_string(), "");
}

TEST(CsvWriting, ColumnsOfDifferentHeightsAreFilledUpForGood) {
    ox::ox_csv table;
    table.add_column(list_of<std::string>({"a", "b"}), list_of<int>({1}));
    table.add_column("c", list_of<int>({2, 3}));
    EXPECT_EQ(table.write_string(), "a;c\nb;\n1;2\n;3\n");
    EXPECT_EQ(column_of(table, 0), (cells{"a", "b", "1", ""}));
    EXPECT_EQ(column_of(table, 1), (cells{"c", "", "2", "3"}));
}

TEST(CsvWriting, UsesTheColumnSeparator) {
    ox::ox_csv table;
    table.set_column_separator('|');
    table.add_column("a", list_of<int>({1}));
    table.add_column("b", list_of<int>({2}));
    EXPECT_EQ(table.write_string(), "a|b\n1|2\n");
}

TEST(CsvWriting, AnsiEncodingConvertsHeaderCellsOnly) {
    ox::ox_csv table;
    table.add_column("\xC3\xA9", list_of<std::string>({"\xC3\xA9"}));
    EXPECT_EQ(table.write_string(), "\xC3\xA9\n\xC3\xA9\n");
    table.set_encoding(ox::ox_csv::encoding_ansi);
    EXPECT_EQ(table.write_string(), "\xE9\n\xC3\xA9\n");
}

TEST(CsvWriting, AnsiEncodingRefusesHeadersThatAreNotUtf8) {
    ox::ox_csv table;
    table.add_column("\xE9", list_of<int>({1}));
    table.set_encoding(ox::ox_csv::encoding_ansi);
    EXPECT_THROW(table.write_string(), std::range_error);
    EXPECT_THROW(table.write_file(support::own_file(".csv")), std::range_error);
}

TEST(CsvWriting, EveryValueRowIsReportedWithinTheShare) {
    recording_manager manager;
    ox::ox_csv table = four_rows();
    table.set_progress_manager(&manager, 0.5, 1.0);
    table.write_string();
    EXPECT_EQ(manager.reports, (std::vector<double>{0.5, 0.625, 0.75, 0.875}));
}

TEST(CsvWriting, ReportsAreNotMappedIntoTheCurrentPhase) {
    recording_manager manager;
    manager.add_phase("first", "", 1.0);
    manager.add_phase("second", "", 1.0);
    manager.set_current_phase("second");
    manager.reports.clear();
    ox::ox_csv table = four_rows();
    table.set_progress_manager(&manager, 0.0, 1.0);
    table.write_string();
    EXPECT_EQ(manager.reports.front(), 0.0);
}

TEST(CsvWriting, StoppedAtAnyReportItGivesAnEmptyText) {
    for (int report = 0; report < 4; ++report) {
        recording_manager manager(report);
        ox::ox_csv table = four_rows();
        table.set_progress_manager(&manager, 0.0, 1.0);
        EXPECT_EQ(table.write_string(), "");
        EXPECT_EQ(static_cast<int>(manager.reports.size()), report + 1);
        table.set_progress_manager(nullptr, 0.0, 1.0);
        EXPECT_EQ(table.write_string(), "n\n1\n2\n3\n4\n");
    }
}

TEST(CsvWriting, ReadingDoesNotAskTheManager) {
    recording_manager manager(0);
    ox::ox_csv table;
    table.set_progress_manager(&manager, 0.0, 1.0);
    EXPECT_TRUE(table.read_string("a;b\n1;2\n"));
    EXPECT_EQ(column_of(table, 1), (cells{"b", "2"}));
}

TEST(CsvWriting, AFileHoldsTheTextAndTheSuccessIsLogged) {
    const support::log_capture log;
    const std::string path = support::own_file(".csv");
    EXPECT_TRUE(four_rows().write_file(path));
    EXPECT_EQ(support::text_of_file(path), "n\n1\n2\n3\n4\n");
    EXPECT_EQ(log.text(), "csv file writen with success\n");
}

TEST(CsvWriting, AStoppedFileIsEmptyAndStillLoggedAsSuccess) {
    const support::log_capture log;
    const std::string path = support::own_file(".csv");
    support::write_text(path, "before");
    recording_manager manager(1);
    ox::ox_csv table = four_rows();
    table.set_progress_manager(&manager, 0.0, 1.0);
    EXPECT_TRUE(table.write_file(path));
    EXPECT_EQ(support::text_of_file(path), "");
    EXPECT_EQ(log.text(), "csv file writen with success\n");
}

TEST(CsvWriting, APathThatCannotBeWrittenIsRefusedAndLeavesTheTableUnpadded) {
    const support::log_capture log;
    ox::ox_csv table = four_rows();
    table.add_column("m", list_of<int>({1}));
    EXPECT_FALSE(table.write_file("no-such-folder/table.csv"));
    EXPECT_FALSE(table.write_file("."));
    EXPECT_EQ(column_of(table, 1), (cells{"m", "1"}));
    EXPECT_EQ(log.text(), "");
}

TEST(CsvWriting, AFileEndsBeforeTheFirstNul) {
    const std::string path = support::own_file(".csv");
    ox::ox_csv table;
    table.add_column("a", list_of<std::string>({std::string("b\0c", 3)}));
    EXPECT_TRUE(table.write_file(path));
    EXPECT_EQ(support::text_of_file(path), "a\nb");
}

} // namespace
