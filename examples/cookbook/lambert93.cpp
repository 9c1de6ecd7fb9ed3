// A building site on the French national grid: its position, and metres about a reference.
#include <ox/ox_functions.h>

#include <cstdio>

int main() {
    const double x = 652469.02, y = 6862035.26; // metres, Lambert-93
    double longitude = 0, latitude = 0;
    ox_lambert93_to_longitude_latitude(x, y, longitude, latitude);
    int degrees = 0, minutes = 0;
    double seconds = 0;
    ox_convert_angle(latitude, degrees, minutes, seconds);
    std::printf("longitude %.6f, latitude %.6f (%d deg %d' %.2f\")\n", longitude, latitude, degrees,
                minutes, seconds);

    double back_x = 0, back_y = 0;
    ox_longitude_latitude_to_lambert93(longitude, latitude, back_x, back_y);
    std::printf("and back: %.2f, %.2f\n", back_x, back_y);

    // Floats hold 0.5 m there: take the coordinates from a point of the site, in double.
    const float coarse = static_cast<float>(y);
    std::printf("as a float y is %.2f\n", static_cast<double>(coarse));
    double corner_longitude = longitude + 0.001, corner_latitude = latitude + 0.0005;
    const ox::ox_3dvector corner =
        ox_longitude_latitude_to_meters(longitude, latitude, corner_longitude, corner_latitude);
    std::printf("the corner lies %.2f m east, %.2f m north\n", static_cast<double>(corner.x),
                static_cast<double>(corner.y));
}
