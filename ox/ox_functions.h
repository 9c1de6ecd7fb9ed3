#ifndef OX_OX_FUNCTIONS_H
#define OX_OX_FUNCTIONS_H

#include <ox/core/ox_export.h>
#include <ox/core/ox_list.h>
#include <string>

/// @file
/// The free functions of core and geometry. Each is in namespace `ox` and, as the same entity, in
/// the global namespace, so that a qualified and an unqualified call always agree.

namespace ox {

// Dates: process-wide change stamps. Threads that take dates at the same time receive different
// ones.

/// The date given out last, 0 before the first.
OX_EXPORT unsigned int ox_get_date();

/// A new date, one above the last: 1, 2, 3, ... It starts again from 0 after 2^32 - 1 dates.
OX_EXPORT unsigned int ox_get_new_date();

// Memory of the current process, as the system counts it; 0 where the system does not tell.

/// The memory the process holds in RAM, in bytes.
OX_EXPORT long long ox_get_memory_occupation();

/// The most memory the process ever held in RAM, in bytes.
OX_EXPORT long long ox_get_peak_memory_occupation();

/// The memory the process holds in RAM, in units of 1048576 bytes.
OX_EXPORT double ox_get_memory_occupation_mb();

// Bytes: lists of bytes as the encodings take and give them. A list whose count is not positive is
// empty. All cost O(n); what does not fit a list (2^31 - 1 bytes) fails like an allocation.

/// The `n` bytes at `p`. For `n` below 1 a list that allocates nothing and keeps `n` as its count;
/// for a null `p` and a positive `n` an empty list.
OX_EXPORT ox_list<unsigned char> ox_from_char_ptr(const char* p, int n);

/// The `n` bytes at `p`, as `ox_from_char_ptr` gives them.
OX_EXPORT ox_list<unsigned char> ox_from_uchar_ptr(const unsigned char* p, int n);

/// The bytes of `s`, NUL characters included, without a terminator.
OX_EXPORT ox_list<unsigned char> ox_from_stdstring(const std::string& s);

/// The Base64 text (RFC 4648, with padding, without line breaks) of `bytes`. The capacity is that
/// of a list filled byte by byte.
OX_EXPORT ox_list<unsigned char> ox_to_b64(const ox_list<unsigned char>& bytes);

/// The bytes that a Base64 text stands for; empty when its length is no multiple of 4. Characters
/// outside the alphabet are not rejected: each counts as the number 64, which in the first two
/// places of a group of four spoils the group's bytes, in the third ends it after one byte and in
/// the fourth after two. The capacity is that of a list filled byte by byte.
OX_EXPORT ox_list<unsigned char> ox_from_b64(const ox_list<unsigned char>& text);

/// Two characters for each byte: the upper-case hexadecimal digit of its LOW four bits, then `0`.
/// The high four bits are never written: 0x3C gives `C0`.
OX_EXPORT std::string ox_to_hexa(const ox_list<unsigned char>& bytes);

// Texts. They keep NUL characters. All cost O(n).

/// `s` with every byte passed through the C library's `tolower`, which follows the C locale chosen
/// by the program.
OX_EXPORT std::string ox_to_lower(const std::string& s);

/// `s` with every byte passed through the C library's `toupper`, which follows the C locale chosen
/// by the program.
OX_EXPORT std::string ox_to_upper(const std::string& s);

/// `s`, a text in the system's ANSI code page, as UTF-8. Elsewhere than on Windows the code page is
/// ISO-8859-1. Empty when the system cannot convert it.
OX_EXPORT std::string ox_to_utf8(const std::string& s);

/// `s`, a text in UTF-8, with one byte for each code point: its low eight bits, or `?` where these
/// are 0 and the code point is not. Code points below 256 so become their ISO-8859-1 byte, others
/// an arbitrary one. Throws `std::range_error` ("bad conversion") when `s` is not UTF-8: a
/// truncated or stray sequence, an over-long form, a surrogate or a value above 0x10FFFF.
OX_EXPORT std::string ox_to_ansi(const std::string& s);

/// The numeric character reference `&#x...;` of XML for the digits `hex`, which are not checked.
OX_EXPORT std::string ox_hex_ansi_to_ansi(const std::string& hex);

/// The UTF-8 form of the character whose code has the hexadecimal digits `hex`. A character that is
/// no digit counts as 0, and only the low 16 bits of the code count. Without digits it is the NUL
/// character. Throws `std::range_error` ("bad conversion") when the code is a surrogate.
OX_EXPORT std::string ox_hex_ansi_to_utf8(const std::string& hex);

/// A new identifier of 24 characters, made for this process: the time in seconds (8 bytes, least
/// significant first), at least one above that of the identifier before, then 4 random bytes, all
/// written by `ox_to_hexa`, so with their low four bits only. The random bytes start from a fixed
/// seed: two processes started in the same second give the same identifiers. Threads may call it at
/// the same time.
OX_EXPORT std::string ox_uuid();

} // namespace ox

using ox::ox_from_b64;
using ox::ox_from_char_ptr;
using ox::ox_from_stdstring;
using ox::ox_from_uchar_ptr;
using ox::ox_get_date;
using ox::ox_get_memory_occupation;
using ox::ox_get_memory_occupation_mb;
using ox::ox_get_new_date;
using ox::ox_get_peak_memory_occupation;
using ox::ox_hex_ansi_to_ansi;
using ox::ox_hex_ansi_to_utf8;
using ox::ox_to_ansi;
using ox::ox_to_b64;
using ox::ox_to_hexa;
using ox::ox_to_lower;
using ox::ox_to_upper;
using ox::ox_to_utf8;
using ox::ox_uuid;

#endif
