// The volumes of random solids obey the laws of sets, in every position: what a union adds, the
// intersection takes away; a difference and an intersection make up the whole; so do two halves.

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include <tests/solid/csg/judged_results.h>
#include <tests/solid/csg/shapes.h>

namespace {

using csg_test::combine;
using csg_test::operation;
using ox::ox_3dvector;
using ox::ox_csg;
using ox::ox_solid;
using support::generator;

constexpr int usual_pairs = 400;
constexpr int all_pairs = 100000; // of each kind

/// The results of two solids and what is promised of their volumes.
struct combined_pair {
    combined_pair(const ox_solid& first, const ox_solid& second, double coincident_area)
        : a(first), b(second), united(combine(a, operation::unites, b)),
          united_the_other_way(combine(b, operation::unites, a)),
          common(combine(a, operation::intersects, b)), rest(combine(a, operation::substracts, b)),
          rest_of_b(combine(b, operation::substracts, a)),
          bound(csg_test::volume_bound(a.get_surface_area() + b.get_surface_area(),
                                       coincident_area)) {}

    ox_solid a;
    ox_solid b;
    ox_solid united;
    ox_solid united_the_other_way;
    ox_solid common;
    ox_solid rest;
    ox_solid rest_of_b;
    double bound;
};

void expect_laws(const combined_pair& pair) {
    const double a = pair.a.get_volume();
    const double b = pair.b.get_volume();
    const double common = pair.common.get_volume();
    EXPECT_NEAR(pair.united.get_volume() + common, a + b, 2.0 * pair.bound) << "inclusion";
    EXPECT_NEAR(pair.rest.get_volume() + common, a, 2.0 * pair.bound) << "difference";
    EXPECT_NEAR(pair.rest_of_b.get_volume() + common, b, 2.0 * pair.bound) << "difference";
    EXPECT_NEAR(pair.united.get_volume(), pair.united_the_other_way.get_volume(), pair.bound)
        << "commutation";
    EXPECT_GE(common, -pair.bound);
    EXPECT_LE(common, std::min(a, b) + pair.bound);
    EXPECT_GE(pair.united.get_volume(), std::max(a, b) - pair.bound);
    for (const ox_solid* result :
         {&pair.united, &pair.united_the_other_way, &pair.common, &pair.rest, &pair.rest_of_b}) {
        EXPECT_TRUE(csg_test::is_closed(*result));
    }
}

TEST(CsgLaws, HoldForSolidsInGeneralPosition) {
    generator random(81);
    for (int i = 0; i < support::all_or(all_pairs, usual_pairs); ++i) {
        SCOPED_TRACE(i);
        const ox_solid a = csg_test::random_solid(random);
        const ox_solid b = csg_test::random_solid(random);
        expect_laws(combined_pair(a, b, 0.0));
    }
}

/// The top of one brick and the top of another that is tilted against it cross, or nearly
/// coincide.
TEST(CsgLaws, HoldForFacesThatCrossAtShallowAngles) {
    generator random(82);
    for (int i = 0; i < support::all_or(all_pairs, usual_pairs); ++i) {
        const double degrees = 0.01 * std::pow(1100.0, random.real(0.0, 1.0));
        SCOPED_TRACE(std::to_string(i) + ", " + std::to_string(degrees) + " degrees");
        const support::frame frame = support::random_frame(random);
        const support::frame other = csg_test::tilted(frame, random.real(0.0, 1.0), degrees);
        const ox_3dvector place = support::random_point(random, 20.0);
        const ox_solid a = support::random_brick(random, place, frame);
        const double across = random.real(-1.0, 1.0);
        const double along = random.real(-1.0, 1.0);
        const double lift = random.one_in(2) ? 0.0 : random.real(-0.01, 0.01);
        const ox_solid b = support::random_brick(
            random, csg_test::point_in(frame, place, across, along, lift), other);
        expect_laws(combined_pair(a, b, std::min(a.get_surface_area(), b.get_surface_area())));
    }
}

/// Bricks of whole sizes at whole places of one turned frame, where nearly everything touches.
TEST(CsgLaws, HoldForSolidsThatTouchAlongGeneralAxes) {
    generator random(83);
    for (int i = 0; i < support::all_or(all_pairs, usual_pairs); ++i) {
        SCOPED_TRACE(i);
        const support::frame frame = support::random_frame(random);
        const ox_3dvector place = support::random_point(random, 200.0);
        const auto whole_column = [&] {
            const int x = random.between(0, 2);
            const int y = random.between(0, 2);
            const int sides = random.between(3, 8);
            const int height = 2 * random.between(1, 2);
            return csg_test::column(frame, csg_test::point_in(frame, place, x, y, 0.0), sides, 2.0,
                                    height);
        };
        const ox_solid a = whole_column();
        const ox_solid b = whole_column();
        expect_laws(combined_pair(a, b, std::min(a.get_surface_area(), b.get_surface_area())));
    }
}

TEST(CsgLaws, TwoHalvesMakeUpTheWhole) {
    generator random(84);
    for (int i = 0; i < support::all_or(all_pairs, usual_pairs); ++i) {
        SCOPED_TRACE(i);
        const ox_solid solid = csg_test::random_solid(random);
        const ox_3dvector point = support::random_point(random, 1.0);
        const ox_3dvector normal = support::random_frame(random).z * 3.0f;
        double sum = 0.0;
        for (const ox_3dvector& away : {normal, -normal}) {
            ox_csg csg;
            csg.unites(solid);
            csg.clips(point, away);
            ASSERT_TRUE(csg.compute());
            const ox_solid half = csg.get_solid();
            EXPECT_TRUE(csg_test::is_closed(half));
            sum += half.get_volume();
        }
        EXPECT_NEAR(sum, solid.get_volume(),
                    2.0 * csg_test::volume_bound(solid.get_surface_area(), 0.0));
    }
}

TEST(CsgLaws, ThreeSolidsObeyInclusionAndExclusion) {
    generator random(85);
    for (int i = 0; i < support::all_or(20000, 150); ++i) {
        SCOPED_TRACE(i);
        const ox_solid a = csg_test::random_solid(random);
        const ox_solid b = csg_test::random_solid(random);
        const ox_solid c = csg_test::random_solid(random);
        const auto common = [](const ox_solid& x, const ox_solid& y) {
            return combine(x, operation::intersects, y);
        };
        const double of_pairs =
            common(a, b).get_volume() + common(b, c).get_volume() + common(a, c).get_volume();
        const double of_all = common(common(a, b), c).get_volume();
        const ox_solid united = csg_test::unite_all({a, b, c});
        const double area = a.get_surface_area() + b.get_surface_area() + c.get_surface_area();
        EXPECT_TRUE(csg_test::is_closed(united));
        EXPECT_NEAR(united.get_volume(),
                    a.get_volume() + b.get_volume() + c.get_volume() - of_pairs + of_all,
                    5.0 * csg_test::volume_bound(area, 0.0));
    }
}

TEST(CsgLaws, TheTrianglesAreClosedAndEncloseWhatTheFacesDo) {
    generator random(86);
    for (int i = 0; i < support::all_or(5000, 150); ++i) {
        SCOPED_TRACE(i);
        ox_csg csg;
        csg.unites(csg_test::random_solid(random));
        csg.substracts(csg_test::random_solid(random));
        csg.unites(csg_test::random_solid(random));
        ASSERT_TRUE(csg.compute());
        const ox::ox_triangle_set triangles = csg.get_triangles();
        EXPECT_TRUE(csg_test::is_closed_by_indices(triangles));
        const ox_solid solid = csg.get_solid();
        EXPECT_NEAR(csg_test::to_solid(triangles).get_volume(), solid.get_volume(),
                    csg_test::volume_bound(solid.get_surface_area(), 0.0));
    }
}

/// Columns whose sides pass through edges of each other.
void expect_laws_of_columns(const ox_solid& a, const ox_solid& b) {
    expect_laws(combined_pair(a, b, std::min(a.get_surface_area(), b.get_surface_area())));
}

TEST(CsgLaws, HoldWhereASliverOfASideLiesInThePlaneOfTheNextSide) {
    const support::frame first = {ox_3dvector(-0.486280859f, -0.776551783f, -0.400622308f),
                                  ox_3dvector(-0.873159111f, 0.414249361f, 0.256886452f),
                                  ox_3dvector(-0.0335281044f, 0.474725962f, -0.879494786f)};
    const ox_3dvector first_place(-15.6805515f, 41.0274506f, 173.356491f);
    expect_laws_of_columns(
        csg_test::column(first, csg_test::point_in(first, first_place, 0.0, 2.0, 0.0), 4, 2.0, 2.0),
        csg_test::column(first, first_place, 8, 2.0, 4.0));
    const support::frame second = {ox_3dvector(-0.270167828f, 0.921080291f, 0.280393451f),
                                   ox_3dvector(0.425605416f, -0.146975785f, 0.892893136f),
                                   ox_3dvector(0.863637269f, 0.360567957f, -0.352308631f)};
    const ox_3dvector second_place(36.1119766f, 90.5888824f, -110.809494f);
    expect_laws_of_columns(
        csg_test::column(second, csg_test::point_in(second, second_place, 0.0, 1.0, 0.0), 3, 2.0,
                         2.0),
        csg_test::column(second, csg_test::point_in(second, second_place, 1.0, 0.0, 0.0), 6, 2.0,
                         4.0));
}

} // namespace
