#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <ox/polygon/ox_polygon_projection.h>
#include <tests/support/generator.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_2dvector;
using ox::ox_3dvector;
using ox::ox_polygon;
using ox::ox_polygon_projection;

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
    ox_2dvector hit;
    ox_2dvector edge;
    float distance = 0;
    const int index =
        frame.raytrace(ox_2dvector(0.5f, 0.5f), ox_2dvector(1, 0), hit, edge, distance);
    ASSERT_GE(index, 0);
    EXPECT_EQ(distance, 0.5f);
    EXPECT_EQ(hit, ox_2dvector(1, 0.5f));
    EXPECT_EQ(edge, ox_2dvector(0, 1));
    EXPECT_EQ(frame.world_to_polygon(square.get_contour_vertices()[index]), ox_2dvector(1, 0));
}

TEST(OxPolygonProjection, RayAwayFromTheSquareHitsNothingAndLeavesTheOutputs) {
    ox_polygon square = support::rectangle_polygon(0, 0, 1, 1);
    const ox_polygon_projection frame(&square, 0);
    ox_2dvector hit(7, 7);
    ox_2dvector edge(8, 8);
    float distance = 9;
    EXPECT_EQ(frame.raytrace(ox_2dvector(2, 0.5f), ox_2dvector(1, 0), hit, edge, distance), -1);
    EXPECT_EQ(hit, ox_2dvector(7, 7));
    EXPECT_EQ(edge, ox_2dvector(8, 8));
    EXPECT_EQ(distance, 9);
}

TEST(OxPolygonProjection, RayThatStartsOnAnEdgeHitsItAtDistance0) {
    ox_polygon square = support::rectangle_polygon(0, 0, 1, 1);
    const ox_polygon_projection frame(&square, 0);
    ox_2dvector hit;
    ox_2dvector edge;
    float distance = 9;
    EXPECT_GE(frame.raytrace(ox_2dvector(1, 0.5f), ox_2dvector(1, 0), hit, edge, distance), 0);
    EXPECT_EQ(distance, 0);
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

/// Crossings left and right of the point, edge by edge.
bool plain_contains(ox_polygon& polygon, const ox_polygon_projection& frame, ox_2dvector q) {
    int left = 0;
    int right = 0;
    int first = 0;
    for (const unsigned int size : polygon.get_contour_sizes()) {
        const int n = static_cast<int>(size);
        for (int i = 0; i < n; ++i) {
            const auto vertex = [&](int k) {
                return frame.world_to_polygon(polygon.get_contour_vertices()[first + k % n]);
            };
            const ox_2dvector a = vertex(i);
            const ox_2dvector b = vertex(i + 1);
            if ((a.y <= q.y) == (b.y <= q.y)) {
                continue;
            }
            const bool at_a = a.y == q.y;
            const bool at_b = b.y == q.y;
            const float x = at_a ? a.x : at_b ? b.x : a.x + (q.y - a.y) / (b.y - a.y) * (b.x - a.x);
            (q.x > x ? left : right) += 1;
        }
        first += n;
    }
    return left % 2 == 1 && right % 2 == 1;
}

TEST(OxPolygonProjection, ContainsAgreesWithThePlainVersionOnRandomTangles) {
    support::generator random(21);
    for (int round = 0; round < 200; ++round) {
        ox_polygon polygon;
        polygon.add_contour(support::random_tangle(random, random.between(3, 12), 4));
        const ox_polygon_projection frame(&polygon, 0.25f);
        for (int i = 0; i < 50; ++i) {
            const float u = random.grid(-1, 9);
            const float v = random.grid(-1, 9);
            ASSERT_EQ(frame.contains(u, v), plain_contains(polygon, frame, ox_2dvector(u, v)));
        }
    }
}

} // namespace
