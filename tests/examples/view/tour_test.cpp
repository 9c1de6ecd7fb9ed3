#include <examples/view/tour.h>

#include <gtest/gtest.h>

namespace {

ox::ox_box house() {
    ox::ox_box box;
    box.enlarge(ox::ox_3dvector(0, 0, 0));
    box.enlarge(ox::ox_3dvector(12, 9, 10));
    return box;
}

TEST(ViewTour, TheFirstPictureHoldsTheWholeBox) {
    ox::ox_camera camera = view::first_camera(house());
    for (int corner = 0; corner < 8; ++corner) {
        const ox::ox_3dvector p(corner & 1 ? 12.f : 0.f, corner & 2 ? 9.f : 0.f,
                                corner & 4 ? 10.f : 0.f);
        float x = -1;
        float y = -1;
        ASSERT_TRUE(camera.get_projection(p, x, y));
        EXPECT_GT(x, 0);
        EXPECT_LT(x, camera.get_width());
        EXPECT_GT(y, 0);
        EXPECT_LT(y, camera.get_height());
    }
}

TEST(ViewTour, QuarterTurnsLeadAroundTheTarget) {
    const ox::ox_camera first = view::first_camera(house());
    const auto stations = view::tour(first, ox::ox_3dvector(1, 0, 1));
    ASSERT_EQ(4u, stations.size());
    const ox::ox_3dvector from = first.get_position() - first.get_target();
    const ox::ox_3dvector quarter = stations[1].camera.get_position() - first.get_target();
    const ox::ox_3dvector half = stations[2].camera.get_position() - first.get_target();
    EXPECT_NEAR(-from.y, quarter.x, 0.01f);
    EXPECT_NEAR(from.x, quarter.y, 0.01f);
    EXPECT_NEAR(-from.x, half.x, 0.01f);
    EXPECT_NEAR(-from.y, half.y, 0.01f);
    EXPECT_NEAR(from.z, half.z, 0.01f);
}

TEST(ViewTour, ThePointStaysWhereItIsInTheCloseView) {
    const ox::ox_3dvector point(9, 0, 0.8f);
    auto stations = view::tour(view::first_camera(house()), point);
    float x = 0, y = 0, close_x = 0, close_y = 0;
    ASSERT_TRUE(stations[0].camera.get_projection(point, x, y));
    ASSERT_TRUE(stations[3].camera.get_projection(point, close_x, close_y));
    EXPECT_NEAR(x, close_x, 0.05f);
    EXPECT_NEAR(y, close_y, 0.05f);
}

} // namespace
