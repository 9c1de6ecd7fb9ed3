#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include <ox/solid/internal/csg/exact/plane.h>
#include <ox/solid/internal/csg/exact/point_table.h>

#include <tests/reference/plain_dice.h>
#include <tests/reference/plain_integer.h>

namespace {

using namespace ox::internal::csg;
using namespace ox::internal::csg::exact;
using reference::plain_integer;
using plain_point = std::array<plain_integer, 3>;

constexpr std::int64_t largest = std::int64_t(1) << 37;

/// Small, large and extreme coordinates.
std::int64_t random_coordinate(std::mt19937_64& engine) {
    switch (engine() % 4) {
    case 0:
        return static_cast<std::int64_t>(engine() % 5) - 2;
    case 1:
        return engine() % 2 == 0 ? largest : -largest;
    default:
        return static_cast<std::int64_t>(engine() % static_cast<std::uint64_t>(2 * largest)) -
               largest;
    }
}

grid_point random_point(std::mt19937_64& engine) {
    const std::int64_t x = random_coordinate(engine);
    const std::int64_t y = random_coordinate(engine);
    return {x, y, random_coordinate(engine)};
}

/// A point near the middle of two, or exactly there: nearly in a plane with both.
grid_point middle_of(const grid_point& a, const grid_point& b, std::mt19937_64& engine) {
    const auto off = static_cast<std::int64_t>(engine() % 2);
    return {(a.x + b.x) / 2, (a.y + b.y) / 2, (a.z + b.z) / 2 + (a.z < largest - 1 ? off : 0)};
}

plain_point difference(const grid_point& a, const grid_point& b) {
    return {plain_integer(b.x - a.x), plain_integer(b.y - a.y), plain_integer(b.z - a.z)};
}

plain_integer determinant(const plain_point& u, const plain_point& v, const plain_point& w) {
    return u[0] * (v[1] * w[2] - v[2] * w[1]) + u[1] * (v[2] * w[0] - v[0] * w[2]) +
           u[2] * (v[0] * w[1] - v[1] * w[0]);
}

int plain_orientation(const grid_point& a, const grid_point& b, const grid_point& c,
                      const grid_point& d) {
    return determinant(difference(a, b), difference(a, c), difference(a, d)).sign();
}

TEST(CsgPredicates, TheOrientationOfFourPointsIsExactUpToTheEndsOfTheGrid) {
    std::mt19937_64 engine(1);
    for (int i = 0; i < 4000; ++i) {
        const grid_point a = random_point(engine);
        const grid_point b = random_point(engine);
        const grid_point c = random_point(engine);
        const grid_point d = i % 2 == 0 ? random_point(engine) : middle_of(a, b, engine);
        EXPECT_EQ(orientation(a, b, c, d), plain_orientation(a, b, c, d));
        EXPECT_EQ(side_of(d, plane_through(a, b, c)), plain_orientation(a, b, c, d));
    }
}

TEST(CsgPredicates, TheTurnOfThreePointsIsExactAlongEveryAxis) {
    std::mt19937_64 engine(2);
    for (int i = 0; i < 4000; ++i) {
        const grid_point a = random_point(engine);
        const grid_point b = random_point(engine);
        const grid_point c = i % 2 == 0 ? random_point(engine) : middle_of(a, b, engine);
        const plain_point u = difference(a, b);
        const plain_point v = difference(a, c);
        EXPECT_EQ(turn(a, b, c, 0), (u[1] * v[2] - u[2] * v[1]).sign());
        EXPECT_EQ(turn(a, b, c, 1), (u[2] * v[0] - u[0] * v[2]).sign());
        EXPECT_EQ(turn(a, b, c, 2), (u[0] * v[1] - u[1] * v[0]).sign());
    }
}

TEST(CsgPredicates, PlanesThatShareADirectionHaveNoDeterminant) {
    std::mt19937_64 engine(3);
    for (int i = 0; i < 2000; ++i) {
        const grid_point a = random_point(engine);
        const grid_point b = random_point(engine);
        const plane p = plane_through(a, b, random_point(engine));
        const plane q = plane_through(a, b, random_point(engine));
        const plane r = plane_through(b, a, random_point(engine));
        EXPECT_EQ(determinant_sign(p, q, r), 0);
    }
}

/// True if the double is the multiple of 2^-k nearest to the quotient, for a k that it has.
void expect_nearest(const wide<5>& dividend, const wide<4>& divisor, double rounded) {
    int exponent = 0;
    const double fraction = std::frexp(rounded, &exponent);
    const auto significand = static_cast<std::int64_t>(std::ldexp(fraction, 53));
    // The distance to significand * 2^(exponent - 53), times two and the divisor.
    const int shift = 53 - exponent;
    ASSERT_GE(shift, 0);
    const wide<8> exact = shifted_left(resized<8>(dividend), shift);
    const wide<8> taken = resized<8>(resized<4>(make_wide(significand)) * divisor);
    const wide<8> twice = magnitude(exact - taken) + magnitude(exact - taken);
    const wide<8> excess = twice - resized<8>(divisor);
    EXPECT_LE(excess.sign(), 0);
    EXPECT_TRUE(excess.sign() < 0 || significand % 2 == 0);
}

TEST(CsgPredicates, QuotientsAreRoundedToTheNearestDoubleAndTiesToEven) {
    std::mt19937_64 engine(4);
    for (int i = 0; i < 5000; ++i) {
        const auto divisor = static_cast<std::int64_t>(engine() >> (2 + engine() % 60)) + 1;
        const wide<4> w = resized<4>(make_wide(divisor) * make_wide(i % 2 == 0 ? 1 : divisor));
        const auto factor = static_cast<std::int64_t>(engine() >> (28 + engine() % 34));
        wide<5> x = resized<5>(w * make_wide(engine() % 2 == 0 ? factor : -factor));
        x += resized<5>(make_wide(static_cast<std::int64_t>(engine() % 3) * (divisor / 2)));
        bool is_exact = false;
        const double rounded = rounded_quotient(x, w, is_exact);
        if (!x.is_zero()) {
            expect_nearest(x, w, rounded);
        }
    }
}

TEST(CsgPredicates, WholeHalvesAndThirdsTellWhetherTheyWereRounded) {
    bool is_exact = false;
    const auto quotient = [&](std::int64_t x, std::int64_t w) {
        return rounded_quotient(resized<5>(make_wide(x)), resized<4>(make_wide(w)), is_exact);
    };
    EXPECT_EQ(quotient(0, 3), 0.0);
    EXPECT_TRUE(is_exact);
    EXPECT_EQ(quotient(-7, 2), -3.5);
    EXPECT_TRUE(is_exact);
    EXPECT_EQ(quotient(1, 3), 1.0 / 3.0);
    EXPECT_FALSE(is_exact);
}

TEST(CsgPoints, APointMadeInTwoWaysHasOneIndex) {
    const std::vector<grid_point> grid = {{0, 0, 0}, {9, 3, 6}, {0, 0, 1}, {0, 1, 0}, {1, 0, 0},
                                          {3, 0, 0}, {3, 1, 0}, {3, 0, 1}, {3, 1, 2}};
    point_table points(grid);
    points.planes = {plane_through(grid[5], grid[6], grid[7]), plane_along(grid[0], grid[1], 2),
                     plane_along(grid[0], grid[1], 1)};
    // The line from the origin to (9, 3, 6) crosses x = 3 in a point of the grid.
    EXPECT_EQ(points.add_line_crossing(0, 1, 0), 8);
    EXPECT_EQ(points.add_plane_crossing(0, 1, 2), 8);
    EXPECT_EQ(points.count(), 9);
}

TEST(CsgPoints, DifferentPointsOfTheSameRoundedCoordinatesAreToldApart) {
    // Upright planes that cross the x axis at 1 - 1 / n, where n differs by one: 2^-73 apart.
    const std::int64_t n = largest - 1;
    const std::vector<grid_point> grid = {{0, 0, 0},     {2, 0, 0},     {1, 1, 0},    {0, 1 - n, 0},
                                          {0, 1 - n, 1}, {0, 2 - n, 0}, {0, 2 - n, 1}};
    point_table points(grid);
    points.planes = {plane_through(grid[2], grid[3], grid[4]),
                     plane_through(grid[2], grid[5], grid[6])};
    const int first = points.add_line_crossing(0, 1, 0);
    const int second = points.add_line_crossing(0, 1, 1);
    EXPECT_EQ(points.near(first), points.near(second));
    EXPECT_NE(first, second);
    EXPECT_EQ(points.side(first, 0), 0);
    EXPECT_EQ(points.side(second, 1), 0);
    EXPECT_NE(points.side(first, 1), 0);
    EXPECT_EQ(points.compare(first, second), 1);
    EXPECT_EQ(points.compare(second, first), -1);
}

} // namespace
