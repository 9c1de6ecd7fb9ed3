#include <ox/ox_functions.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <utility>

#include <ox/core/internal/byte_list.h>

// Base64 as RFC 4648 describes it: three bytes make four characters of six bits each.

namespace ox {

using namespace internal;

namespace {

constexpr char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr unsigned char pad = '=';

/// The value of every character that is not in the alphabet, the pad included.
constexpr unsigned int no_digit = 64;

using byte_table = std::array<unsigned int, 256>;

constexpr byte_table make_digit_values() {
    byte_table values{};
    for (unsigned int& value : values) {
        value = no_digit;
    }
    for (unsigned int digit = 0; digit < no_digit; ++digit) {
        values[static_cast<unsigned char>(alphabet[digit])] = digit;
    }
    return values;
}

constexpr byte_table digit_values = make_digit_values();

/// Marks what a group of fewer than three bytes has in place of its third or fourth digit. The
/// group's bytes are below it.
constexpr unsigned int short_group = 1u << 31;

/// What each character adds to the three bytes of its group, of which the first is the lowest of
/// the result, as the digit at `shift`. Characters outside the alphabet end the group when they
/// `end_groups`, otherwise their value takes part.
constexpr byte_table make_shares(unsigned int shift, bool end_groups) {
    byte_table shares{};
    for (std::size_t c = 0; c < shares.size(); ++c) {
        const bool ends = end_groups && digit_values[c] == no_digit;
        const unsigned int bits = digit_values[c] << shift;
        const unsigned int bytes = ((bits >> 16) & 0xFF) | (bits & 0xFF00) | ((bits & 0xFF) << 16);
        shares[c] = ends ? short_group : bytes;
    }
    return shares;
}

constexpr byte_table first_shares = make_shares(18, false);
constexpr byte_table second_shares = make_shares(12, false);
constexpr byte_table third_shares = make_shares(6, true);
constexpr byte_table fourth_shares = make_shares(0, true);

/// Two characters, for every twelve bits.
struct character_pair {
    unsigned char characters[2];
};

constexpr std::array<character_pair, 4096> make_pairs() {
    std::array<character_pair, 4096> pairs{};
    for (std::size_t bits = 0; bits < pairs.size(); ++bits) {
        pairs[bits] = {{static_cast<unsigned char>(alphabet[bits >> 6]),
                        static_cast<unsigned char>(alphabet[bits & 63])}};
    }
    return pairs;
}

constexpr std::array<character_pair, 4096> pairs = make_pairs();

/// The number whose bytes, from the highest on, are the eight at `bytes`.
std::uint64_t load(const unsigned char* bytes) {
    std::uint64_t number = 0;
    for (int i = 0; i < 8; ++i) {
        number = (number << 8) | bytes[i];
    }
    return number;
}

unsigned char character(unsigned int digit) {
    return static_cast<unsigned char>(alphabet[digit & 63]);
}

/// Writes the eight characters of the first six of eight bytes.
void encode_two_groups(const unsigned char* bytes, unsigned char* text) {
    const std::uint64_t bits = load(bytes);
    std::memcpy(text, &pairs[bits >> 52], sizeof(character_pair));
    std::memcpy(text + 2, &pairs[(bits >> 40) & 0xFFF], sizeof(character_pair));
    std::memcpy(text + 4, &pairs[(bits >> 28) & 0xFFF], sizeof(character_pair));
    std::memcpy(text + 6, &pairs[(bits >> 16) & 0xFFF], sizeof(character_pair));
}

/// Writes the four characters of up to three bytes.
void encode_group(const unsigned char* bytes, int n, unsigned char* text) {
    const unsigned int first = bytes[0];
    const unsigned int second = n > 1 ? bytes[1] : 0;
    const unsigned int third = n > 2 ? bytes[2] : 0;
    text[0] = character(first >> 2);
    text[1] = character((first << 4) | (second >> 4));
    text[2] = n > 1 ? character((second << 2) | (third >> 6)) : pad;
    text[3] = n > 2 ? character(third) : pad;
}

/// The number of bytes that a group of four characters stands for.
int decoded_size(const unsigned char* group) {
    if (digit_values[group[2]] == no_digit) {
        return 1;
    }
    return digit_values[group[3]] == no_digit ? 2 : 3;
}

/// The three bytes of a group of four characters, the first lowest, and perhaps the mark of a short
/// one.
unsigned int bytes_of_group(const unsigned char* group) {
    return first_shares[group[0]] | second_shares[group[1]] | third_shares[group[2]] |
           fourth_shares[group[3]];
}

/// Writes the bytes of a group of four characters and returns where they end.
unsigned char* decode_group(const unsigned char* group, unsigned char* bytes) {
    const int size = decoded_size(group);
    const unsigned int decoded = bytes_of_group(group);
    for (int i = 0; i < size; ++i) {
        bytes[i] = static_cast<unsigned char>(decoded >> (8 * i));
    }
    return bytes + size;
}

/// Does the same for two groups.
unsigned char* decode_two_groups(const unsigned char* groups, unsigned char* bytes) {
    const unsigned int first = bytes_of_group(groups);
    const unsigned int second = bytes_of_group(groups + 4);
    if (((first | second) & short_group) != 0) {
        return decode_group(groups + 4, decode_group(groups, bytes));
    }
    const std::uint64_t decoded = first | (std::uint64_t{second} << 24);
    for (int i = 0; i < 6; ++i) {
        bytes[i] = static_cast<unsigned char>(decoded >> (8 * i));
    }
    return bytes + 6;
}

/// The first `size` bytes of a list, in one of the capacity that so many insertions leave.
ox_list<unsigned char> shortened(const ox_list<unsigned char>& bytes, std::int64_t size) {
    ox_list<unsigned char> list = grown_byte_list(size);
    std::copy(bytes.begin(), bytes.begin() + size, list.begin());
    return list;
}

} // namespace

ox_list<unsigned char> ox_to_b64(const ox_list<unsigned char>& bytes) {
    const int n = live_count(bytes);
    ox_list<unsigned char> text = grown_byte_list((std::int64_t{n} + 2) / 3 * 4);
    const unsigned char* source = bytes.get_data();
    unsigned char* target = text.get_data();
    int left = n;
    for (; left >= 8; left -= 6, source += 6, target += 8) {
        encode_two_groups(source, target);
    }
    for (; left > 0; left -= 3, source += 3, target += 4) {
        encode_group(source, left, target);
    }
    return text;
}

ox_list<unsigned char> ox_from_b64(const ox_list<unsigned char>& text) {
    const int n = live_count(text);
    if (n == 0 || n % 4 != 0) {
        return ox_list<unsigned char>();
    }
    // As a rule only the last group is short.
    const unsigned char* const source = text.get_data();
    const std::int64_t expected = std::int64_t{n} / 4 * 3 - 3 + decoded_size(source + n - 4);
    ox_list<unsigned char> bytes = grown_byte_list(expected);
    unsigned char* target = bytes.get_data();
    int i = 0;
    for (; i <= n - 8; i += 8) {
        target = decode_two_groups(source + i, target);
    }
    for (; i < n; i += 4) {
        target = decode_group(source + i, target);
    }
    const std::int64_t size = target - bytes.get_data();
    return size == expected ? std::move(bytes) : shortened(bytes, size);
}

} // namespace ox
