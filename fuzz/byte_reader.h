#ifndef OX_FUZZ_BYTE_READER_H
#define OX_FUZZ_BYTE_READER_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>

namespace fuzz {

/// Turns a fuzzer's bytes into numbers, texts and contours; zeros follow the last byte.
class byte_reader {
public:
    byte_reader(const std::uint8_t* bytes, std::size_t count) : next(bytes), left(count) {}

    bool has_more() const { return left > 0; }

    std::uint8_t byte() {
        if (left == 0) {
            return 0;
        }
        --left;
        return *next++;
    }

    /// A number from 0 on that is below `end`, which is at most 256.
    int below(int end) { return byte() % end; }

    /// Mostly a small multiple of 1/4, so that points coincide; sometimes any bit pattern.
    float coordinate() {
        const std::uint8_t first = byte();
        if (first != 255) {
            return static_cast<float>(static_cast<int>(first) - 127) * 0.25f;
        }
        std::uint32_t pattern = 0;
        for (unsigned int i = 0; i < 4; ++i) {
            pattern |= std::uint32_t{byte()} << (8 * i);
        }
        float value = 0.0f;
        std::memcpy(&value, &pattern, sizeof value);
        return value;
    }

    ox::ox_3dvector vector() {
        const float x = coordinate();
        const float y = coordinate();
        const float z = coordinate();
        return ox::ox_3dvector(x, y, z);
    }

    /// Up to 15 points, in the plane z = 0 when the count's high bit is set.
    ox::ox_list<ox::ox_3dvector> contour() {
        const std::uint8_t head = byte();
        ox::ox_list<ox::ox_3dvector> points;
        for (int i = 0; i < head % 16; ++i) {
            const float x = coordinate();
            const float y = coordinate();
            const float z = head >= 128 ? 0.0f : coordinate();
            points.push_right(ox::ox_3dvector(x, y, z));
        }
        return points;
    }

    /// Up to `longest` bytes, fewer than 256, as a text.
    std::string text(int longest) {
        std::string characters;
        for (int i = below(longest + 1); i > 0; --i) {
            characters += static_cast<char>(byte());
        }
        return characters;
    }

private:
    const std::uint8_t* next;
    std::size_t left;
};

} // namespace fuzz

#endif
