#ifndef OX_GEOMETRY_OX_POLAR_H
#define OX_GEOMETRY_OX_POLAR_H

#include <iosfwd>
#include <type_traits>

#include <ox/core/ox_export.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox {

/// Spherical coordinates of a point of space, in single precision.
///
/// Represents a point by its distance from the origin, `radius` (model units), its elevation
/// above the x-y plane, `latitude` (radians, in [-pi/2, pi/2]), and its azimuth in that plane
/// from +x toward +y, `longitude` (radians, in (-pi, pi]). A plain value of three floats; the
/// ranges hold for values converted from a vector, components given by hand are taken as they
/// are. Trigonometry is evaluated in double precision and rounded back to float.
///
/// Degenerate input:
/// - the zero vector gives (0, 0, 0);
/// - a vector straight up or down has the longitude 0;
/// - a vector with a NaN or infinite component gives a radius that is NaN or infinite, and
///   angles that may be NaN.
///
/// \code
///   const ox::ox_polar north(ox::ox_3dvector(0.0f, 2.0f, 0.0f)); // radius 2, longitude pi/2
///   const ox::ox_3dvector back = north.to_3dvector();
/// \endcode
class ox_polar {
public:
    float radius = 0.0f;    ///< distance from the origin (model units)
    float latitude = 0.0f;  ///< elevation above the x-y plane (radians)
    float longitude = 0.0f; ///< azimuth from +x toward +y (radians)

    /// The origin.
    constexpr ox_polar() noexcept = default;

    /// The given radius (model units), latitude and longitude (radians).
    constexpr ox_polar(float r, float la, float lo) noexcept
        : radius(r), latitude(la), longitude(lo) {}

    /// Reads radius, latitude and longitude from three consecutive floats; a null pointer
    /// gives the origin.
    constexpr ox_polar(const float* values) noexcept {
        if (values != nullptr) {
            radius = values[0];
            latitude = values[1];
            longitude = values[2];
        }
    }

    /// Not offered: a plain 0 would be a null pointer.
    ox_polar(int) = delete;

    /// The spherical coordinates of p.
    OX_EXPORT ox_polar(const ox_3dvector& p);

    /// The point in Cartesian coordinates.
    OX_EXPORT ox_3dvector to_3dvector() const;
};

static_assert(sizeof(ox_polar) == 12, "three packed floats");
static_assert(std::is_standard_layout_v<ox_polar>, "can be read as an array of floats");
static_assert(std::is_trivially_copyable_v<ox_polar>, "a plain value");

/// True if all components are equal, without a tolerance (so a NaN equals nothing).
constexpr bool operator==(const ox_polar& a, const ox_polar& b) noexcept {
    return a.radius == b.radius && a.latitude == b.latitude && a.longitude == b.longitude;
}

/// True if a component differs, without a tolerance.
constexpr bool operator!=(const ox_polar& a, const ox_polar& b) noexcept {
    return !(a == b);
}

/// Writes v as "(radius, latitude, longitude)", each number as the stream is set to write floats.
OX_EXPORT std::ostream& operator<<(std::ostream& out, const ox_polar& v);

} // namespace ox

#endif
