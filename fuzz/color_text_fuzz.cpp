// Reads the bytes as a colour: as a text, as packed bits and as numbers for the two scales.

#include <string>

#include <fuzz/byte_reader.h>
#include <fuzz/require.h>
#include <ox/geometry/ox_color.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    ox::ox_color color(0.25f, 0.5f, 0.75f, 0.5f);
    const ox::ox_color before = color;
    if (!color.decode_string(text)) {
        fuzz::require(color == before);
    } else if (color.r <= 1.0f && color.g <= 1.0f && color.b <= 1.0f) {
        ox::ox_color again;
        fuzz::require(again.decode_string(color.encode_string()));
        fuzz::require(again == color);
    }
    fuzz::byte_reader bytes(data, size);
    const float value = bytes.coordinate();
    const ox::ox_color mixed(value, bytes.coordinate(), bytes.coordinate(), bytes.coordinate());
    fuzz::require(mixed.encode_string().size() == 7);
    ox::ox_color unpacked;
    unpacked.decode_rgba(mixed.encode_rgba());
    fuzz::require(unpacked.encode_rgba() == mixed.encode_rgba());
    unpacked.decode_rgba(mixed.encode_bgra());
    ox::ox_color::heat(value);
    ox::ox_color::pseudo(value);
    return 0;
}
