// Encodes the bytes as Base64 and in hexadecimal, and decodes them as if they were Base64.

#include <cstddef>
#include <cstdint>
#include <string>

#include <fuzz/require.h>
#include <ox/ox_functions.h>

namespace {

using byte_list = ox::ox_list<unsigned char>;

std::string text_of(const byte_list& bytes) {
    return std::string(bytes.begin(), bytes.end());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    const byte_list bytes = ox_from_stdstring(text);
    const byte_list encoded = ox_to_b64(bytes);
    fuzz::require(encoded.size() % 4 == 0);
    fuzz::require(text_of(ox_from_b64(encoded)) == text);
    const byte_list decoded = ox_from_b64(bytes);
    fuzz::require(static_cast<std::size_t>(decoded.size()) <= size / 4 * 3);
    fuzz::require(size % 4 == 0 || decoded.empty());
    fuzz::require(ox_to_hexa(bytes).size() == 2 * size);
    fuzz::require(text_of(ox_from_uchar_ptr(data, static_cast<int>(size))) == text);
    return 0;
}
