#ifndef TESTS_REFERENCE_PLAIN_CSV_H
#define TESTS_REFERENCE_PLAIN_CSV_H

#include <cmath>
#include <cstddef>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

namespace reference {

/// What reading a delimited text gives.
struct plain_table {
    struct column {
        std::vector<std::string> headers;
        std::vector<std::string> values;
    };
    char separator = '\t';
    std::vector<column> columns;
    std::string log;
};

inline bool plain_is_break(char c) {
    return c == '\n' || c == '\r';
}

inline std::size_t plain_count(const std::string& text, char wanted) {
    std::size_t n = 0;
    for (char c : text) {
        n += c == wanted ? 1 : 0;
    }
    return n;
}

/// Chooses the separator, candidate by candidate.
inline void plain_choose_separator(const std::string& text, plain_table& table) {
    const std::size_t breaks = plain_count(text, '\n') + plain_count(text, '\r');
    double best = 0.0;
    for (char candidate : {'\t', ',', ';'}) {
        const std::size_t n = plain_count(text, candidate);
        double mean = 0.0;
        if (n > 0) {
            mean = breaks > 0 ? static_cast<double>(n) / static_cast<double>(breaks)
                              : std::numeric_limits<double>::infinity();
        }
        double sum = 0.0;
        std::size_t k = 0;
        for (char c : text) {
            if (plain_is_break(c)) {
                sum += (mean - static_cast<double>(k)) * (mean - static_cast<double>(k));
                k = 0;
            } else if (c == candidate) {
                ++k;
            }
        }
        if (text.find("\r\n") != std::string::npos) {
            sum = sum / static_cast<double>(breaks);
        }
        const double deviation = std::sqrt(sum);
        const double score = mean - deviation;
        char line[200];
        std::snprintf(line, sizeof line, "Score for %c : %lf %lf = %lf\n", candidate, mean,
                      deviation, score);
        table.log += line;
        if (!(best > score)) {
            best = score;
            table.separator = candidate;
        }
    }
}

inline bool plain_is_text(char c, char separator) {
    return c != separator && !plain_is_break(c) &&
           std::string(" 0123456789,.-eE").find(c) == std::string::npos;
}

/// The number of header lines; makes the empty columns.
inline std::size_t plain_count_headers(const std::string& text, plain_table& table) {
    std::vector<std::size_t> last_lines;
    std::size_t column = 0;
    std::size_t line = 0;
    std::size_t widest = 0;
    for (char c : text) {
        if (c == table.separator) {
            ++column;
            widest = column > widest ? column : widest;
        } else if (plain_is_break(c)) {
            column = 0;
            ++line;
        } else if (plain_is_text(c, table.separator)) {
            while (last_lines.size() <= column) {
                last_lines.push_back(0);
            }
            last_lines[column] = line;
        }
    }
    table.columns.resize(widest + 1);
    std::size_t headers = 0;
    for (std::size_t i = 0; i < last_lines.size(); ++i) {
        const std::size_t t = column < last_lines.size() ? last_lines[column] : 0;
        headers = t <= 10 && t <= line / 2 ? t + 1 : 0;
    }
    table.log += "Header lines : " + std::to_string(headers) + "\n";
    return headers;
}

/// Reads a delimited text character by character.
inline plain_table plain_read_csv(const std::string& text) {
    plain_table table;
    plain_choose_separator(text, table);
    const std::size_t headers = plain_count_headers(text, table);
    std::string cell;
    std::size_t column = 0;
    std::size_t line = 0;
    for (char c : text) {
        if (c != table.separator && !plain_is_break(c)) {
            cell += c;
            continue;
        }
        plain_table::column& target = table.columns[column];
        if (line < headers) {
            target.headers.push_back(cell);
        } else {
            while (target.values.size() < line - headers) {
                target.values.emplace_back();
            }
            target.values.push_back(cell);
        }
        cell.clear();
        column = plain_is_break(c) ? 0 : column + 1;
        line += plain_is_break(c) ? 1 : 0;
    }
    return table;
}

/// Fills the columns up to equal heights and writes them.
inline std::string plain_write_csv(plain_table table) {
    std::size_t headers = 0;
    std::size_t values = 0;
    for (const plain_table::column& column : table.columns) {
        headers = column.headers.size() > headers ? column.headers.size() : headers;
        values = column.values.size() > values ? column.values.size() : values;
    }
    std::string text;
    for (plain_table::column& column : table.columns) {
        column.headers.resize(headers);
        column.values.resize(values);
    }
    for (std::size_t row = 0; row < headers + values; ++row) {
        for (std::size_t i = 0; i < table.columns.size(); ++i) {
            text += i > 0 ? std::string(1, table.separator) : std::string();
            text += row < headers ? table.columns[i].headers[row]
                                  : table.columns[i].values[row - headers];
        }
        text += '\n';
    }
    return text;
}

} // namespace reference

#endif
