// Degrees, minutes and seconds, and inverse trigonometry that forgives roundings.

#include <ox/ox_functions.h>

#include <cmath>
#include <limits>

#include <ox/internal/angles.h>

namespace ox {

using namespace internal;

namespace {

constexpr double half_turn_double = 3.141592653589793;
constexpr double quarter_turn_double = 1.5707963267948966;

/// The whole part of a number that is not negative; the largest int when it does not fit one, 0
/// when it is not a number.
int whole_part(double number) {
    constexpr int largest = (std::numeric_limits<int>::max)();
    if (number >= static_cast<double>(largest)) {
        return largest;
    }
    return number > 0.0 ? static_cast<int>(number) : 0;
}

} // namespace

float ox_acos(float x) {
    if (x >= 1.0f) {
        return 0.0f;
    }
    return x <= -1.0f ? half_turn : rounded_acos(x);
}

double ox_acos(double x) {
    if (x >= 1.0) {
        return 0.0;
    }
    return x <= -1.0 ? half_turn_double : std::acos(x);
}

float ox_asin(float x) {
    if (x >= 1.0f) {
        return quarter_turn;
    }
    return x <= -1.0f ? -quarter_turn : rounded_asin(x);
}

double ox_asin(double x) {
    if (x >= 1.0) {
        return quarter_turn_double;
    }
    return x <= -1.0 ? -quarter_turn_double : std::asin(x);
}

void ox_convert_angle(double degrees, int& d, int& m, double& s) {
    const double magnitude = std::fabs(degrees);
    const int whole_degrees = whole_part(magnitude);
    const double minutes = (magnitude - whole_degrees) * 60.0;
    const int whole_minutes = whole_part(minutes);
    d = degrees < 0.0 ? -whole_degrees : whole_degrees;
    m = whole_minutes;
    s = (minutes - whole_minutes) * 60.0;
}

} // namespace ox
