#ifndef OX_GEOMETRY_OX_COLOR_H
#define OX_GEOMETRY_OX_COLOR_H

#include <iosfwd>
#include <string>
#include <type_traits>

#include <ox/core/ox_export.h>

namespace ox {

/// A colour with opacity, in single precision.
///
/// Represents red, green, blue and alpha, each nominally in [0, 1]; 1 is full, and opaque for
/// alpha. A plain value of four floats. Nothing clamps them: arithmetic can leave the range, and
/// only the encoders bring a component back into it.
///
/// Encoding makes a component c an integer channel: 0 if c <= 0, 255 if c >= 1, otherwise c * 255
/// truncated, not rounded, so 0.5 becomes 127. A NaN becomes 0.
///
/// Degenerate input:
/// - a null array gives the default colour, opaque black;
/// - a text that is not a colour gives opaque black when constructed from, and changes nothing
///   when decoded.
///
/// Every operation costs constant time and may be given this colour itself.
///
/// \code
///   ox::ox_color orange("#ff8000");
///   orange *= 0.5f;                                  // alpha is scaled as well
///   const std::string text = orange.encode_string(); // "#7f4000"
/// \endcode
class ox_color {
public:
    float r = 0.0f; ///< red
    float g = 0.0f; ///< green
    float b = 0.0f; ///< blue
    float a = 1.0f; ///< opacity

    /// Opaque black.
    constexpr ox_color() noexcept = default;

    /// An opaque grey.
    constexpr ox_color(float v) noexcept : r(v), g(v), b(v) {}

    /// A grey with the opacity `alpha`.
    constexpr ox_color(float v, float alpha) noexcept : r(v), g(v), b(v), a(alpha) {}

    /// An opaque colour.
    constexpr ox_color(float red, float green, float blue) noexcept : r(red), g(green), b(blue) {}

    /// A colour with the opacity `alpha`.
    constexpr ox_color(float red, float green, float blue, float alpha) noexcept
        : r(red), g(green), b(blue), a(alpha) {}

    /// Reads r, g, b, a from four consecutive floats; a null pointer gives opaque black.
    OX_EXPORT ox_color(const float* values);

    /// Reads r, g, b, a from four consecutive bytes, 255 meaning 1; a null pointer gives opaque
    /// black.
    OX_EXPORT ox_color(const unsigned char* bytes);

    /// Opaque black, then `decode_string(text)`.
    OX_EXPORT ox_color(const std::string& text);

    /// Component i: 0 = r, 1 = g, 2 = b, 3 = a. The index is not checked; a larger one means a.
    constexpr float& operator[](unsigned int i) noexcept {
        return i == 0 ? r : (i == 1 ? g : (i == 2 ? b : a));
    }

    /// Multiplies component by component in place, alpha included.
    OX_EXPORT ox_color& operator*=(const ox_color& c);

    /// Adds component by component in place, alpha included.
    OX_EXPORT ox_color& operator+=(const ox_color& c);

    /// Multiplies all components by f in place, alpha included.
    OX_EXPORT ox_color& operator*=(float f);

    /// Divides all components by f in place, alpha included. A division by 0 is not guarded.
    OX_EXPORT ox_color& operator/=(float f);

    /// Reads r from bits 0 to 7 of v, g from 8 to 15, b from 16 to 23, a from all the bits from
    /// 24 on: where unsigned long has 64 bits, a value above 0xFFFFFFFF gives an alpha above 1.
    OX_EXPORT void decode_rgba(unsigned long v);

    /// Packs r into bits 0 to 7, g into 8 to 15, b into 16 to 23, a into 24 to 31.
    OX_EXPORT unsigned long encode_rgba() const;

    /// Packs b into bits 0 to 7, g into 8 to 15, r into 16 to 23, a into 24 to 31.
    OX_EXPORT unsigned long encode_bgra() const;

    /// Reads a colour as the scan format "#%02x%02x%02x" does: a `#`, then red, green and blue in
    /// hexadecimal, at most two digits each, in either case; what follows is not looked at.
    /// Returns true and makes the colour opaque when all three were read; otherwise returns
    /// false and changes nothing. As in any such scan, a field may start with white space, a sign
    /// or 0x; a negative field is read modulo 2^32.
    OX_EXPORT bool decode_string(const std::string& text);

    /// The colour as "#rrggbb" in lower-case hexadecimal. Alpha is not written.
    OX_EXPORT std::string encode_string() const;

    /// Colour of v in [0, 1] on the scale dark blue, blue, cyan, yellow, red, dark red. A value
    /// below 0 gives the colour of 0, one above 1 the colour of 1; a NaN gives a NaN red.
    OX_EXPORT static ox_color heat(float v);

    /// Colour of v in [0, 1] on the scale black, blue, magenta, red, yellow, white. A value below
    /// 0 gives black; one above 1, and a NaN, white.
    OX_EXPORT static ox_color pseudo(float v);
};

static_assert(sizeof(ox_color) == 16, "four packed floats");
static_assert(std::is_standard_layout_v<ox_color>, "can be read as an array of floats");
static_assert(std::is_trivially_copyable_v<ox_color>, "a plain value");

/// True if all components are equal, without a tolerance (so a NaN equals nothing).
constexpr bool operator==(const ox_color& c, const ox_color& d) noexcept {
    return c.r == d.r && c.g == d.g && c.b == d.b && c.a == d.a;
}

/// True if a component differs, without a tolerance.
constexpr bool operator!=(const ox_color& c, const ox_color& d) noexcept {
    return !(c == d);
}

/// Writes c as "(r, g, b, a)", each number as the stream is set to write floats.
OX_EXPORT std::ostream& operator<<(std::ostream& out, const ox_color& c);

} // namespace ox

#endif
