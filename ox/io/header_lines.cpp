#include <algorithm>
#include <array>
#include <optional>
#include <ox/core/ox_log.h>
#include <ox/io/internal/csv_detection.h>
#include <string_view>

namespace ox {

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
                                          std::size_t nb_line_breaks, std::size_t lowest) {
    const std::size_t column = text.get_last_column();
    std::optional<std::size_t> last;
    for (std::size_t line = 0; line < nb_line_breaks; ++line) {
        if (column < text.get_nb_cells(line) && characters.any_in(text.get_cell(line, column))) {
            last = line;
            if (line > lowest) {
                return last;
            }
        }
    }
    return characters.any_in(text.get_rest()) ? nb_line_breaks : last;
}

} // namespace

std::size_t count_header_lines(const cell_text& text, std::size_t nb_line_breaks) {
    const text_characters characters(text.get_separator());
    const std::size_t lowest = std::min(last_possible_header_line, nb_line_breaks / 2);
    const std::optional<std::size_t> last =
        last_text_line(text, characters, nb_line_breaks, lowest);
    std::size_t nb_lines = 0;
    if (last.has_value()) {
        nb_lines = *last <= lowest ? *last + 1 : 0;
    } else if (characters.any_in(text.get_text())) {
        nb_lines = 1; // text in other columns alone makes the first line a header
    }
    const std::string message = "Header lines : " + std::to_string(nb_lines);
    ox_log_thread_safe(message.c_str());
    return nb_lines;
}

} // namespace ox
