#include <ox/geometry/ox_polar.h>

#include <ox/internal/angles.h>
#include <ox/ox_functions.h>

namespace ox {

using namespace internal;

ox_polar::ox_polar(const ox_3dvector& p) : radius(p.size()) {
    if (!(radius > 0.0f)) {
        return;
    }
    const float to_unit = 1.0f / radius;
    latitude = ox_asin(to_unit * p.z);

    const float horizontal = rounded_cos(latitude);
    if (!(horizontal > 0.0f)) {
        return;
    }
    const float to_horizontal_unit = 1.0f / horizontal;
    const float east = (to_unit * p.x) * to_horizontal_unit;
    const float north = (to_unit * p.y) * to_horizontal_unit;
    longitude = ox_acos(east);
    if (north < 0.0f) {
        longitude = -longitude;
    }
}

ox_3dvector ox_polar::to_3dvector() const {
    const float horizontal = rounded_cos(latitude) * radius;
    return ox_3dvector(rounded_cos(longitude) * horizontal, rounded_sin(longitude) * horizontal,
                       rounded_sin(latitude) * radius);
}

void ox_3dvector::get_angles(float& bearing, float& tilt) const {
    const ox_polar direction(*this);
    // The longitude lies in [-pi, pi] or is NaN, so at most one turn is added or taken away.
    float heading = 90.0f - to_degrees(direction.longitude);
    if (heading < 0.0f) {
        heading += 360.0f;
    }
    if (heading > 360.0f) {
        heading -= 360.0f;
    }
    bearing = heading;
    tilt = 90.0f - to_degrees(direction.latitude);
}

} // namespace ox
