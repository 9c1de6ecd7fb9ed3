#include <examples/view/drawing.h>

#include <examples/building/drawing.h>

#include <gtest/gtest.h>

namespace {

using building::element;

/// Whether the ring of the snapped point passes through the pixel beside the point's place.
bool has_ring(const ox_examples::image& picture, ox::ox_camera& camera, const ox::ox_3dvector& p) {
    float x = 0;
    float y = 0;
    if (!camera.get_projection(p, x, y)) {
        return false;
    }
    constexpr float ring_radius = 18; // pixels
    const unsigned char* const pixel =
        picture.pixel(static_cast<int>(x), static_cast<int>(y + ring_radius));
    return pixel[0] > 150 && pixel[1] < 120 && pixel[2] < 120;
}

TEST(ViewDrawing, EveryPictureMarksTheSnappedPointWhereTheCameraSeesIt) {
    std::vector<element> cube(1);
    cube[0].solid.brick(ox::ox_3dvector(0, 0, 0), 4, 4, 4);
    const ox::ox_3dvector corner(4, 0, 0);
    view::marks m;
    m.picked = ox::ox_3dvector(3.9f, 0, 0.1f);
    m.snapped = corner;
    m.steps = view::snap_to_faces(cube, m.picked);
    ASSERT_EQ(3u, m.steps.size());
    for (view::station& s : view::tour(view::first_camera(building::bounding_box(cube)), corner)) {
        const ox_examples::image picture = view::draw_station(cube, s, m);
        EXPECT_TRUE(has_ring(picture, s.camera, corner)) << s.name;
    }
}

TEST(ViewDrawing, PointsBehindTheEyeDoNoHarm) {
    std::vector<element> cube(1);
    cube[0].solid.brick(ox::ox_3dvector(0, 0, 0), 4, 4, 4);
    view::station s = {"away", view::first_camera(building::bounding_box(cube))};
    view::marks m;
    m.picked = m.snapped = s.camera.get_position() * 2.f - s.camera.get_target();
    EXPECT_EQ(1200, view::draw_station(cube, s, m).width);
}

} // namespace
