#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include <ox/core/ox_log.h>
#include <ox/io/internal/csv_detection.h>

namespace ox::internal {

namespace {

/// Header lines are looked for at the top of a text only: in its first half, and not below this
/// line, counted from 0.
constexpr std::size_t last_possible_header_line = 10;

/// Everything but what numbers, the blanks around them and the table itself are made of.
class text_characters {
public:
    explicit text_characters(char separator) {
        is_text.fill(true);
        for (const char c : {' ', ',', '.', '-', 'e', 'E', '\n', '\r', separator}) {
            is_text[static_cast<unsigned char>(c)] = false;
        }
        for (char digit = '0'; digit <= '9'; ++digit) {
            is_text[static_cast<unsigned char>(digit)] = false;
        }
    }

    bool any_in(std::string_view text) const {
        return std::any_of(text.begin(), text.end(),
                           [this](char c) { return is_text[static_cast<unsigned char>(c)]; });
    }

private:
    std::array<bool, 256> is_text;
};

/// The last line with a text character in the column that the text ends in, which is the only one
/// that counts; none when there is no such line. The search ends at the first below `lowest`.
std::optional<std::size_t> last_text_line(const cell_text& text, const text_characters& characters,
                                          std::size_t line_break_count, std::size_t lowest) {
    const std::size_t column = text.get_last_column();
    std::optional<std::size_t> last;
    for (std::size_t line = 0; line < line_break_count; ++line) {
        if (column < text.get_cell_count(line) && characters.any_in(text.get_cell(line, column))) {
            last = line;
            if (line > lowest) {
                return last;
            }
        }
    }
    return characters.any_in(text.get_rest()) ? line_break_count : last;
}

} // namespace

std::size_t count_header_lines(const cell_text& text, std::size_t line_break_count) {
    const text_characters characters(text.get_separator());
    const std::size_t lowest = std::min(last_possible_header_line, line_break_count / 2);
    const std::optional<std::size_t> last =
        last_text_line(text, characters, line_break_count, lowest);
    std::size_t line_count = 0;
    if (last.has_value()) {
        line_count = *last <= lowest ? *last + 1 : 0;
    } else if (characters.any_in(text.get_text())) {
        line_count = 1; // text in other columns alone makes the first line a header
    }
    const std::string message = "Header lines : " + std::to_string(line_count);
    ox_log_thread_safe(message.c_str());
    return line_count;
}

} // namespace ox::internal
