// Reads the bytes as Base64, as UTF-8, as the system's ANSI text and as a hexadecimal code.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>

#include <ox/ox_functions.h>

namespace {

/// Calls a converter that may refuse a text, but only as a bad conversion.
template <typename Convert>
void convert(const Convert& function, const std::string& text) {
    try {
        function(text);
    } catch (const std::range_error& error) {
        if (std::strcmp(error.what(), "bad conversion") != 0) {
            std::abort();
        }
    }
}

void require_equal(const ox::ox_list<unsigned char>& a, const ox::ox_list<unsigned char>& b) {
    if (std::string(a.begin(), a.end()) != std::string(b.begin(), b.end())) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    const ox::ox_list<unsigned char> bytes = ox_from_stdstring(text);
    ox_from_b64(bytes);
    require_equal(ox_from_b64(ox_to_b64(bytes)), bytes);
    convert(ox_to_ansi, text);
    convert(ox_hex_ansi_to_utf8, text);
    ox_to_ansi(ox_to_utf8(text)); // what the library encodes it can decode
    ox_to_hexa(bytes);
    ox_to_lower(ox_to_upper(ox_hex_ansi_to_ansi(text)));
    return 0;
}
