#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <ox/ox_functions.h>

#ifdef OX_HAS_PROJ
#include <proj.h>
#endif

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// Calls `check(longitude, latitude)` on a grid over metropolitan France.
template <typename checker>
void over_france(const checker& check) {
    for (int i = 0; i <= 60; ++i) {
        for (int j = 0; j <= 44; ++j) {
            check(-5.0 + 0.25 * i, 41.0 + 0.25 * j);
        }
    }
}

TEST(OxLambert93, CentralMeridianHasTheFalseEastingExactly) {
    double x = 0;
    double y = 0;
    ox_longitude_latitude_to_lambert93(3.0, 46.5, x, y);
    EXPECT_EQ(x, 700000.0);
    EXPECT_NEAR(y, 6600000.0, 0.001); // the origin of the projection
}

TEST(OxLambert93, RoundTripsToABillionthOfADegreeOverFrance) {
    over_france([](double longitude, double latitude) {
        double x = 0;
        double y = 0;
        double back_longitude = 0;
        double back_latitude = 0;
        ox_longitude_latitude_to_lambert93(longitude, latitude, x, y);
        ox_lambert93_to_longitude_latitude(x, y, back_longitude, back_latitude);
        EXPECT_NEAR(back_longitude, longitude, 1e-9);
        EXPECT_NEAR(back_latitude, latitude, 1e-9);
    });
}

TEST(OxLambert93, PointsReturnFromLongitudeAndLatitudeToWellUnderAMetre) {
    for (double x = 100000; x <= 1200000; x += 50000) {
        for (double y = 6050000; y <= 7150000; y += 50000) {
            double longitude = 0;
            double latitude = 0;
            double back_x = 0;
            double back_y = 0;
            ox_lambert93_to_longitude_latitude(x, y, longitude, latitude);
            ox_longitude_latitude_to_lambert93(longitude, latitude, back_x, back_y);
            EXPECT_NEAR(back_x, x, 0.001);
            EXPECT_NEAR(back_y, y, 0.001);
        }
    }
}

TEST(OxLambert93, AgreesWithProjToAMillimetreOverFrance) {
#ifdef OX_HAS_PROJ
    PJ_CONTEXT* const context = proj_context_create();
    PJ* const lambert =
        proj_create(context, "+proj=lcc +lat_0=46.5 +lon_0=3 +lat_1=49 +lat_2=44 +x_0=700000 "
                             "+y_0=6600000 +ellps=GRS80 +units=m +no_defs");
    ASSERT_NE(lambert, nullptr);
    over_france([lambert](double longitude, double latitude) {
        double x = 0;
        double y = 0;
        ox_longitude_latitude_to_lambert93(longitude, latitude, x, y);
        const PJ_COORD in = proj_coord(proj_torad(longitude), proj_torad(latitude), 0, 0);
        const PJ_COORD expected = proj_trans(lambert, PJ_FWD, in);
        EXPECT_NEAR(x, expected.xy.x, 0.001);
        EXPECT_NEAR(y, expected.xy.y, 0.001);
    });
    proj_destroy(lambert);
    proj_context_destroy(context);
#else
    GTEST_SKIP() << "PROJ is not installed (Debian: libproj-dev)";
#endif
}

TEST(OxLambert93, PolesAndNumbersThatAreNotFiniteDoNoHarm) {
    for (const double longitude : {0.0, 1e300, infinity, nan}) {
        for (const double latitude : {90.0, -90.0, 1000.0, infinity, nan}) {
            double x = 0;
            double y = 0;
            ox_longitude_latitude_to_lambert93(longitude, latitude, x, y);
            ox_lambert93_to_longitude_latitude(longitude, latitude, x, y);
        }
    }
    double longitude = 0;
    double latitude = 0;
    ox_lambert93_to_longitude_latitude(700000.0, 12655612.049876, longitude, latitude);
    EXPECT_NEAR(latitude, 90.0, 1e-6);
}

TEST(OxLocalMeters, OneDegreeOfLatitudeLeavesTheLongitudeUnchanged) {
    double longitude = 2.25;
    double latitude = 48.0;
    ox_meters_to_longitude_latitude(ox::ox_3dvector(0, 111319.49f, 5), longitude, latitude);
    EXPECT_EQ(longitude, 2.25);
    EXPECT_NEAR(latitude, 49.0, 1e-7);
}

TEST(OxLocalMeters, LongitudeIsMovedOnTheParallelOfTheOldLatitude) {
    double longitude = 0;
    double latitude = 60;
    ox_meters_to_longitude_latitude(ox::ox_3dvector(55659.746f, 111319.49f, 0), longitude,
                                    latitude);
    EXPECT_NEAR(longitude, 1.0, 1e-6); // with the new one, 61 degrees, it would be 1.03
}

TEST(OxLocalMeters, OffsetsReturnToThePosition) {
    double from_longitude = 2.0;
    double from_latitude = 48.0;
    double longitude = 2.01;
    double latitude = 48.02;
    const ox::ox_3dvector offset =
        ox_longitude_latitude_to_meters(from_longitude, from_latitude, longitude, latitude);
    EXPECT_EQ(offset.z, 0);
    EXPECT_EQ(from_longitude, 2.0);
    ox_meters_to_longitude_latitude(offset, from_longitude, from_latitude);
    EXPECT_NEAR(from_longitude, longitude, 1e-8);
    EXPECT_NEAR(from_latitude, latitude, 1e-8);
}

TEST(OxConvertAngle, SplitsIntoDegreesMinutesAndSeconds) {
    int d = 0;
    int m = 0;
    double s = 0;
    ox_convert_angle(-12.5125, d, m, s);
    EXPECT_EQ(d, -12);
    EXPECT_EQ(m, 30);
    EXPECT_NEAR(s, 45, 1e-9);
}

TEST(OxConvertAngle, NegativeAngleBelowOneDegreeLosesItsSign) {
    int d = 7;
    int m = 0;
    double s = 7;
    ox_convert_angle(-0.5, d, m, s);
    EXPECT_EQ(d, 0);
    EXPECT_EQ(m, 30);
    EXPECT_EQ(s, 0);
}

TEST(OxConvertAngle, HugeAndUnreadableAnglesStopAtTheRangeOfInt) {
    int d = 0;
    int m = 0;
    double s = 0;
    ox_convert_angle(-1e300, d, m, s);
    EXPECT_EQ(d, -(std::numeric_limits<int>::max)());
    ox_convert_angle(infinity, d, m, s);
    EXPECT_EQ(d, (std::numeric_limits<int>::max)());
    ox_convert_angle(nan, d, m, s);
    EXPECT_EQ(d, 0);
    EXPECT_EQ(m, 0);
    EXPECT_TRUE(std::isnan(s));
}

TEST(OxInverseFunctions, AreClampedOutsideTheirDomain) {
    EXPECT_EQ(ox_acos(1.0000001f), 0.0f);
    EXPECT_EQ(ox_acos(-1.5f), 3.1415927f);
    EXPECT_EQ(ox_acos(2.0), 0.0);
    EXPECT_EQ(ox_acos(-2.0), 3.141592653589793);
    EXPECT_EQ(ox_asin(1.5f), 1.5707964f);
    EXPECT_EQ(ox_asin(-1.5f), -1.5707964f);
    EXPECT_EQ(ox_asin(2.0), 1.5707963267948966);
    EXPECT_EQ(ox_asin(-2.0), -1.5707963267948966);
}

TEST(OxInverseFunctions, InsideTheirDomainAreThoseOfTheStandardLibrary) {
    EXPECT_EQ(ox_acos(0.25), std::acos(0.25));
    EXPECT_EQ(ox_asin(0.25), std::asin(0.25));
    EXPECT_EQ(ox_acos(0.25f), static_cast<float>(std::acos(0.25)));
    EXPECT_EQ(ox_asin(-0.25f), static_cast<float>(std::asin(-0.25)));
    EXPECT_TRUE(std::isnan(ox_acos(nan)));
    EXPECT_TRUE(std::isnan(ox_asin(static_cast<float>(nan))));
}

} // namespace
