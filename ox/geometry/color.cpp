#include <ox/geometry/ox_color.h>

#include <cstdio>

namespace ox {

namespace {

constexpr float full_channel = 255.0f;

/// Integer channel of a component. Written so that a NaN takes the first branch and the
/// conversion never sees a value that an integer cannot hold.
unsigned int quantise(float component) {
    if (!(component > 0.0f)) {
        return 0;
    }
    if (component >= 1.0f) {
        return 255;
    }
    return static_cast<unsigned int>(component * full_channel);
}

float to_component(unsigned long channel) {
    return static_cast<float>(channel) / full_channel;
}

unsigned long pack(float lowest, float second, float third, float highest) {
    const unsigned long low = quantise(lowest) | quantise(second) << 8;
    const unsigned long high = quantise(third) | quantise(highest) << 8;
    return low | high << 16;
}

} // namespace

ox_color::ox_color(const float* values) {
    if (values != nullptr) {
        r = values[0];
        g = values[1];
        b = values[2];
        a = values[3];
    }
}

ox_color::ox_color(const unsigned char* bytes) {
    if (bytes != nullptr) {
        r = to_component(bytes[0]);
        g = to_component(bytes[1]);
        b = to_component(bytes[2]);
        a = to_component(bytes[3]);
    }
}

ox_color::ox_color(const std::string& text) {
    decode_string(text);
}

ox_color& ox_color::operator*=(const ox_color& c) {
    return *this = ox_color(r * c.r, g * c.g, b * c.b, a * c.a);
}

ox_color& ox_color::operator+=(const ox_color& c) {
    return *this = ox_color(r + c.r, g + c.g, b + c.b, a + c.a);
}

ox_color& ox_color::operator*=(float f) {
    return *this = ox_color(r * f, g * f, b * f, a * f);
}

ox_color& ox_color::operator/=(float f) {
    return *this = ox_color(r / f, g / f, b / f, a / f);
}

void ox_color::decode_rgba(unsigned long v) {
    r = to_component(v & 255);
    g = to_component((v >> 8) & 255);
    b = to_component((v >> 16) & 255);
    a = to_component(v >> 24);
}

unsigned long ox_color::encode_rgba() const {
    return pack(r, g, b, a);
}

unsigned long ox_color::encode_bgra() const {
    return pack(b, g, r, a);
}

bool ox_color::decode_string(const std::string& text) {
    unsigned int red = 0;
    unsigned int green = 0;
    unsigned int blue = 0;
    if (std::sscanf(text.c_str(), "#%2x%2x%2x", &red, &green, &blue) != 3) {
        return false;
    }
    *this = ox_color(to_component(red), to_component(green), to_component(blue));
    return true;
}

std::string ox_color::encode_string() const {
    char text[8]; // '#', six digits, the end
    std::snprintf(text, sizeof(text), "#%02x%02x%02x", quantise(r) & 255U, quantise(g) & 255U,
                  quantise(b) & 255U);
    return text;
}

ox_color ox_color::heat(float v) {
    if (v < 0.0f) {
        return ox_color(0.0f, 0.0f, 0.5f);
    }
    if (v > 1.0f) {
        return ox_color(0.5f, 0.0f, 0.0f);
    }
    const float t = 8.0f * v;
    if (t < 1.0f) {
        return ox_color(0.0f, 0.0f, t * 0.5f + 0.5f);
    }
    if (t < 3.0f) {
        return ox_color(0.0f, (t - 1.0f) * 0.5f, 1.0f);
    }
    if (t < 5.0f) {
        return ox_color((t - 3.0f) * 0.5f, 1.0f, 1.0f - (t - 3.0f) * 0.5f);
    }
    if (t < 7.0f) {
        return ox_color(1.0f, 1.0f - (t - 5.0f) * 0.5f, 0.0f);
    }
    return ox_color(1.0f - (t - 7.0f) * 0.5f, 0.0f, 0.0f);
}

ox_color ox_color::pseudo(float v) {
    if (v < 0.0f) {
        return ox_color(0.0f, 0.0f, 0.0f);
    }
    float s = 5.0f * v;
    if (s < 1.0f) {
        return ox_color(0.0f, 0.0f, s);
    }
    s -= 1.0f;
    if (s < 1.0f) {
        return ox_color(s, 0.0f, 1.0f);
    }
    s -= 1.0f;
    if (s < 1.0f) {
        return ox_color(1.0f, 0.0f, 1.0f - s);
    }
    s -= 1.0f;
    if (s < 1.0f) {
        return ox_color(1.0f, s, 0.0f);
    }
    s -= 1.0f;
    if (s < 1.0f) {
        return ox_color(1.0f, 1.0f, s);
    }
    return ox_color(1.0f, 1.0f, 1.0f);
}

} // namespace ox
