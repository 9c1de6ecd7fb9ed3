#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <ox/display/ox_camera.h>
#include <ox/ox_functions.h>

namespace {

using ox::ox_3dvector;
using ox::ox_camera;

ox_camera along_x() {
    return ox_camera(ox_3dvector(0, 0, 0), ox_3dvector(1, 0, 0), ox_3dvector(0, 0, 1), 90, 200,
                     100);
}

void expect_near(const ox_3dvector& a, const ox_3dvector& b, float error = 1e-5f) {
    EXPECT_LE(a.distance_to(b), error) << a.x << ' ' << a.y << ' ' << a.z;
}

TEST(OxCamera, TargetIsInTheMiddleOfTheWindow) {
    ox_camera camera = along_x();
    float x = 0;
    float y = 0;
    EXPECT_TRUE(camera.get_projection(ox_3dvector(1, 0, 0), x, y));
    EXPECT_NEAR(x, 100, 1e-4);
    EXPECT_NEAR(y, 50, 1e-4);
    expect_near(camera.get_ray_direction(100, 50), ox_3dvector(1, 0, 0));
}

TEST(OxCamera, PixelsRunToTheRightAndDown) {
    ox_camera camera = along_x();
    float x = 0;
    float y = 0;
    EXPECT_TRUE(camera.get_projection(ox_3dvector(1, 2, 1), x, y)); // far left, top
    EXPECT_NEAR(x, 0, 1e-3);
    EXPECT_NEAR(y, 0, 1e-3);
    EXPECT_TRUE(camera.get_projection(ox_3dvector(1, -2, -1), x, y));
    EXPECT_NEAR(x, 200, 1e-3);
    EXPECT_NEAR(y, 100, 1e-3);
}

TEST(OxCamera, PointBehindOrBesideTheEyeHasNoProjection) {
    ox_camera camera = along_x();
    float x = 7;
    float y = 8;
    EXPECT_FALSE(camera.get_projection(ox_3dvector(-1, 0, 0), x, y));
    EXPECT_FALSE(camera.get_projection(ox_3dvector(0, 3, 1), x, y));
    EXPECT_FALSE(camera.get_projection(ox_3dvector(0, 0, 0), x, y));
    EXPECT_EQ(x, 7);
    EXPECT_EQ(y, 8);
}

TEST(OxCamera, RayThroughTheProjectionOfAPointLeadsToThePoint) {
    ox_camera camera(ox_3dvector(3, -2, 5), ox_3dvector(-4, 6, 1), ox_3dvector(0, 0, 1), 40, 640,
                     480);
    const ox_3dvector point(-2, 3, 2);
    float x = 0;
    float y = 0;
    ASSERT_TRUE(camera.get_projection(point, x, y));
    ox_3dvector expected = point - camera.get_position();
    expected.normalize();
    expect_near(camera.get_ray_direction(x, y), expected);
}

TEST(OxCamera, DateChangesOnlyWithTheCamera) {
    ox_camera camera = along_x();
    const unsigned int date = camera.get_precompute_date();
    EXPECT_EQ(date, ox_get_date());
    camera.set_position(camera.get_position());
    camera.set_target(ox_3dvector(1, 0, 0));
    camera.set_upaxis(ox_3dvector(0, 0, 1));
    camera.set_angle(90);
    camera.set_width(200);
    camera.set_height(100);
    camera.go_toward(ox_3dvector(9, 9, 9), 0);
    EXPECT_EQ(camera.get_precompute_date(), date);
    camera.set_width(201);
    EXPECT_EQ(camera.get_precompute_date(), date + 1);
    EXPECT_EQ(camera.get_precompute_date(), date + 1);
}

TEST(OxCamera, OrbitStopsAtAnElevationOf1_57) {
    ox_camera camera = along_x();
    camera.turn_around_target(0, 1e6f);
    const ox_3dvector view = camera.get_position() - camera.get_target();
    EXPECT_NEAR(view.z, std::sin(1.57), 1e-6);
    EXPECT_NEAR(std::asin(view.z / view.size()), 1.57, 1e-3);
    EXPECT_EQ(camera.get_target(), ox_3dvector(1, 0, 0));
}

TEST(OxCamera, TurnOfAWholeWindowHeightIsTheFieldOfView) {
    ox_camera camera = along_x();
    camera.turn_around_position(100, 0); // 90 degrees
    expect_near(camera.get_target(), ox_3dvector(0, 1, 0));
    EXPECT_EQ(camera.get_position(), ox_3dvector(0, 0, 0));
}

TEST(OxCamera, TravellingFollowsTheMouseAtTheDistanceOfTheTarget) {
    ox_camera camera = along_x();
    float x = 0;
    float y = 0;
    camera.get_projection(ox_3dvector(1, 0, 0), x, y);
    camera.do_travelling(10, -5);
    camera.get_projection(ox_3dvector(1, 0, 0), x, y);
    EXPECT_NEAR(x, 110, 1e-3);
    EXPECT_NEAR(y, 45, 1e-3);
}

TEST(OxCamera, TravellingBeforeTheFirstQueryMovesNothing) {
    ox_camera camera = along_x();
    camera.do_travelling(10, 5);
    EXPECT_EQ(camera.get_position(), ox_3dvector(0, 0, 0));
}

TEST(OxCamera, TravellingUsesTheStepsOfTheLastQueryNotOfLaterChanges) {
    ox_camera before = along_x();
    ox_camera after = along_x();
    before.get_precompute_date();
    after.get_precompute_date();
    after.set_height(1000); // the steps would be a tenth
    before.do_travelling(10, 0);
    after.do_travelling(10, 0);
    EXPECT_EQ(after.get_position(), before.get_position());
}

TEST(OxCamera, OrbitsTakeZAsVerticalWhateverTheUpAxisIs) {
    ox_camera usual = along_x();
    ox_camera lying = along_x();
    lying.set_upaxis(ox_3dvector(0, 1, 0));
    usual.turn_around_target(13, 7);
    lying.turn_around_target(13, 7);
    EXPECT_EQ(lying.get_position(), usual.get_position());
    usual.turn_around_position(13, 7);
    lying.turn_around_position(13, 7);
    EXPECT_EQ(lying.get_target(), usual.get_target());
}

TEST(OxCamera, CopiesKeepTheDateAndWhetherItIsDue) {
    ox_camera camera = along_x();
    const unsigned int date = camera.get_precompute_date();
    ox_camera copy(camera);
    EXPECT_EQ(copy.get_precompute_date(), date);
    camera.set_angle(30);
    ox_camera assigned;
    assigned = camera;
    EXPECT_EQ(assigned.get_precompute_date(), date + 1);
    EXPECT_EQ(camera.get_precompute_date(), date + 2);
    EXPECT_EQ(copy.get_precompute_date(), date);
}

TEST(OxCamera, GoingTowardAPointByAFactorOf1MovesTheEyeOntoIt) {
    ox_camera camera = along_x();
    camera.go_toward(ox_3dvector(4, 5, 6), 1);
    EXPECT_EQ(camera.get_position(), ox_3dvector(4, 5, 6));
    EXPECT_EQ(camera.get_target(), ox_3dvector(5, 5, 6));
}

TEST(OxCamera, DefaultCameraWithoutASizeIsAnswered) {
    ox_camera camera;
    EXPECT_EQ(camera.get_angle(), 30);
    EXPECT_EQ(camera.get_upaxis(), ox_3dvector(0, 0, 1));
    EXPECT_EQ(camera.get_height(), 0);
    float x = 0;
    float y = 0;
    camera.set_target(ox_3dvector(1, 0, 0));
    camera.get_projection(ox_3dvector(2, 1, 1), x, y);
    camera.get_ray_direction(0, 0);
    camera.turn_around_position(1, 1);
    camera.turn_around_target(1, 1);
    camera.do_travelling(1, 1);
    camera.get_precompute_date();
}

TEST(OxCamera, PointOfADepthThatIsNoNumberHasNoProjection) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    ox_camera camera(ox_3dvector(0, 0, 0), ox_3dvector(1, 0, 0), ox_3dvector(0, 0, 1), 60, 10, 10);
    float x = 7;
    float y = 8;
    EXPECT_FALSE(camera.get_projection(ox_3dvector(nan, 0, 0), x, y));
    EXPECT_EQ(x, 7);
    EXPECT_EQ(y, 8);
}

TEST(OxCamera, UpAxisAlongTheViewAndHostileNumbersAreAnswered) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    ox_camera camera(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1), ox_3dvector(0, 0, 1), 60, 10, 10);
    float x = 0;
    float y = 0;
    expect_near(camera.get_ray_direction(0, 0), ox_3dvector(0, 0, 1));
    camera.set_angle(nan);
    camera.set_position(ox_3dvector(nan, 0, 1e38f));
    camera.set_width((std::numeric_limits<int>::min)());
    EXPECT_FALSE(camera.get_projection(ox_3dvector(1, 1, 1), x, y));
    camera.turn_around_target(1, nan);
}

} // namespace
