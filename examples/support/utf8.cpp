#include <examples/support/utf8.h>

#include <algorithm>

namespace ox_examples {

namespace {

/// How many bytes a character takes whose first byte is this one; 0 for one that begins none.
std::size_t announced_size(unsigned char first) {
    if (first < 0x80) {
        return 1;
    }
    if (first < 0xC2 || first > 0xF4) {
        return 0;
    }
    return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

/// Whether the first two bytes stand for a character that is written longer than needed, for half
/// of a UTF-16 pair, or for one beyond the last.
bool is_forbidden(unsigned char first, unsigned char second) {
    return (first == 0xE0 && second < 0xA0) || (first == 0xED && second >= 0xA0) ||
           (first == 0xF0 && second < 0x90) || (first == 0xF4 && second >= 0x90);
}

bool continues(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// How many bytes of the text, which is not empty, its first character takes.
std::size_t step(std::string_view text) {
    return std::max<std::size_t>(first_character_size(text), 1);
}

} // namespace

std::size_t first_character_size(std::string_view text) {
    if (text.empty()) {
        return 0;
    }
    const auto first = static_cast<unsigned char>(text[0]);
    const std::size_t size = announced_size(first);
    if (size < 2 || size > text.size()) {
        return size == 1 ? 1 : 0;
    }
    const std::string_view others = text.substr(1, size - 1);
    const bool whole = std::all_of(others.begin(), others.end(), continues);
    return whole && !is_forbidden(first, static_cast<unsigned char>(text[1])) ? size : 0;
}

std::size_t count_characters(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); text.remove_prefix(step(text))) {
        ++count;
    }
    return count;
}

std::string first_characters(std::string_view text, std::size_t count) {
    std::string_view rest = text;
    for (; count > 0 && !rest.empty(); --count) {
        rest.remove_prefix(step(rest));
    }
    return std::string(text.substr(0, text.size() - rest.size()));
}

std::string padded(const std::string& text, std::size_t width) {
    const std::size_t count = count_characters(text);
    return text + std::string(count < width ? width - count : 0, ' ');
}

} // namespace ox_examples
