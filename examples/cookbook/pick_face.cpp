// The face of a solid under the mouse: a ray of the camera, and the nearest face that it meets.
#include <ox/display/ox_camera.h>
#include <ox/solid/ox_solid.h>

#include <cstdio>

int main() {
    ox::ox_solid house;
    house.brick(ox::ox_3dvector(0, 0, 0), 8.0f, 6.0f, 3.0f); // metres

    const ox::ox_3dvector eye(4, -20, 8);
    ox::ox_camera camera(eye, ox::ox_3dvector(4, 0, 1.5f), ox::ox_3dvector(0, 0, 1), 40.0f, 800,
                         600);

    for (const float y : {100.0f, 290.0f, 350.0f}) {
        const ox::ox_3dvector ray = camera.get_ray_direction(400, y);
        int picked = -1;
        float nearest = 0.0f;
        ox::ox_3dvector place;
        for (int i = 0; i < house.get_faces().size(); ++i) {
            ox::ox_3dvector hit;
            float distance = 0.0f;
            if (house.get_faces()[i]->intersect_by_ray(eye, ray, hit, distance) &&
                (picked < 0 || distance < nearest)) {
                picked = i;
                nearest = distance;
                place = hit;
            }
        }
        std::printf("pixel (400, %.0f): face %d", static_cast<double>(y), picked);
        if (picked >= 0) {
            std::printf(" at (%.2f, %.2f, %.2f), %.2f m away", static_cast<double>(place.x),
                        static_cast<double>(place.y), static_cast<double>(place.z),
                        static_cast<double>(nearest));
        }
        std::printf("\n");
    }
}
