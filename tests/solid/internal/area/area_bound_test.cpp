// Whatever the bound says of the area of a polygon, its triangles must say too.

#include <ox/solid/internal/area/area_bound.h>

#include <gtest/gtest.h>

#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using support::frame;
using support::generator;

constexpr float smallest_face = 1e-6f;

/// A contour of points (u, v) of a plane.
struct plane_contour {
    explicit plane_contour(const frame& plane_axes, const ox_3dvector& plane_origin)
        : axes(plane_axes), origin(plane_origin) {}

    void add(double u, double v) {
        points.push_right(origin + axes.x * static_cast<float>(u) + axes.y * static_cast<float>(v));
    }

    frame axes;
    ox_3dvector origin;
    ox_list<ox_3dvector> points;
};

/// A magnitude between 1e-5 and 1e5, small ones as likely as large ones.
double any_length(generator& random) {
    static const double magnitudes[] = {1e-5, 1e-4, 1e-3, 0.01, 0.1, 1.0, 10.0, 100.0, 1e3, 1e4};
    const double magnitude = magnitudes[random.between(0, 9)];
    return magnitude * random.real(1.0, 10.0);
}

/// Contours of a few corners, from square to needle, side by side or one over the other.
ox_polygon any_pieces(generator& random) {
    const frame axes = random.one_in(2) ? frame() : support::random_frame(random);
    const ox_3dvector origin = support::random_point(random, any_length(random));
    const double width = any_length(random);
    const double height = any_length(random);
    ox_polygon polygon;
    for (int pieces = random.between(1, 3); pieces > 0; --pieces) {
        plane_contour contour(axes, origin);
        const double u = width * random.between(0, 4);
        const double v = height * random.between(0, 2);
        contour.add(u, v);
        contour.add(u + width, v);
        contour.add(u + width * random.real(0.0, 1.0), v + height);
        if (random.one_in(2)) {
            contour.add(u, v + height * random.real(0.0, 1.0));
        }
        polygon.add_contour(contour.points);
    }
    return polygon;
}

/// A wall with rows of openings, some of them nearly touching or overlapping.
ox_polygon any_facade(generator& random) {
    const frame axes = random.one_in(2) ? frame() : support::random_frame(random);
    const ox_3dvector origin = support::random_point(random, 100.0);
    const int columns = random.between(1, 12);
    const int rows = random.between(1, 3);
    const double pitch = random.real(0.05, 20.0);
    plane_contour outline(axes, origin);
    outline.add(0.0, 0.0);
    outline.add(pitch * columns, 0.0);
    outline.add(pitch * columns, pitch * rows);
    outline.add(0.0, pitch * rows);
    ox_polygon polygon;
    polygon.add_contour(outline.points);
    for (int i = 0; i < columns * rows; ++i) {
        const double u = pitch * (i % columns + random.real(0.05, 0.2));
        const double v = pitch * (i / columns + random.real(0.05, 0.2));
        const double width = pitch * random.real(0.3, random.one_in(10) ? 1.0 : 0.75);
        plane_contour hole(axes, origin);
        hole.add(u, v);
        hole.add(u + width, v);
        hole.add(u + width, v + pitch * 0.5);
        hole.add(u, v + pitch * 0.5);
        polygon.add_contour(hole.points);
    }
    return polygon;
}

using shape = ox_polygon (*)(generator&);

/// Counts the polygons whose area the bound knows, after comparing it with the triangles.
int count_bounded(shape make_shape, int rounds, std::uint64_t seed) {
    generator random(seed);
    int bounded = 0;
    for (int round = 0; round < rounds; ++round) {
        ox_polygon polygon = make_shape(random);
        if (ox::internal::is_area_surely_above(polygon, smallest_face)) {
            ++bounded;
            EXPECT_GT(polygon.get_area(), smallest_face) << "seed " << seed << ", round " << round;
        }
    }
    return bounded;
}

TEST(AreaBound, OfAnyPiecesIsKeptByTheirTriangles) {
    EXPECT_GT(count_bounded(any_pieces, 8000, 1), 1000);
}

TEST(AreaBound, OfAnyFacadeIsKeptByItsTriangles) {
    EXPECT_GT(count_bounded(any_facade, 3000, 2), 1000);
}

TEST(AreaBound, IsKnownOfASquareAndOfALongWallWithOpenings) {
    ox_polygon square = support::rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    EXPECT_TRUE(ox::internal::is_area_surely_above(square, smallest_face));
    ox_polygon wall = support::rectangle_polygon(0.0f, 0.0f, 1500.0f, 3.0f);
    for (int i = 0; i < 1000; ++i) {
        const float x = 1.5f * static_cast<float>(i) + 0.25f;
        wall.add_contour(support::rectangle(x, 1.0f, x + 1.0f, 2.0f));
    }
    EXPECT_TRUE(ox::internal::is_area_surely_above(wall, smallest_face));
}

// Narrower openings could have flat triangles only, whose areas Heron's formula may lose.
TEST(AreaBound, IsKnownOfAFacadeAsLongAsNoSideOfAnOpeningIsShorterThanTheGap) {
    const auto is_known = [](float width, float height) {
        ox_polygon wall = support::rectangle_polygon(0.0f, 0.0f, 10.0f, 3.0f);
        wall.add_contour(support::rectangle(4.0f, 1.0f, 4.0f + width, 1.0f + height));
        return ox::internal::is_area_surely_above(wall, smallest_face);
    };
    EXPECT_TRUE(is_known(1.0f, 1.0f));
    EXPECT_TRUE(is_known(0.101f, 1.0f));
    EXPECT_TRUE(is_known(1.0f, 0.101f));
    EXPECT_FALSE(is_known(0.099f, 1.0f));
    EXPECT_FALSE(is_known(1.0f, 0.099f));
}

TEST(AreaBound, IsUnknownOfASliverOfAPolygonWithoutContoursAndOfALimitAboveTheArea) {
    ox_polygon sliver = support::rectangle_polygon(0.0f, 0.0f, 1000.0f, 0.001f);
    EXPECT_FALSE(ox::internal::is_area_surely_above(sliver, smallest_face));
    ox_polygon empty;
    EXPECT_FALSE(ox::internal::is_area_surely_above(empty, smallest_face));
    ox_polygon square = support::rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    EXPECT_FALSE(ox::internal::is_area_surely_above(square, 1.0f));
}

} // namespace
