#include "cells.h"

#include <gtest/gtest.h>
#include <string>

#include <tests/reference/plain_csv.h>
#include <tests/support/generator.h>
#include <tests/support/log_capture.h>

namespace {

/// A text of separators, digits, letters and line breaks.
std::string random_text(support::generator& random) {
    static const std::string alphabet = "\t,;\r\n\n01.-eab \";,\n";
    std::string text;
    for (int n = random.between(0, 40); n > 0; --n) {
        text += alphabet[static_cast<std::size_t>(
            random.between(0, static_cast<int>(alphabet.size()) - 1))];
        if (random.one_in(12)) {
            text += "\r\n";
        }
    }
    return text;
}

/// Rows of equal length, as files have them, with a flaw now and then.
std::string random_rows(support::generator& random) {
    const char separator = "\t,;"[random.between(0, 2)];
    const std::string line_end = random.one_in(2) ? "\r\n" : "\n";
    const int nb_columns = random.between(1, 4);
    const int nb_headers = random.between(0, 13);
    const int nb_rows = random.between(0, 30);
    std::string text;
    for (int row = 0; row < nb_rows; ++row) {
        for (int column = 0; column < nb_columns; ++column) {
            text += column > 0 ? std::string(1, separator) : std::string();
            text += row < nb_headers ? "name" : std::to_string(random.between(-99, 99)) + ".5";
        }
        text += random.one_in(40) ? std::string("x") : std::string();
        text += line_end;
    }
    return text;
}

void expect_equal(ox::ox_csv& table, const reference::plain_table& plain) {
    ASSERT_EQ(table.get_column_separator(), plain.separator);
    ASSERT_EQ(table.get_nb_columns(), static_cast<int>(plain.columns.size()));
    for (int i = 0; i < table.get_nb_columns(); ++i) {
        const reference::plain_table::column& column = plain.columns[static_cast<std::size_t>(i)];
        cells expected = column.headers;
        expected.insert(expected.end(), column.values.begin(), column.values.end());
        ASSERT_EQ(column_of(table, i), expected);
        ASSERT_EQ(count_headers(table, i), static_cast<int>(column.headers.size()));
    }
    ASSERT_EQ(table.write_string(), reference::plain_write_csv(plain));
}

void compare(const std::string& text) {
    SCOPED_TRACE(::testing::PrintToString(text));
    ox::ox_csv table;
    table.read_string(text);
    expect_equal(table, reference::plain_read_csv(text));
}

TEST(CsvDifferential, SmallRandomTextsReadAndWriteAsThePlainVersionDoes) {
    ox_log_set(false);
    support::generator random(83);
    for (int i = 0; i < 30000 && !HasFatalFailure(); ++i) {
        compare(random_text(random));
    }
    ox_log_set(true);
}

TEST(CsvDifferential, TablesOfRowsReadAndWriteAsThePlainVersionDoes) {
    ox_log_set(false);
    support::generator random(8383);
    for (int i = 0; i < 5000 && !HasFatalFailure(); ++i) {
        compare(random_rows(random));
    }
    ox_log_set(true);
}

TEST(CsvDifferential, LongLinesAndLongTextsReadAsThePlainVersionDoes) {
    const support::log_capture log;
    support::generator random(88);
    std::string expected;
    for (const int length : {65534, 65535, 65536, 131070, 200000}) {
        std::string text = "a,b;c\n" + std::string(static_cast<std::size_t>(length), ';');
        while (text.size() < 300000) {
            text += random_rows(random);
        }
        ox::ox_csv table;
        table.read_string(text);
        const reference::plain_table plain = reference::plain_read_csv(text);
        expected += plain.log;
        EXPECT_EQ(table.get_column_separator(), plain.separator);
        EXPECT_EQ(table.get_nb_columns(), static_cast<int>(plain.columns.size()));
        EXPECT_EQ(column_of(table, 0).size(),
                  plain.columns[0].headers.size() + plain.columns[0].values.size());
    }
    EXPECT_EQ(log.text(), expected);
}

/// Adds the same column of a few texts to both.
void add_column(support::generator& random, ox::ox_csv& table, reference::plain_table& plain) {
    reference::plain_table::column column;
    ox::ox_list<std::string> headers;
    ox::ox_list<std::string> values;
    for (int n = random.between(0, 3); n > 0; --n) {
        column.headers.push_back(std::string(static_cast<std::size_t>(n), 'h'));
        headers.push_right(column.headers.back());
    }
    for (int n = random.between(0, 6); n > 0; --n) {
        column.values.push_back(std::string(static_cast<std::size_t>(random.between(0, 2)), 'v'));
        values.push_right(column.values.back());
    }
    table.add_column(headers, values);
    plain.columns.push_back(column);
}

TEST(CsvDifferential, TablesThatWereReadTakeColumnsAndAnotherSeparatorAsThePlainVersionDoes) {
    ox_log_set(false);
    support::generator random(838);
    for (int i = 0; i < 5000 && !HasFatalFailure(); ++i) {
        const std::string text = random.one_in(2) ? random_rows(random) : random_text(random);
        SCOPED_TRACE(::testing::PrintToString(text));
        ox::ox_csv read;
        read.read_string(text);
        reference::plain_table plain = reference::plain_read_csv(text);
        ox::ox_csv table = read;
        read.read_string("another;text\n"); // the copy keeps its cells
        for (int n = random.between(0, 3); n > 0; --n) {
            add_column(random, table, plain);
        }
        plain.separator = random.one_in(3) ? '|' : plain.separator;
        table.set_column_separator(plain.separator);
        expect_equal(table, plain);
    }
    ox_log_set(true);
}

TEST(CsvDifferential, LogLinesAreThoseOfThePlainVersion) {
    const support::log_capture log;
    support::generator random(838383);
    std::string expected;
    for (int i = 0; i < 200; ++i) {
        const std::string text = random_text(random);
        ox::ox_csv().read_string(text);
        expected += reference::plain_read_csv(text).log;
    }
    EXPECT_EQ(log.text(), expected);
}

} // namespace
