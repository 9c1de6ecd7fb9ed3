#include <examples/view/tour.h>

#include <examples/view/arguments.h>

#include <cmath>

namespace view {

namespace {

constexpr float field_of_view = 36; // degrees

/// How much farther than the sphere around the building demands the camera stands.
constexpr float margin = 1.04f;

/// How much of the way to the point the last station goes.
constexpr float approach = 0.72f;

/// The camera after a quarter turn about its target, counter-clockwise as seen from above.
ox::ox_camera quarter_turn(ox::ox_camera camera) {
    // A move of the mouse over the whole height turns by the field of view.
    const float pixels = 90.f / field_of_view * picture_height;
    camera.turn_around_target(pixels, 0);
    return camera;
}

} // namespace

ox::ox_camera first_camera(const ox::ox_box& box) {
    constexpr double degree = 3.14159265358979 / 180;
    const float radius = box.size.size() / 2;
    const float distance =
        margin * radius / static_cast<float>(std::sin(field_of_view / 2 * degree));
    const ox::ox_3dvector centre = box.origin + box.size * 0.5f;
    const ox::ox_3dvector direction(-0.56f, -0.76f, 0.33f); // nearly of unit length
    return ox::ox_camera(centre + direction * distance, centre, ox::ox_3dvector(0, 0, 1),
                         field_of_view, picture_width, picture_height);
}

std::vector<station> tour(const ox::ox_camera& first, const ox::ox_3dvector& point) {
    const ox::ox_camera second = quarter_turn(first);
    const ox::ox_camera third = quarter_turn(second);
    ox::ox_camera close = first;
    close.go_toward(point, approach);
    return {{"south-west", first}, {"south-east", second}, {"north-east", third}, {"close", close}};
}

} // namespace view
