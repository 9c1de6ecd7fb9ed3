#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <ox/core/ox_log.h>
#include <ox/io/internal/csv_layout.h>

namespace ox {

namespace {

/// Of equally good candidates the last one wins.
constexpr std::array<char, 3> candidates = {'\t', ',', ';'};

/// Header lines are looked for at the top of a text only: in its first half, and not below this
/// line, counted from 0.
constexpr std::size_t last_possible_header_line = 10;

bool is_line_break(char c) {
    return c == '\n' || c == '\r';
}

/// How often each byte occurs in a text.
class histogram {
public:
    explicit histogram(const std::string& text) {
        for (char c : text) {
            ++counts[static_cast<unsigned char>(c)];
        }
    }

    std::size_t of(char c) const { return counts[static_cast<unsigned char>(c)]; }

    std::size_t line_breaks() const { return of('\n') + of('\r'); }

    /// How often `c` occurs for each line break. What never occurs has a mean of 0, also in a text
    /// without line breaks.
    double mean_per_line(char c) const {
        if (of(c) == 0) {
            return 0.0;
        }
        if (line_breaks() == 0) {
            return std::numeric_limits<double>::infinity();
        }
        return static_cast<double>(of(c)) / static_cast<double>(line_breaks());
    }

private:
    std::array<std::size_t, 256> counts{};
};

/// One value for each candidate.
using scores = std::array<double, candidates.size()>;

scores means_per_line(const histogram& occurrences) {
    scores means{};
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        means[i] = occurrences.mean_per_line(candidates[i]);
    }
    return means;
}

/// The sums of the squared differences between the mean and the number of candidates in each line.
/// What follows the last line break is no line.
scores sums_of_squared_differences(const std::string& text, const scores& means) {
    scores sums{};
    std::array<std::size_t, candidates.size()> in_line{};
    for (char c : text) {
        if (is_line_break(c)) {
            for (std::size_t i = 0; i < candidates.size(); ++i) {
                const double difference = means[i] - static_cast<double>(in_line[i]);
                sums[i] += difference * difference;
            }
            in_line = {};
        } else {
            for (std::size_t i = 0; i < candidates.size(); ++i) {
                in_line[i] += c == candidates[i] ? 1 : 0;
            }
        }
    }
    return sums;
}

void log_score(char candidate, double mean, double deviation) {
    char line[256];
    std::snprintf(line, sizeof line, "Score for %c : %lf %lf = %lf", candidate, mean, deviation,
                  mean - deviation);
    ox_log_thread_safe(line);
}

/// Everything but what numbers, and the blanks around them, are made of.
bool is_text_character(char c) {
    const bool digit = c >= '0' && c <= '9';
    return !digit && c != ' ' && c != ',' && c != '.' && c != '-' && c != 'e' && c != 'E';
}

/// Notes, column by column, in which line a text character was seen last.
class text_lines {
public:
    void note(std::size_t column, std::size_t line) {
        if (column >= last_lines.size()) {
            last_lines.resize(column + 1, 0);
        }
        last_lines[column] = line;
    }

    bool none() const { return last_lines.empty(); }

    /// 0 for a column without text, as for one whose only text is in line 0.
    std::size_t last_of(std::size_t column) const {
        return column < last_lines.size() ? last_lines[column] : 0;
    }

private:
    std::vector<std::size_t> last_lines;
};

/// Only the column that the scan ended in is asked where its text ends.
std::size_t count_header_lines(const text_lines& texts, std::size_t end_column,
                               std::size_t nb_breaks) {
    if (texts.none()) {
        return 0;
    }
    const std::size_t last_text_line = texts.last_of(end_column);
    const bool at_the_top =
        last_text_line <= last_possible_header_line && last_text_line <= nb_breaks / 2;
    return at_the_top ? last_text_line + 1 : 0;
}

} // namespace

char detect_separator(const std::string& text) {
    const histogram occurrences(text);
    const scores means = means_per_line(occurrences);
    const scores sums = sums_of_squared_differences(text, means);
    // Every second line of a text with \r\n ends is empty. The plain sum would condemn every
    // candidate, however even, so there the mean square is taken.
    const bool has_pairs = text.find("\r\n") != std::string::npos;
    const double divisor = has_pairs ? static_cast<double>(occurrences.line_breaks()) : 1.0;
    char separator = candidates[0];
    double best_score = 0.0;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        const double deviation = std::sqrt(sums[i] / divisor);
        const double score = means[i] - deviation;
        log_score(candidates[i], means[i], deviation);
        if (best_score <= score) {
            best_score = score;
            separator = candidates[i];
        }
    }
    return separator;
}

csv_layout measure_layout(const std::string& text, char separator) {
    csv_layout layout;
    layout.nb_cells.push_back(0);
    text_lines texts;
    std::size_t column = 0;
    std::size_t line = 0;
    for (char c : text) {
        if (c == separator) {
            ++layout.nb_cells[column++];
            if (column == layout.nb_cells.size()) {
                layout.nb_cells.push_back(0);
            }
        } else if (is_line_break(c)) {
            ++layout.nb_cells[column];
            column = 0;
            ++line;
        } else if (is_text_character(c)) {
            texts.note(column, line);
        }
    }
    layout.nb_header_lines = count_header_lines(texts, column, line);
    const std::string message = "Header lines : " + std::to_string(layout.nb_header_lines);
    ox_log_thread_safe(message.c_str());
    return layout;
}

} // namespace ox
