// Limits of polygons of several contours whose sides coincide: the clipping library may join them
// into one that runs over a side twice. The region is right, and so are its triangles; who adds up
// the contours alone finds another area. Unit squares say what is right: a square belongs to the
// region when an odd number of contours is around it.

#include <array>
#include <cmath>

#include <ox/polygon/ox_polygon.h>
#include <tests/solid/limits/limits_map.h>
#include <tests/support/measures.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_polygon;
using support::generator;

constexpr int side = 8;

/// Unit squares, each with how often it was covered.
using squares = std::array<std::array<int, side>, side>;

void add_random_rectangle(generator& random, ox_polygon& polygon, squares& covered) {
    const int x = random.between(0, 4);
    const int y = random.between(0, 4);
    const int width = random.between(1, 4);
    const int height = random.between(1, 4);
    for (int column = x; column < x + width; ++column) {
        for (int row = y; row < y + height; ++row) {
            ++covered[static_cast<std::size_t>(column)][static_cast<std::size_t>(row)];
        }
    }
    polygon.add_contour(support::rectangle(static_cast<float>(x), static_cast<float>(y),
                                           static_cast<float>(x + width),
                                           static_cast<float>(y + height)));
}

int count_odd(const squares& covered) {
    int odd = 0;
    for (const auto& column : covered) {
        for (const int count : column) {
            odd += count % 2;
        }
    }
    return odd;
}

/// What the contours run around, those of holes taken off.
double area_of_contours(ox_polygon& polygon) {
    const ox::ox_list<ox::ox_3dvector>& vertices = polygon.get_contour_vertices();
    double doubled = 0.0;
    int first = 0;
    for (const unsigned int size : polygon.get_contour_sizes()) {
        const int count = static_cast<int>(size);
        for (int i = 0; i < count; ++i) {
            const support::point a = support::to_point(vertices[first + i]);
            const support::point b = support::to_point(vertices[first + (i + 1) % count]);
            doubled += support::cross(a, b).z;
        }
        first += count;
    }
    return doubled / 2.0;
}

double area_of_triangles(ox_polygon& polygon) {
    return static_cast<double>(polygon.get_area());
}

template <typename Area>
limits::verdicts judge(int rectangles, Area area_of) {
    generator random(65);
    limits::verdicts counts;
    counts.concerns_csg = false;
    for (int i = 0; i < support::all_or(400000, 20000); ++i) {
        ox_polygon polygon;
        squares covered{};
        for (int r = 0; r < rectangles; ++r) {
            add_random_rectangle(random, polygon, covered);
        }
        ++counts.cases;
        counts.add(limits::engine::face_by_face,
                   !(std::fabs(area_of(polygon) - count_odd(covered)) <= 0.01));
    }
    return counts;
}

TEST(LimitsOfMerges, TrianglesOfRectanglesWhoseSidesCoincideAreRight) {
    limits::expect_limit("triangles of polygons of six rectangles", judge(6, area_of_triangles),
                         {0, 0});
}

TEST(LimitsOfMerges, AFewContoursOfThreeRectanglesRunOverASideTwice) {
    limits::expect_limit("contours of polygons of three rectangles", judge(3, area_of_contours),
                         {23, 517});
}

TEST(LimitsOfMerges, SomeContoursOfSixRectanglesRunOverASideTwice) {
    limits::expect_limit("contours of polygons of six rectangles", judge(6, area_of_contours),
                         {323, 6035});
}

} // namespace
