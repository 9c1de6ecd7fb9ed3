#include <array>
#include <cstdint>
#include <ox/core/internal/byte_list.h>
#include <ox/ox_functions.h>

// Base64 as RFC 4648 describes it: three bytes make four characters of six bits each.

namespace ox {

namespace {

constexpr char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr unsigned char pad = '=';

/// The value of every character that is not in the alphabet, the pad included.
constexpr unsigned char no_digit = 64;

constexpr std::array<unsigned char, 256> make_digit_values() {
    std::array<unsigned char, 256> values{};
    for (unsigned char& value : values) {
        value = no_digit;
    }
    for (unsigned char digit = 0; digit < no_digit; ++digit) {
        values[static_cast<unsigned char>(alphabet[digit])] = digit;
    }
    return values;
}

constexpr std::array<unsigned char, 256> digit_values = make_digit_values();

unsigned char character(unsigned int digit) {
    return static_cast<unsigned char>(alphabet[digit & 63]);
}

/// Writes the characters of the last one or two bytes.
void encode_rest(const unsigned char* bytes, int n, unsigned char* text) {
    const unsigned int first = bytes[0];
    const unsigned int second = n > 1 ? bytes[1] : 0;
    text[0] = character(first >> 2);
    text[1] = character((first << 4) | (second >> 4));
    text[2] = n > 1 ? character(second << 2) : pad;
    text[3] = pad;
}

/// How many bytes a group of four characters stands for.
int decoded_size(const unsigned char* group) {
    if (digit_values[group[2]] == no_digit) {
        return 1;
    }
    return digit_values[group[3]] == no_digit ? 2 : 3;
}

/// Writes the bytes of a group of four characters and returns where they end.
unsigned char* decode_group(const unsigned char* group, unsigned char* bytes) {
    const unsigned int d0 = digit_values[group[0]];
    const unsigned int d1 = digit_values[group[1]];
    const unsigned int d2 = digit_values[group[2]];
    const unsigned int d3 = digit_values[group[3]];
    *bytes++ = static_cast<unsigned char>((d0 << 2) | (d1 >> 4));
    if (d2 != no_digit) {
        *bytes++ = static_cast<unsigned char>((d1 << 4) | (d2 >> 2));
        if (d3 != no_digit) {
            *bytes++ = static_cast<unsigned char>((d2 << 6) | d3);
        }
    }
    return bytes;
}

} // namespace

ox_list<unsigned char> ox_to_b64(const ox_list<unsigned char>& bytes) {
    const int n = live_count(bytes);
    ox_list<unsigned char> text = grown_byte_list((std::int64_t{n} + 2) / 3 * 4);
    const unsigned char* source = bytes.get_data();
    unsigned char* target = text.get_data();
    int left = n;
    for (; left >= 3; left -= 3, source += 3, target += 4) {
        const unsigned int group =
            (unsigned{source[0]} << 16) | (unsigned{source[1]} << 8) | unsigned{source[2]};
        target[0] = character(group >> 18);
        target[1] = character(group >> 12);
        target[2] = character(group >> 6);
        target[3] = character(group);
    }
    if (left > 0) {
        encode_rest(source, left, target);
    }
    return text;
}

ox_list<unsigned char> ox_from_b64(const ox_list<unsigned char>& text) {
    const int n = live_count(text);
    if (n % 4 != 0) {
        return ox_list<unsigned char>();
    }
    const unsigned char* const source = text.get_data();
    std::int64_t size = 0;
    for (int i = 0; i < n; i += 4) {
        size += decoded_size(source + i);
    }
    ox_list<unsigned char> bytes = grown_byte_list(size);
    unsigned char* target = bytes.get_data();
    for (int i = 0; i < n; i += 4) {
        target = decode_group(source + i, target);
    }
    return bytes;
}

} // namespace ox
