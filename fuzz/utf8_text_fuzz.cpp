// Reads the bytes as UTF-8, as the system's ANSI text and as a hexadecimal code.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>

#include <fuzz/require.h>
#include <ox/ox_functions.h>

namespace {

unsigned int byte_at(const std::string& text, std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0;
}

/// The length of the UTF-8 sequence at `start`, 0 where there is none.
std::size_t sequence_length(const std::string& text, std::size_t start) {
    const unsigned int first = byte_at(text, start);
    const std::size_t length =
        first < 0x80 ? 1 : (first < 0xC2 ? 0 : (first < 0xE0 ? 2 : (first < 0xF0 ? 3 : 4)));
    for (std::size_t i = 1; i < length; ++i) {
        if (byte_at(text, start + i) >> 6 != 2) {
            return 0;
        }
    }
    const unsigned int second = byte_at(text, start + 1);
    const bool is_refused = first > 0xF4 || (first == 0xE0 && second < 0xA0) ||
                            (first == 0xED && second > 0x9F) || (first == 0xF0 && second < 0x90) ||
                            (first == 0xF4 && second > 0x8F);
    return is_refused ? 0 : length;
}

/// The number of code points, -1 of a text that is not UTF-8.
int count_code_points(const std::string& text) {
    int count = 0;
    for (std::size_t i = 0; i < text.size(); ++count) {
        const std::size_t length = sequence_length(text, i);
        if (length == 0) {
            return -1;
        }
        i += length;
    }
    return count;
}

/// The number of characters that a converter makes of a text, -1 where it refuses it.
template <typename Convert>
int convert(const Convert& function, const std::string& text) {
    try {
        return static_cast<int>(function(text).size());
    } catch (const std::range_error& error) {
        fuzz::require(std::strcmp(error.what(), "bad conversion") == 0);
        return -1;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    fuzz::require(convert(ox_to_ansi, text) == count_code_points(text));
    convert(ox_hex_ansi_to_utf8, text);
    const std::string encoded = ox_to_utf8(text);
    fuzz::require(count_code_points(encoded) >= 0);
    ox_to_ansi(encoded); // what the library encodes it can decode
    fuzz::require(ox_hex_ansi_to_ansi(text) == "&#x" + text + ";");
    fuzz::require(ox_to_lower(ox_to_upper(text)).size() == size);
    return 0;
}
