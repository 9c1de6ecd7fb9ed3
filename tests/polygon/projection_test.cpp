#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <ox/polygon/ox_polygon_projection.h>
#include <tests/reference/contains.h>
#include <tests/reference/raytrace.h>
#include <tests/support/generator.h>
#include <tests/support/random_shapes.h>
#include <vector>

namespace {

using ox::ox_2dvector;
using ox::ox_3dvector;
using ox::ox_polygon;
using ox::ox_polygon_projection;

/// What a ray answers, beside outputs that it may leave untouched.
struct ray_answer {
    ox_2dvector hit = ox_2dvector(7, 7);
    ox_2dvector edge = ox_2dvector(8, 8);
    float distance = 9;
    int vertex = -2;
};

ray_answer cast(const ox_polygon_projection& frame, const ox_2dvector& start,
                const ox_2dvector& direction) {
    ray_answer answer;
    answer.vertex = frame.raytrace(start, direction, answer.hit, answer.edge, answer.distance);
    return answer;
}

/// The same for the unit square, in a frame without a margin.
ray_answer cast_in_square(const ox_2dvector& start, const ox_2dvector& direction) {
    ox_polygon square = support::rectangle_polygon(0, 0, 1, 1);
    return cast(ox_polygon_projection(&square, 0), start, direction);
}

TEST(OxPolygonProjection, MarginWidensTheFrameOnAllSides) {
    ox_polygon square = support::rectangle_polygon(0, 0, 1, 1);
    const ox_polygon_projection frame(&square, 0.5f);
    EXPECT_EQ(frame.get_size(), ox_2dvector(2, 2));
    EXPECT_EQ(frame.get_polygon(), &square);
    EXPECT_EQ(frame.get_normal(), square.get_normal());
    const ox_2dvector corner = frame.world_to_polygon(ox_3dvector(0, 0, 0));
    const ox_2dvector opposite = frame.world_to_polygon(ox_3dvector(1, 1, 0));
    EXPECT_EQ(std::min(corner.x, opposite.x), 0.5f);
    EXPECT_EQ(std::min(corner.y, opposite.y), 0.5f);
}

TEST(OxPolygonProjection, WayToTheFrameAndBackProjectsOnThePlane) {
    ox_polygon square = support::rectangle_polygon(0, 0, 1, 1, 3);
    const ox_polygon_projection frame(&square, 0.25f);
    const ox_3dvector p(0.25f, 0.75f, 9);
    EXPECT_EQ(frame.polygon_to_world(frame.world_to_polygon(p)), ox_3dvector(0.25f, 0.75f, 3));
    EXPECT_EQ(frame.polygon_vector_to_world(frame.world_vector_to_polygon(p)),
              ox_3dvector(0.25f, 0.75f, 0));
}

TEST(OxPolygonProjection, RayFromTheCentreHitsTheRightEdgeAtHalfTheWidth) {
    ox_polygon square = support::rectangle_polygon(0, 0, 1, 1);
    const ox_polygon_projection frame(&square, 0);
    const ray_answer answer = cast(frame, ox_2dvector(0.5f, 0.5f), ox_2dvector(1, 0));
    ASSERT_GE(answer.vertex, 0);
    EXPECT_EQ(answer.distance, 0.5f);
    EXPECT_EQ(answer.hit, ox_2dvector(1, 0.5f));
    EXPECT_EQ(answer.edge, ox_2dvector(0, 1));
    EXPECT_EQ(frame.world_to_polygon(square.get_contour_vertices()[answer.vertex]),
              ox_2dvector(1, 0));
}

TEST(OxPolygonProjection, RayAwayFromTheSquareHitsNothingAndLeavesTheOutputs) {
    const ray_answer answer = cast_in_square(ox_2dvector(2, 0.5f), ox_2dvector(1, 0));
    EXPECT_EQ(answer.vertex, -1);
    EXPECT_EQ(answer.hit, ox_2dvector(7, 7));
    EXPECT_EQ(answer.edge, ox_2dvector(8, 8));
    EXPECT_EQ(answer.distance, 9);
}

TEST(OxPolygonProjection, RayThatStartsOnAnEdgeHitsItAtDistance0) {
    const ray_answer answer = cast_in_square(ox_2dvector(1, 0.5f), ox_2dvector(1, 0));
    EXPECT_GE(answer.vertex, 0);
    EXPECT_EQ(answer.distance, 0);
}

TEST(OxPolygonProjection, OfAnEmptyPolygonIsTheMarginAboutItsPoint) {
    ox_polygon empty(ox_3dvector(1, 2, 3), ox_3dvector(0, 0, 1));
    const ox_polygon_projection frame(&empty, 0.5f);
    EXPECT_EQ(frame.get_size(), ox_2dvector(1, 1));
    EXPECT_EQ(frame.world_to_polygon(ox_3dvector(1, 2, 3)), ox_2dvector(0.5f, 0.5f));
    EXPECT_FALSE(frame.contains(0.5f, 0.5f));
}

TEST(OxPolygonProjection, OfNullIsAnEmptyFrameAtTheOrigin) {
    const ox_polygon_projection frame(nullptr, 0.5f);
    ox_2dvector hit;
    float distance = 0;
    EXPECT_EQ(frame.get_polygon(), nullptr);
    EXPECT_EQ(frame.get_origin(), ox_3dvector(0, 0, 0));
    EXPECT_FALSE(frame.contains(0, 0));
    EXPECT_EQ(frame.raytrace(ox_2dvector(0, 0), ox_2dvector(1, 0), hit, hit, distance), -1);
}

TEST(OxPolygonProjection, CopiesShareTheFrameBeyondTheOriginal) {
    ox_polygon square = support::rectangle_polygon(0, 0, 1, 1);
    ox_polygon_projection copy(nullptr, 0);
    {
        const ox_polygon_projection original(&square, 0);
        copy = original;
    }
    EXPECT_TRUE(ox_polygon_projection(copy).contains(0.5f, 0.5f));
}

TEST(OxPolygonProjection, KeepsItsContoursWhenThePolygonIsEmptiedOrGrows) {
    ox_polygon square = support::rectangle_polygon(0, 0, 1, 1);
    const ox_polygon_projection frame(&square, 0);
    square.clear();
    EXPECT_TRUE(frame.contains(0.5f, 0.5f));
}

/// The contours of a polygon in the frame of its projection.
std::vector<std::vector<ox_2dvector>> contours_in(const ox_polygon_projection& frame,
                                                  ox_polygon& polygon) {
    std::vector<std::vector<ox_2dvector>> contours;
    int next = 0;
    for (const unsigned int size : polygon.get_contour_sizes()) {
        contours.emplace_back();
        for (unsigned int i = 0; i < size; ++i) {
            contours.back().push_back(
                frame.world_to_polygon(polygon.get_contour_vertices()[next++]));
        }
    }
    return contours;
}

/// A tangle of several contours, or rectangles on a coarse grid whose sides lie on each other's
/// lines, of any size.
ox_polygon random_region(support::generator& random, float scale) {
    ox_polygon polygon(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1));
    const bool coarse = random.one_in(2);
    const int contours = random.between(1, 4);
    for (int c = 0; c < contours; ++c) {
        ox::ox_list<ox_3dvector> contour;
        if (coarse) {
            const float x = static_cast<float>(random.between(-4, 3));
            const float y = static_cast<float>(random.between(-4, 3));
            const float width = static_cast<float>(random.between(1, 4));
            const float height = static_cast<float>(random.between(1, 4));
            contour = support::rectangle(x, y, x + width, y + height);
        } else {
            contour = support::random_tangle(random, random.between(3, 9), 4);
        }
        for (ox_3dvector& v : contour) {
            v *= scale;
        }
        polygon.add_contour(contour);
    }
    return polygon;
}

/// A point of the frame: a vertex, a point level with one, or any other.
ox_2dvector random_point(support::generator& random,
                         const std::vector<std::vector<ox_2dvector>>& contours, float scale) {
    ox_2dvector q(random.grid(-1, 9) * scale, random.grid(-1, 9) * scale);
    if (!contours.empty()) {
        const std::vector<ox_2dvector>& contour = contours[random.bits() % contours.size()];
        const ox_2dvector v = contour[random.bits() % contour.size()];
        q.x = random.one_in(3) ? v.x : q.x;
        q.y = random.one_in(3) ? v.y : q.y;
    }
    return q;
}

constexpr float scales[] = {1.f, 1.f, 1e6f, 1e12f, 0.001f};

/// Calls `check(random, frame, contours, q)` for 30,000 points q of the frames of random regions.
template <typename checker>
void over_random_regions(unsigned int seed, const checker& check) {
    support::generator random(seed);
    for (int round = 0; round < 1000; ++round) {
        const float scale = scales[random.between(0, 4)];
        ox_polygon polygon = random_region(random, scale);
        const ox_polygon_projection frame(&polygon, 0.25f);
        const auto contours = contours_in(frame, polygon);
        for (int i = 0; i < 30; ++i) {
            check(random, frame, contours, random_point(random, contours, scale));
        }
        ASSERT_FALSE(::testing::Test::HasFailure()) << "round " << round;
    }
}

TEST(OxPolygonProjection, ContainsAgreesWithThePlainVersionOnRandomAndDegenerateRegions) {
    over_random_regions(21, [](auto&, const auto& frame, const auto& contours, const auto& q) {
        EXPECT_EQ(frame.contains(q), reference::contains(contours, q));
    });
}

/// Along an axis, along an edge's direction, of no length, or any other.
ox_2dvector random_direction(support::generator& random) {
    const float x = random.grid(-2, 2);
    const float y = random.grid(-2, 2);
    switch (random.between(0, 5)) {
    case 0:
        return ox_2dvector(x, 0);
    case 1:
        return ox_2dvector(0, y);
    case 2:
        return ox_2dvector(static_cast<float>(random.between(-1, 1)),
                           static_cast<float>(random.between(-1, 1)));
    default:
        return ox_2dvector(x, y);
    }
}

TEST(OxPolygonProjection, RaysAgreeWithThePlainVersionOnRandomAndDegenerateRegions) {
    over_random_regions(
        22, [](auto& random, const auto& frame, const auto& contours, const auto& start) {
            const ox_2dvector direction = random_direction(random);
            const ray_answer answer = cast(frame, start, direction);
            const reference::ray_hit expected = reference::raytrace(contours, start, direction);
            EXPECT_EQ(answer.vertex, expected.vertex);
            if (answer.vertex >= 0) {
                EXPECT_EQ(answer.hit, expected.point);
                EXPECT_EQ(answer.edge, expected.edge);
                EXPECT_EQ(answer.distance, expected.distance);
            }
        });
}

TEST(OxPolygonProjection, FirstEdgeFoundWinsATie) {
    ox_polygon square = support::rectangle_polygon(0, 0, 1, 1);
    const ox_polygon_projection frame(&square, 0);
    const ox_2dvector corner = contours_in(frame, square)[0][2]; // of the edges from 1 and from 2
    const ox_2dvector middle(0.5f, 0.5f);
    const ray_answer answer = cast(frame, middle, corner - middle);
    EXPECT_EQ(answer.vertex, 1);
    EXPECT_EQ(answer.hit, corner);
}

TEST(OxPolygonProjection, DistanceIsMeasuredInTheDirectionsLength) {
    const ray_answer answer = cast_in_square(ox_2dvector(0.5f, 0.5f), ox_2dvector(4, 0));
    EXPECT_GE(answer.vertex, 0);
    EXPECT_EQ(answer.distance, 2); // the dot product of the way of 0.5 with the direction
}

TEST(OxPolygonProjection, EdgeOnTheRayIsSkipped) {
    const ray_answer answer = cast_in_square(ox_2dvector(0.5f, 0), ox_2dvector(1, 0));
    ASSERT_GE(answer.vertex, 0);
    EXPECT_EQ(answer.hit, ox_2dvector(1, 0)); // at the corner, by the edge beyond it
    EXPECT_EQ(answer.edge.x, 0);
}

TEST(OxPolygonProjection, DirectionOfNoLengthHitsNothing) {
    EXPECT_EQ(cast_in_square(ox_2dvector(0.5f, 0.5f), ox_2dvector(0, 0)).vertex, -1);
}

TEST(OxPolygonProjection, NumbersThatAreNotFiniteAreAnswered) {
    ox_polygon square = support::rectangle_polygon(0, 0, 1, 1);
    constexpr float nan_value = std::numeric_limits<float>::quiet_NaN();
    constexpr float infinity = std::numeric_limits<float>::infinity();
    for (const float bad : {nan_value, infinity, -infinity}) {
        const ox_polygon_projection odd(&square, bad);
        odd.contains(0.5f, 0.5f);
        const ox_polygon_projection frame(&square, 0);
        EXPECT_FALSE(frame.contains(bad, 0.5f));
        EXPECT_FALSE(frame.contains(0.5f, bad));
        EXPECT_LT(cast(frame, ox_2dvector(bad, 0), ox_2dvector(1, 0)).vertex, 4);
        EXPECT_LT(cast(frame, ox_2dvector(0, 0), ox_2dvector(bad, 1)).vertex, 4);
    }
}

} // namespace
