#include <ox/ox_functions.h>

#include <cstdint>
#include <iterator>
#include <stdexcept>

#include <utf8.h>

#if defined(_WIN32)
#include <limits>
#include <windows.h>
#endif

namespace ox {

namespace {

[[noreturn]] void throw_bad_conversion() {
    throw std::range_error("bad conversion");
}

/// One byte for a code point: its low eight bits, unless they would turn a character into NUL.
char narrowed(std::uint32_t code_point) {
    const unsigned char low_bits = static_cast<unsigned char>(code_point & 255);
    return code_point != 0 && low_bits == 0 ? '?' : static_cast<char>(low_bits);
}

std::uint16_t hexadecimal_value(char digit) {
    if (digit >= '0' && digit <= '9') {
        return static_cast<std::uint16_t>(digit - '0');
    }
    if (digit >= 'A' && digit <= 'F') {
        return static_cast<std::uint16_t>(digit - 'A' + 10);
    }
    if (digit >= 'a' && digit <= 'f') {
        return static_cast<std::uint16_t>(digit - 'a' + 10);
    }
    return 0;
}

bool is_surrogate(std::uint16_t code) {
    return code >= 0xD800 && code <= 0xDFFF;
}

} // namespace

#if defined(_WIN32)

std::string ox_to_utf8(const std::string& s) {
    if (s.size() > static_cast<std::size_t>((std::numeric_limits<int>::max)())) {
        return std::string();
    }
    const int size = static_cast<int>(s.size());
    // Where the code page is UTF-8 no flag is allowed; elsewhere none means precomposed characters.
    const int wide_size = MultiByteToWideChar(CP_ACP, 0, s.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(wide_size), L'\0');
    MultiByteToWideChar(CP_ACP, 0, s.data(), size, &wide[0], wide_size);
    const int utf8_size =
        WideCharToMultiByte(CP_UTF8, 0, wide.data(), wide_size, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(utf8_size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), wide_size, &utf8[0], utf8_size, nullptr, nullptr);
    return utf8;
}

#else

std::string ox_to_utf8(const std::string& s) {
    std::string utf8;
    utf8.reserve(s.size());
    for (char c : s) {
        // The code points of ISO-8859-1 are its bytes.
        utf8::unchecked::append(static_cast<unsigned char>(c), std::back_inserter(utf8));
    }
    return utf8;
}

#endif

std::string ox_to_ansi(const std::string& s) {
    if (!utf8::is_valid(s.begin(), s.end())) {
        throw_bad_conversion();
    }
    std::string ansi;
    ansi.reserve(s.size());
    for (auto place = s.begin(); place != s.end();) {
        ansi += narrowed(utf8::unchecked::next(place));
    }
    return ansi;
}

std::string ox_hex_ansi_to_utf8(const std::string& hex) {
    std::uint16_t code = 0; // as wide as a UTF-16 unit: higher digits fall out
    for (char digit : hex) {
        code = static_cast<std::uint16_t>(code * 16 + hexadecimal_value(digit));
    }
    if (is_surrogate(code)) {
        throw_bad_conversion();
    }
    std::string utf8;
    utf8::unchecked::append(code, std::back_inserter(utf8));
    return utf8;
}

} // namespace ox
