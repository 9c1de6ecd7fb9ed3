#include <ox/ox_functions.h>

#include <cstddef>
#include <cstring>
#include <limits>
#include <new>

#include <ox/core/internal/byte_list.h>

namespace ox {

using namespace internal;

ox_list<unsigned char> ox_from_uchar_ptr(const unsigned char* p, int n) {
    if (p == nullptr && n > 0) {
        return ox_list<unsigned char>();
    }
    ox_list<unsigned char> bytes(n);
    if (n > 0) {
        std::memcpy(bytes.get_data(), p, static_cast<std::size_t>(n));
    }
    return bytes;
}

ox_list<unsigned char> ox_from_char_ptr(const char* p, int n) {
    return ox_from_uchar_ptr(reinterpret_cast<const unsigned char*>(p), n);
}

ox_list<unsigned char> ox_from_stdstring(const std::string& s) {
    if (s.size() > static_cast<std::size_t>((std::numeric_limits<int>::max)())) {
        throw std::bad_array_new_length();
    }
    return ox_from_char_ptr(s.data(), static_cast<int>(s.size()));
}

std::string ox_to_hexa(const ox_list<unsigned char>& bytes) {
    std::string text;
    text.reserve(2 * static_cast<std::size_t>(live_count(bytes)));
    for (unsigned char byte : bytes) {
        text += "0123456789ABCDEF"[byte & 15];
        text += '0';
    }
    return text;
}

} // namespace ox
