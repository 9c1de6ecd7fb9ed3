#ifndef OX_OX_FUNCTIONS_H
#define OX_OX_FUNCTIONS_H

#include <ox/core/ox_export.h>
#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
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

// Self-checks of the ordered map.

/// Puts 20 entries into an `ox_hash`, updates and removes them; true when every count is right.
OX_EXPORT bool ox_hash_unitary_test();

/// Times 100000 insertions and removals at either end of an `ox_list` and of an `ox_hash`, and
/// writes the seconds to the log, nine lines in all. Prepending to a list makes it O(n^2).
OX_EXPORT void ox_hash_performance_test();

// Linear systems. A matrix of order n is a list of n * n floats, row after row. Everything is
// computed in single precision.

/// The solution x of a x = b by Gaussian elimination with partial pivoting, `b.size()` numbers.
///
/// Empty when b is empty, when a is not square of b's order, when no candidate for a pivot is
/// greater than 0.0001 in magnitude (even if the system has a solution), or when the last pivot is
/// exactly 0. The last pivot may be as small as it likes, so the threshold never applies to a
/// system of order 1. Numbers that are not finite travel by the rules of IEEE arithmetic, and a
/// NaN is never a pivot before the last. O(n^3).
OX_EXPORT ox_list<float> ox_solve_system(const ox_list<float>& a, const ox_list<float>& b);

/// The inverse of a matrix, column after column the solution of `ox_solve_system` for a unit
/// vector, bit for bit; the matrix is eliminated only once. Empty when a is empty or not square,
/// and where `ox_solve_system` finds no solution. O(n^3).
OX_EXPORT ox_list<float> ox_reverse_matrix(const ox_list<float>& a);

/// Solves 100 random systems of order 8 (seed 54873) and logs what is wrong and how many are
/// right to 0.001; true when all are.
OX_EXPORT bool oxut_solve_system();

/// Inverts 100 random matrices of order 8 (seed 54873) and logs what is wrong and how many are
/// right to 0.001; true when all are.
OX_EXPORT bool oxut_reverse_matrix();

// Angles, and inverse functions that forgive arguments a rounding outside [-1, 1].

/// Arc cosine in radians; 0 above 1, pi below -1, NaN of NaN. Computed in double precision.
OX_EXPORT float ox_acos(float x);

/// Arc cosine in radians; 0 above 1, pi below -1, NaN of NaN.
OX_EXPORT double ox_acos(double x);

/// Arc sine in radians; pi / 2 above 1, -pi / 2 below -1, NaN of NaN. Computed in double precision.
OX_EXPORT float ox_asin(float x);

/// Arc sine in radians; pi / 2 above 1, -pi / 2 below -1, NaN of NaN.
OX_EXPORT double ox_asin(double x);

/// Splits decimal degrees into whole degrees `d`, whole minutes `m` and seconds `s`. Only `d`
/// carries the sign, so -0.5 becomes 0, 30, 0 like 0.5. Whole numbers beyond the range of int stop
/// at its end; NaN gives 0, 0, NaN.
OX_EXPORT void ox_convert_angle(double degrees, int& d, int& m, double& s);

// Geodesy: longitude and latitude in degrees, east and north positive; distances in metres.

/// The position of a Lambert-93 point, by seven fixed-point steps for the sine of the latitude
/// (exact to 1e-9 degrees in metropolitan France). Points on and north of the pole's parallel
/// (y of 12655612 and more) are outside the projection: their longitude means nothing.
OX_EXPORT void ox_lambert93_to_longitude_latitude(double x, double y, double& longitude,
                                                  double& latitude);

/// The Lambert-93 point of a position: the conformal conic projection of the GRS 80 ellipsoid with
/// the standard parallels 44 and 49 degrees. Latitudes of -90 and beyond have no point.
OX_EXPORT void ox_longitude_latitude_to_lambert93(double longitude, double latitude, double& x,
                                                  double& y);

/// How far east (x) and north (y) of a reference a position lies, in metres, on a sphere of
/// 40075016.68557849 m around, for positions close together. All four arguments are only read.
OX_EXPORT ox_3dvector ox_longitude_latitude_to_meters(double& ref_longitude, double& ref_latitude,
                                                      double& longitude, double& latitude);

/// Moves a position by metres east (x) and north (y) on the same sphere; z is ignored. At a pole
/// every longitude is east: the result is then huge or not finite.
OX_EXPORT void ox_meters_to_longitude_latitude(const ox_3dvector& offset, double& longitude,
                                               double& latitude);

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

using ox::ox_acos;
using ox::ox_asin;
using ox::ox_convert_angle;
using ox::ox_from_b64;
using ox::ox_from_char_ptr;
using ox::ox_from_stdstring;
using ox::ox_from_uchar_ptr;
using ox::ox_get_date;
using ox::ox_get_memory_occupation;
using ox::ox_get_memory_occupation_mb;
using ox::ox_get_new_date;
using ox::ox_get_peak_memory_occupation;
using ox::ox_hash_performance_test;
using ox::ox_hash_unitary_test;
using ox::ox_hex_ansi_to_ansi;
using ox::ox_hex_ansi_to_utf8;
using ox::ox_lambert93_to_longitude_latitude;
using ox::ox_longitude_latitude_to_lambert93;
using ox::ox_longitude_latitude_to_meters;
using ox::ox_meters_to_longitude_latitude;
using ox::ox_reverse_matrix;
using ox::ox_solve_system;
using ox::ox_to_ansi;
using ox::ox_to_b64;
using ox::ox_to_hexa;
using ox::ox_to_lower;
using ox::ox_to_upper;
using ox::ox_to_utf8;
using ox::ox_uuid;
using ox::oxut_reverse_matrix;
using ox::oxut_solve_system;

#endif
