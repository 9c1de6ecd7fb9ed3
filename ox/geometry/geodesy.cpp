// Lambert-93 (IGN, note NTG 71: conformal conic projection) and metres on a local sphere.

#include <ox/ox_functions.h>

#include <cmath>

namespace ox {

namespace {

constexpr double pi = 3.141592653589793;

// Lambert-93: metres, radians, and the shape of the GRS 80 ellipsoid.
constexpr double false_easting = 700000.0;
constexpr double pole_northing = 12655612.049876; // of the point where the meridians meet
constexpr double cone_constant = 11754255.426096;
constexpr double cone_exponent = 0.725607765053267; // sine of the cone's latitude
constexpr double eccentricity = 0.0818191910428158;
constexpr double central_meridian_degrees = 3.0;
constexpr double central_meridian = 0.05235987755982988;

/// The error of the latitude shrinks by two powers of ten with each step.
constexpr int latitude_steps = 7;

// The local sphere, in metres.
constexpr double earth_circumference = 40075016.68557849;
constexpr double meters_per_degree_of_latitude = 111319.49079327358;

double meters_per_degree_of_longitude(double latitude) {
    return std::cos(latitude * pi / 180.0) * earth_circumference / 360.0;
}

double isometric_latitude(double sine_of_latitude) {
    return std::atanh(sine_of_latitude) -
           eccentricity * std::atanh(eccentricity * sine_of_latitude);
}

/// The sine of the latitude, in degrees the result of the fixed point q = tanh(e atanh(e q) + L).
double sine_of_latitude(double isometric) {
    double sine = std::sin(1.0);
    for (int step = 0; step < latitude_steps; ++step) {
        sine = std::tanh(eccentricity * std::atanh(eccentricity * sine) + isometric);
    }
    return sine;
}

} // namespace

void ox_longitude_latitude_to_lambert93(double longitude, double latitude, double& x, double& y) {
    const double gamma = (longitude - central_meridian_degrees) * cone_exponent / 180.0 * pi;
    const double isometric = isometric_latitude(std::sin(latitude / 180.0 * pi));
    const double radius = std::exp(-cone_exponent * isometric) * cone_constant;
    x = std::sin(gamma) * radius + false_easting;
    y = pole_northing - std::cos(gamma) * radius;
}

void ox_lambert93_to_longitude_latitude(double x, double y, double& longitude, double& latitude) {
    const double dx = x - false_easting;
    const double dy = y - pole_northing;
    const double isometric = std::log(cone_constant / std::sqrt(dx * dx + dy * dy)) / cone_exponent;
    longitude = (std::atan(-dx / dy) / cone_exponent + central_meridian) / pi * 180.0;
    latitude = std::asin(sine_of_latitude(isometric)) / pi * 180.0;
}

ox_3dvector ox_longitude_latitude_to_meters(double& ref_longitude, double& ref_latitude,
                                            double& longitude, double& latitude) {
    const double east = meters_per_degree_of_longitude(ref_latitude) * (longitude - ref_longitude);
    const double north = (latitude - ref_latitude) * meters_per_degree_of_latitude;
    return ox_3dvector(static_cast<float>(east), static_cast<float>(north), 0.0f);
}

void ox_meters_to_longitude_latitude(const ox_3dvector& offset, double& longitude,
                                     double& latitude) {
    longitude += static_cast<double>(offset.x) / meters_per_degree_of_longitude(latitude);
    latitude += static_cast<double>(offset.y) / meters_per_degree_of_latitude;
}

} // namespace ox
