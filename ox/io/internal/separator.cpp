#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>

#include <ox/internal/log_line.h>
#include <ox/io/internal/csv_detection.h>

namespace ox::internal {

namespace {

/// Of equally good candidates the last one wins.
constexpr std::array<char, 3> candidates = {'\t', ',', ';'};

/// How often each candidate, and a line break, occurs, side by side in one number: a character is
/// counted by adding its unit, whatever it is.
using packed_counts = std::uint64_t;
constexpr unsigned int bits_per_count = 16;
constexpr std::size_t largest_count = 0xFFFF;
constexpr packed_counts break_unit = packed_counts{1} << (bits_per_count * candidates.size());

constexpr std::array<packed_counts, 256> make_units() {
    std::array<packed_counts, 256> units{};
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        units[static_cast<unsigned char>(candidates[i])] = packed_counts{1} << (bits_per_count * i);
    }
    units['\n'] = break_unit;
    units['\r'] = break_unit;
    return units;
}

constexpr std::array<packed_counts, 256> units = make_units();

packed_counts unit_of(char c) {
    return units[static_cast<unsigned char>(c)];
}

/// The counts one by one; that of line breaks is the last.
using counts = std::array<std::size_t, candidates.size() + 1>;

void add(counts& sums, packed_counts packed) {
    for (std::size_t& sum : sums) {
        sum += packed & largest_count;
        packed >>= bits_per_count;
    }
}

/// Hands a text on in parts that are short enough to be counted in packed form.
template <typename Treat>
void for_each_part(std::string_view text, const Treat& treat) {
    for (; !text.empty(); text.remove_prefix(std::min(text.size(), largest_count))) {
        treat(text.substr(0, largest_count));
    }
}

counts count_occurrences(const std::string& text) {
    counts occurrences{};
    for_each_part(text, [&occurrences](std::string_view part) {
        packed_counts packed = 0;
        for (char c : part) {
            packed += unit_of(c);
        }
        add(occurrences, packed);
    });
    return occurrences;
}

/// How often something occurs for each line break. What never occurs has a mean of 0, also in a
/// text without line breaks.
double mean_per_line(std::size_t occurrence_count, std::size_t line_break_count) {
    if (occurrence_count == 0) {
        return 0.0;
    }
    if (line_break_count == 0) {
        return std::numeric_limits<double>::infinity();
    }
    return static_cast<double>(occurrence_count) / static_cast<double>(line_break_count);
}

/// How a candidate is spread over the lines of a text.
struct candidate_spread {
    double mean = 0.0;
    double sum = 0.0; ///< of the squared differences between the mean and the number in each line
};

/// Goes through the lines of a text. What follows the last line break is no line.
class line_walk {
public:
    explicit line_walk(const counts& occurrences) {
        for (std::size_t i = 0; i < candidates.size(); ++i) {
            spreads[i].mean = mean_per_line(occurrences[i], occurrences.back());
        }
    }

    void walk(const std::string& text) {
        for_each_part(text, [this](std::string_view part) {
            packed_counts packed = 0;
            for (char c : part) {
                const packed_counts unit = unit_of(c);
                if (unit == break_unit) {
                    add(in_line, packed);
                    end_line();
                    packed = 0;
                } else {
                    packed += unit;
                }
            }
            add(in_line, packed);
        });
    }

    const candidate_spread& of(std::size_t candidate) const { return spreads[candidate]; }

private:
    void end_line() {
        for (std::size_t i = 0; i < candidates.size(); ++i) {
            const double difference = spreads[i].mean - static_cast<double>(in_line[i]);
            spreads[i].sum += difference * difference;
        }
        in_line = {};
    }

    std::array<candidate_spread, candidates.size()> spreads;
    counts in_line{};
};

void log_score(char candidate, double mean, double deviation) {
    log_line("Score for %c : %lf %lf = %lf", candidate, mean, deviation, mean - deviation);
}

/// The number of the candidate with the best score.
std::size_t choose_candidate(const line_walk& lines, double divisor) {
    std::size_t chosen = 0;
    double best_score = 0.0;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        const double deviation = std::sqrt(lines.of(i).sum / divisor);
        const double score = lines.of(i).mean - deviation;
        log_score(candidates[i], lines.of(i).mean, deviation);
        if (best_score <= score) {
            best_score = score;
            chosen = i;
        }
    }
    return chosen;
}

} // namespace

separator_choice choose_separator(const std::string& text) {
    const counts occurrences = count_occurrences(text);
    line_walk lines(occurrences);
    lines.walk(text);
    // Every second line of a text with \r\n ends is empty. The plain sum would condemn every
    // candidate, however even, so there the mean square is taken.
    const bool has_pairs = text.find("\r\n") != std::string::npos;
    const double divisor = has_pairs ? static_cast<double>(occurrences.back()) : 1.0;
    const std::size_t chosen = choose_candidate(lines, divisor);
    return {candidates[chosen], occurrences[chosen] + occurrences.back(), occurrences.back()};
}

} // namespace ox::internal
