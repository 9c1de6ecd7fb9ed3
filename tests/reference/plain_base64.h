#ifndef TESTS_REFERENCE_PLAIN_BASE64_H
#define TESTS_REFERENCE_PLAIN_BASE64_H

#include <cstring>
#include <ox/core/ox_list.h>

namespace reference {

using byte_list = ox::ox_list<unsigned char>;

inline const char* base64_alphabet() {
    return "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/=";
}

/// Base64, byte by byte.
inline byte_list plain_to_b64(const byte_list& bytes) {
    byte_list text;
    const auto append = [&text](int index) {
        text.push_right(static_cast<unsigned char>(base64_alphabet()[index]));
    };
    const int n = bytes.size();
    for (int i = 0; i < n; i += 3) {
        const int b0 = bytes[i];
        const int b1 = i + 1 < n ? bytes[i + 1] : 0;
        const int b2 = i + 2 < n ? bytes[i + 2] : 0;
        append(b0 >> 2);
        append(((b0 & 3) << 4) | (b1 >> 4));
        append(i + 1 < n ? ((b1 & 15) << 2) | (b2 >> 6) : 64);
        append(i + 2 < n ? b2 & 63 : 64);
    }
    return text;
}

inline int plain_b64_value(unsigned char c) {
    for (int value = 0; value < 64; ++value) {
        if (static_cast<unsigned char>(base64_alphabet()[value]) == c) {
            return value;
        }
    }
    return 64;
}

/// The bytes behind Base64, one at a time.
inline byte_list plain_from_b64(const byte_list& text) {
    byte_list bytes;
    for (int i = 0; text.size() % 4 == 0 && i < text.size(); i += 4) {
        int d[4];
        for (int k = 0; k < 4; ++k) {
            d[k] = plain_b64_value(text[i + k]);
        }
        bytes.push_right(static_cast<unsigned char>((d[0] << 2) | (d[1] >> 4)));
        if (d[2] < 64) {
            bytes.push_right(static_cast<unsigned char>((d[1] << 4) | (d[2] >> 2)));
            if (d[3] < 64) {
                bytes.push_right(static_cast<unsigned char>((d[2] << 6) | d[3]));
            }
        }
    }
    return bytes;
}

} // namespace reference

#endif
