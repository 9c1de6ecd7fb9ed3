#include <ox/geometry/ox_polar.h>

#include <utility>

#include <gtest/gtest.h>

#include <tests/geometry/support.h>

using namespace geometry_test;
using ox::ox_3dvector;
using ox::ox_polar;

namespace {

void expect_polar(const ox_polar& p, float radius, float latitude, float longitude) {
    EXPECT_EQ(p.radius, radius);
    EXPECT_EQ(p.latitude, latitude);
    EXPECT_EQ(p.longitude, longitude);
}

float bearing_of(const ox_3dvector& v) {
    float bearing = 0.f;
    float tilt = 0.f;
    v.get_angles(bearing, tilt);
    return bearing;
}

float tilt_of(const ox_3dvector& v) {
    float bearing = 0.f;
    float tilt = 0.f;
    v.get_angles(bearing, tilt);
    return tilt;
}

} // namespace

TEST(OxPolar, DefaultIsTheOrigin) {
    expect_polar(ox_polar(), 0.f, 0.f, 0.f);
}

TEST(OxPolar, ComponentsAreRadiusLatitudeLongitude) {
    expect_polar(ox_polar(1.f, 2.f, 3.f), 1.f, 2.f, 3.f);
    float values[3] = {1.f, 2.f, 3.f};
    expect_polar(ox_polar(values), 1.f, 2.f, 3.f);
}

TEST(OxPolar, NullArrayGivesTheOrigin) {
    const float* none = nullptr;
    expect_polar(ox_polar(none), 0.f, 0.f, 0.f);
}

TEST(OxPolar, CopiesAndMovesItsComponents) {
    ox_polar p(1.f, 2.f, 3.f);
    ox_polar copy(p);
    expect_polar(copy, 1.f, 2.f, 3.f);
    ox_polar assigned;
    assigned = copy;
    expect_polar(assigned, 1.f, 2.f, 3.f);
    ox_polar moved;
    moved = std::move(assigned);
    expect_polar(moved, 1.f, 2.f, 3.f);
}

TEST(OxPolar, ZeroVectorGivesZeros) {
    expect_polar(ox_3dvector(), 0.f, 0.f, 0.f);
}

TEST(OxPolar, StraightUpHasLongitudeZero) {
    expect_polar(ox_3dvector(0.f, 0.f, 5.f), 5.f, 1.5707964f, 0.f);
}

TEST(OxPolar, StraightDownHasLongitudeZero) {
    expect_polar(ox_3dvector(0.f, 0.f, -5.f), 5.f, -1.5707964f, 0.f);
}

TEST(OxPolar, OppositeOfXHasLongitudePi) {
    expect_polar(ox_3dvector(-1.f, 0.f, 0.f), 1.f, 0.f, 3.1415927f);
}

TEST(OxPolar, OppositeOfYHasLongitudeMinusHalfPi) {
    expect_polar(ox_3dvector(0.f, -2.f, 0.f), 2.f, 0.f, -1.5707964f);
}

TEST(OxPolar, RoundTripReturnsThePoint) {
    sampler random(6);
    for (int i = 0; i < 5000; ++i) {
        const ox_3dvector p = random.vector(10.f);
        const ox_polar polar(p);
        EXPECT_LE(std::fabs(polar.latitude), 1.5707964f);
        EXPECT_LE(std::fabs(polar.longitude), 3.1415927f);
        // Near an axis the arc cosine loses half of the digits.
        EXPECT_LT(polar.to_3dvector().distance_to(p), 0.02f);
    }
}

TEST(OxPolar, AnglesRoundTripAwayFromThePoles) {
    sampler random(7);
    for (int i = 0; i < 5000; ++i) {
        const float radius = random.number(0.1f, 10.f);
        const float latitude = random.number(-1.4f, 1.4f);
        const ox_polar start(radius, latitude, random.number(-3.1f, 3.1f));
        const ox_polar back = start.to_3dvector();
        EXPECT_NEAR(back.radius, start.radius, 1e-5f);
        EXPECT_NEAR(back.latitude, start.latitude, 1e-4f);
        EXPECT_NEAR(back.longitude, start.longitude, 1e-2f);
    }
}

TEST(OxPolar, ConversionBackTakesTheHorizontalRadiusFirst) {
    const ox_polar p(3.f, 0.7f, 2.1f);
    const float la_cos = static_cast<float>(std::cos(static_cast<double>(0.7f)));
    const float la_sin = static_cast<float>(std::sin(static_cast<double>(0.7f)));
    const float lo_cos = static_cast<float>(std::cos(static_cast<double>(2.1f)));
    const float lo_sin = static_cast<float>(std::sin(static_cast<double>(2.1f)));
    const float horizontal = la_cos * 3.f;
    EXPECT_EQ(p.to_3dvector(), ox_3dvector(lo_cos * horizontal, lo_sin * horizontal, la_sin * 3.f));
}

TEST(OxPolar, VectorWhoseSquareUnderflowsGivesZeros) {
    expect_polar(ox_3dvector(1e-30f, 1e-30f, smallest), 0.f, 0.f, 0.f);
}

TEST(OxPolar, VectorWithNotANumberStopsAtTheRadius) {
    const ox_polar p(ox_3dvector(not_a_number, 1.f, 1.f));
    EXPECT_TRUE(std::isnan(p.radius));
    EXPECT_EQ(p.latitude, 0.f);
    EXPECT_EQ(p.longitude, 0.f);
}

TEST(GetAngles, PlusYHasBearing0AndTilt90) {
    EXPECT_EQ(bearing_of(ox_3dvector(0.f, 1.f, 0.f)), 0.f);
    EXPECT_EQ(tilt_of(ox_3dvector(0.f, 1.f, 0.f)), 90.f);
}

TEST(GetAngles, PlusXHasBearing90) {
    EXPECT_EQ(bearing_of(ox_3dvector(1.f, 0.f, 0.f)), 90.f);
}

TEST(GetAngles, MinusYHasBearing180) {
    EXPECT_EQ(bearing_of(ox_3dvector(0.f, -1.f, 0.f)), 180.f);
}

TEST(GetAngles, MinusXWrapsToBearing270) {
    EXPECT_EQ(bearing_of(ox_3dvector(-1.f, 0.f, 0.f)), 270.f);
}

TEST(GetAngles, UpHasTilt0AndDownTilt180) {
    EXPECT_EQ(tilt_of(ox_3dvector(0.f, 0.f, 2.f)), 0.f);
    EXPECT_EQ(tilt_of(ox_3dvector(0.f, 0.f, -2.f)), 180.f);
}

TEST(GetAngles, ZeroVectorHasBearing90AndTilt90) {
    EXPECT_EQ(bearing_of(ox_3dvector()), 90.f);
    EXPECT_EQ(tilt_of(ox_3dvector()), 90.f);
}

TEST(GetAngles, BearingStaysWithin0And360) {
    sampler random(8);
    for (int i = 0; i < 5000; ++i) {
        const float bearing = bearing_of(random.vector(1.f));
        EXPECT_GE(bearing, 0.f);
        EXPECT_LE(bearing, 360.f);
    }
}

TEST(GetAngles, BearingOfAVectorJustWestOfNorthMayRoundToExactly360) {
    // The smallest angle beyond a quarter turn vanishes when 360 degrees are added to it.
    const float beyond = std::nextafter(1.5707964f, 2.f);
    float wrapped = 90.f - beyond * 180.f / 3.1415927f;
    ASSERT_LT(wrapped, 0.f);
    wrapped += 360.f;
    ASSERT_EQ(wrapped, 360.f);
    EXPECT_EQ(bearing_of(ox_3dvector(-1.2e-7f, 1.f, 0.f)), 360.f);
}

TEST(GetAngles, VectorMayLendItsOwnComponents) {
    ox_3dvector v(0.f, -1.f, 0.f);
    v.get_angles(v.x, v.y);
    EXPECT_EQ(v, ox_3dvector(180.f, 90.f, 0.f));
}

TEST(GetAngles, HostileValuesEndAndStayWithinTheRangeOrAreNotNumbers) {
    for_each_hostile_vector([](const ox_3dvector& hostile) {
        float bearing = 0.f;
        float tilt = 0.f;
        hostile.get_angles(bearing, tilt);
        EXPECT_TRUE(std::isnan(bearing) || (bearing >= 0.f && bearing <= 360.f));
        EXPECT_TRUE(std::isnan(tilt) || (tilt >= 0.f && tilt <= 180.f));
        ox_polar(hostile).to_3dvector();
        ox_polar(hostile.x, hostile.y, hostile.z).to_3dvector();
    });
}
