#include <examples/support/line_reader.h>

#include <examples/support/description_file.h>
#include <examples/support/utf8.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

namespace ox_examples {

namespace {

/// Metres. Up to here single precision still tells tenths of a millimetre apart.
constexpr double largest_number = 1000;

/// Metres. A part thinner than a centimetre is a slip of the pen, and comes close to the
/// millimetre within which solids take two points for one.
constexpr double smallest_size = 0.01;

/// More storeys than any building has; also keeps a slip of the pen from filling the memory.
constexpr std::size_t largest_index = 199;

constexpr std::size_t longest_quote = 40; // characters

bool is_ascii_name_character(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-';
}

/// Whether such a byte begins a character that can be printed. Those from 0x80 to 0x9F (C2 80 to
/// C2 9F) steer terminals.
bool is_printable(std::string_view character) {
    if (character.size() == 1) {
        return character[0] >= ' ' && character[0] <= '~';
    }
    return !(character[0] == '\xC2' && static_cast<unsigned char>(character[1]) < 0xA0);
}

/// Whether a name may have this character: a letter of any alphabet is welcome.
bool is_name_character(std::string_view character) {
    return character.size() > 1 ? is_printable(character) : is_ascii_name_character(character[0]);
}

bool is_name(std::string_view text) {
    while (!text.empty()) {
        const std::size_t size = first_character_size(text);
        if (size == 0 || !is_name_character(text.substr(0, size))) {
            return false;
        }
        text.remove_prefix(size);
    }
    return true;
}

/// Reads the whole of `text` as a number, independently of the locale.
template <typename T>
bool parse(const std::string& text, T& value) {
    const char* end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc() && result.ptr == end;
}

} // namespace

line_reader::line_reader(const std::string& file_name, int line_number, const std::string& text)
    : file(file_name), line(line_number), words(text.substr(0, text.find('#'))) {}

bool line_reader::at_end() {
    return (words >> std::ws).eof();
}

std::string line_reader::word(const std::string& what) {
    std::string result;
    if (!(words >> result)) {
        fail("missing " + what);
    }
    return result;
}

std::string line_reader::name(const std::string& what) {
    const std::string result = word(what);
    if (!is_name(result)) {
        fail(quoted(result) + " is no " + what + ": letters, digits, '_' and '-' only");
    }
    return result;
}

void line_reader::label(const std::string& expected) {
    const std::string found = word(quoted(expected));
    if (found != expected) {
        fail("expected " + quoted(expected) + " instead of " + quoted(found));
    }
}

double line_reader::number(const std::string& what) {
    const std::string text = word("number: " + what);
    double value = 0;
    if (!parse(text, value) || !std::isfinite(value)) {
        fail(quoted(text) + " is no number: " + what);
    }
    if (std::abs(value) > largest_number) {
        fail(quoted(text) + " is too large: " + what);
    }
    return value;
}

double line_reader::labelled_number(const std::string& what) {
    label(what);
    return number(what);
}

double line_reader::labelled_size(const std::string& what) {
    const double size = labelled_number(what);
    if (size < smallest_size) {
        fail("the " + what + " is less than a centimetre");
    }
    return size;
}

std::size_t line_reader::index(const std::string& what) {
    const std::string text = word(what);
    std::size_t value = 0;
    if (!parse(text, value) || value > largest_index) {
        fail(quoted(text) + " is no " + what);
    }
    return value;
}

plan_point line_reader::labelled_point(const std::string& what) {
    label(what);
    const double x = number("x of " + quoted(what));
    const double y = number("y of " + quoted(what));
    return {x, y};
}

plan_contour line_reader::contour() {
    plan_contour result;
    while (!at_end()) {
        const double x = number("x of a corner");
        const double y = number("y of a corner");
        result.push_back({x, y});
    }
    if (result.size() < 3) {
        fail("an outline has at least three corners");
    }
    return result;
}

void line_reader::expect_end() {
    if (!at_end()) {
        fail("unexpected " + quoted(word("word")));
    }
}

void line_reader::fail(const std::string& reason) const {
    throw description_error(file, line, reason);
}

std::string quoted(const std::string& text) {
    const std::string shown = first_characters(text, longest_quote);
    std::string result;
    for (std::string_view rest = shown; !rest.empty();) {
        const std::size_t size = first_character_size(rest);
        const std::string_view character = rest.substr(0, std::max<std::size_t>(size, 1));
        result += size > 0 && is_printable(character) ? character : "?";
        rest.remove_prefix(character.size());
    }
    return "'" + result + (text.size() > shown.size() ? "..." : "") + "'";
}

} // namespace ox_examples
