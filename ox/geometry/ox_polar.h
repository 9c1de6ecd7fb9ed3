#ifndef OX_GEOMETRY_OX_POLAR_H
#define OX_GEOMETRY_OX_POLAR_H

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
///   const ox::ox_polar north(ox::ox_3dvector(0.f, 2.f, 0.f)); // radius 2, longitude pi/2
///   const ox::ox_3dvector back = north.to_3dvector();
/// \endcode
class ox_polar {
public:
    float radius = 0.f;
    float latitude = 0.f;
    float longitude = 0.f;

    /// The origin.
    ox_polar() = default;

    /// The given radius (model units), latitude and longitude (radians).
    ox_polar(float r, float la, float lo) : radius(r), latitude(la), longitude(lo) {}

    /// Reads radius, latitude and longitude from three consecutive floats; a null pointer
    /// gives the origin.
    ox_polar(const float* values) {
        if (values != nullptr) {
            radius = values[0];
            latitude = values[1];
            longitude = values[2];
        }
    }

    /// The spherical coordinates of p.
    OX_EXPORT ox_polar(const ox_3dvector& p);

    /// The point in Cartesian coordinates.
    OX_EXPORT ox_3dvector to_3dvector() const;
};

static_assert(sizeof(ox_polar) == 12, "three packed floats");
static_assert(std::is_standard_layout_v<ox_polar>, "can be read as an array of floats");
static_assert(std::is_trivially_copyable_v<ox_polar>, "a plain value");

} // namespace ox

#endif
