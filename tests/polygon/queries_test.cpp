#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include <ox/geometry/ox_matrix.h>
#include <ox/polygon/internal/answer_counts.h>
#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>
#include <tests/reference/contains.h>
#include <tests/reference/plane_frame.h>
#include <tests/support/generator.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_box;
using ox::ox_polygon;
using ox::internal::answered_by;
using ox::internal::answers_of;
using support::frame;
using support::generator;
using support::rectangle;
using support::rectangle_polygon;

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float not_a_number = std::numeric_limits<float>::quiet_NaN();

// The point of the polygon's plane with the given coordinates in its frame.
ox_3dvector at(ox_polygon& polygon, float u, float v) {
    const reference::plane_frame axes(polygon);
    return axes.point + axes.dx * u + axes.dy * v;
}

ox_box box(const ox_3dvector& origin, const ox_3dvector& size) {
    ox_box result;
    result.origin = origin;
    result.size = size;
    return result;
}

TEST(OxPolygonMeasures, PerimeterClosesEveryContourAndCountsHoles) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 4, 4));
    polygon.add_contour(rectangle(1, 1, 2, 2));
    EXPECT_FLOAT_EQ(polygon.get_perimeter(), 20.0f);
}

TEST(OxPolygonMeasures, PerimeterAddsEdgesInOrderTheClosingEdgeLast) {
    ox_polygon polygon;
    polygon.add_contour(support::contour({{0, 0, 0}, {3.3f, 0.1f, 0}, {1.7f, 7.9f, 0}}));
    const auto& v = polygon.get_contour_vertices();
    float sum = v[0].distance_to(v[1]);
    sum += v[1].distance_to(v[2]);
    sum += v[2].distance_to(v[0]);
    EXPECT_EQ(polygon.get_perimeter(), sum);
}

TEST(OxPolygonMeasures, BoundingBoxFollowsEveryChange) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon_checks::expect_same_vector(polygon.get_bounding_box().size,
                                       ox_3dvector(1.0f, 1.0f, 0.0f));
    polygon.add_contour(rectangle(4, 4, 6, 6));
    polygon_checks::expect_same_vector(polygon.get_bounding_box().size,
                                       ox_3dvector(6.0f, 6.0f, 0.0f));
    polygon.intersects(rectangle_polygon(4, 4, 5, 5));
    polygon_checks::expect_same_vector(polygon.get_bounding_box().origin,
                                       ox_3dvector(4.0f, 4.0f, 0.0f));
    polygon_checks::expect_same_vector(polygon.get_bounding_box().size,
                                       ox_3dvector(1.0f, 1.0f, 0.0f));
}

TEST(OxPolygonMeasures, BoundingBoxOfAnEmptyPolygonIsEmpty) {
    ox_polygon polygon;
    EXPECT_TRUE(polygon.get_bounding_box().is_empty());
    polygon_checks::expect_same_vector(polygon.get_bounding_box().origin, ox_3dvector());
    polygon_checks::expect_same_vector(polygon.get_bounding_box().size,
                                       ox_3dvector(-1.0f, 0.0f, 0.0f));
}

TEST(OxPolygonMeasures, OuterContoursAreCounted) {
    ox_polygon polygon;
    EXPECT_EQ(polygon.count_outer_contours(), 0);
    polygon.add_contour(rectangle(0, 0, 4, 4));
    polygon.add_contour(rectangle(1, 1, 2, 2));
    polygon.add_contour(rectangle(10, 10, 12, 12));
    EXPECT_EQ(polygon.count_outer_contours(), 2);
}

} // namespace

TEST(OxPolygonContains, IsFalseForAPolygonWithoutContours) {
    ox_polygon polygon(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
    EXPECT_FALSE(polygon.contains(ox_3dvector()));
}

TEST(OxPolygonContains, TellsInsideFromOutside) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    EXPECT_TRUE(square.contains(ox_3dvector(0.5f, 0.5f, 0.0f)));
    EXPECT_TRUE(square.contains(ox_3dvector(0.01f, 0.99f, 0.0f)));
    EXPECT_FALSE(square.contains(ox_3dvector(-0.01f, 0.5f, 0.0f)));
    EXPECT_FALSE(square.contains(ox_3dvector(1.01f, 0.5f, 0.0f)));
    EXPECT_FALSE(square.contains(ox_3dvector(0.5f, -0.01f, 0.0f)));
    EXPECT_FALSE(square.contains(ox_3dvector(0.5f, 1.01f, 0.0f)));
}

TEST(OxPolygonContains, IgnoresTheDistanceFromThePlane) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    EXPECT_TRUE(square.contains(ox_3dvector(0.5f, 0.5f, 1000.0f)));
    EXPECT_TRUE(square.contains(ox_3dvector(0.5f, 0.5f, -1000.0f)));
}

TEST(OxPolygonContains, LeavesOutHolesAndTakesIslandsInThem) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 6.0f, 6.0f);
    polygon.add_contour(rectangle(1.0f, 1.0f, 5.0f, 5.0f));
    polygon.add_contour(rectangle(2.0f, 2.0f, 4.0f, 4.0f));
    EXPECT_TRUE(polygon.contains(ox_3dvector(0.5f, 3.1f, 0.0f)));
    EXPECT_FALSE(polygon.contains(ox_3dvector(1.5f, 3.1f, 0.0f)));
    EXPECT_TRUE(polygon.contains(ox_3dvector(3.0f, 3.1f, 0.0f)));
}

TEST(OxPolygonContains, ClassifiesPointsOnTheOutlineByTheCountingRules) {
    // In the frame, an edge owns its lower end and not its upper one, and a crossing at the point
    // itself counts as right of it. So the lower and the right side of a square are inside, its
    // upper and its left side are not.
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    float u_low = 0.0f;
    float v_low = 0.0f;
    for (const ox_3dvector& vertex : square.get_contour_vertices()) {
        const ox::ox_2dvector q = reference::plane_frame(square).coordinates(vertex);
        u_low = q.x < u_low ? q.x : u_low;
        v_low = q.y < v_low ? q.y : v_low;
    }
    const float u_high = u_low + 1.0f;
    const float v_high = v_low + 1.0f;
    const auto contains = [&](float u, float v) { return square.contains(at(square, u, v)); };
    const float u_middle = u_low + 0.5f;
    const float v_middle = v_low + 0.5f;
    EXPECT_TRUE(contains(u_middle, v_low)) << "on the lower horizontal side";
    EXPECT_FALSE(contains(u_middle, v_high)) << "on the upper horizontal side";
    EXPECT_FALSE(contains(u_low, v_middle)) << "nothing is left of the left side";
    EXPECT_TRUE(contains(u_high, v_middle)) << "the right side itself counts as right";
    EXPECT_FALSE(contains(u_low, v_low));
    EXPECT_TRUE(contains(u_high, v_low));
    EXPECT_FALSE(contains(u_low, v_high));
    EXPECT_FALSE(contains(u_high, v_high));
}

TEST(OxPolygonContains, IsFalseForAPointThatIsNotFinite) {
    ox_polygon square = rectangle_polygon(-1.0f, -1.0f, 1.0f, 1.0f);
    for (const float bad : {infinity, -infinity, not_a_number}) {
        EXPECT_FALSE(square.contains(ox_3dvector(bad, 0.0f, 0.0f)));
        EXPECT_FALSE(square.contains(ox_3dvector(0.0f, bad, 0.0f)));
        EXPECT_FALSE(square.contains(ox_3dvector(bad, bad, bad)));
    }
}

TEST(OxPolygonContains, IsFalseInAPlaneThatIsNotFinite) {
    for (const float bad : {infinity, -infinity, not_a_number}) {
        ox_polygon square = rectangle_polygon(-1.0f, -1.0f, 1.0f, 1.0f);
        square.get_area();
        square.set_point(ox_3dvector(bad, bad, bad));
        EXPECT_FALSE(square.contains(ox_3dvector()));
    }
}

TEST(OxPolygonContains, EqualsThePlainCountOnAndAroundTheOutline) {
    generator random(601);
    for (int i = 0; i < 1500; ++i) {
        ox_polygon polygon;
        const int contours = random.between(1, 3);
        for (int c = 0; c < contours; ++c) {
            polygon.add_contour(support::random_tangle(random, random.between(3, 8), 2));
        }
        if (polygon.get_contour_sizes().size() == 0) {
            continue;
        }
        ASSERT_TRUE(reference::has_reproducible_frame(polygon));
        const ox::ox_list<ox_3dvector> vertices = polygon.get_contour_vertices();
        for (int k = 0; k < 20; ++k) {
            const ox_3dvector& a = vertices[random.between(0, vertices.size() - 1)];
            const ox_3dvector& b = vertices[random.between(0, vertices.size() - 1)];
            for (const ox_3dvector& p :
                 {a, ox_3dvector(a.x, b.y, a.z), (a + b) * 0.5f, random_point(random, 3.0)}) {
                ASSERT_EQ(polygon.contains(p), reference::contains(polygon, p))
                    << "polygon " << i << ", point " << p.x << ' ' << p.y << ' ' << p.z;
            }
        }
    }
}

TEST(OxPolygonContains, EqualsThePlainCountInSlantedPlanes) {
    generator random(602);
    int compared = 0;
    for (int i = 0; i < 1000; ++i) {
        const frame axes = support::random_frame(random);
        const ox_3dvector origin = support::random_point(random, i % 2 == 0 ? 1.0 : 1e6);
        ox::ox_list<ox_3dvector> vertices;
        const int corners = random.between(3, 9);
        for (int k = 0; k < corners; ++k) {
            const float x = random.grid(-3, 3);
            const float y = random.grid(-3, 3);
            vertices.push_right(origin + axes.x * x + axes.y * y);
        }
        ox_polygon polygon;
        polygon.add_contour(vertices);
        if (!reference::has_reproducible_frame(polygon)) {
            continue;
        }
        ++compared;
        for (int k = 0; k < 10; ++k) {
            const ox_3dvector p = origin + support::random_point(random, 3.0);
            ASSERT_EQ(polygon.contains(p), reference::contains(polygon, p)) << "polygon " << i;
        }
    }
    EXPECT_GT(compared, 200);
}

namespace {

using point_list = ox::ox_list<ox_3dvector>;

/// Jagged contours of many vertices that cross each other and themselves, in a frame of their own.
ox_polygon many_sided_polygon(generator& random, const frame& axes, float scale) {
    ox_polygon polygon;
    const int contours = random.between(1, 4);
    const bool coarse = random.one_in(2); // many vertices on one level
    for (int c = 0; c < contours; ++c) {
        point_list vertices;
        const int corners = random.between(3, 40);
        for (int k = 0; k < corners; ++k) {
            const float x = coarse ? static_cast<float>(random.between(-4, 4)) : random.grid(-3, 3);
            const float y = coarse ? static_cast<float>(random.between(-4, 4)) : random.grid(-3, 3);
            vertices.push_right((axes.x * x + axes.y * y) * scale);
        }
        polygon.add_contour(vertices);
    }
    return polygon;
}

/// A vertex, a point level with one vertex and below another, the middle of two, or any point.
ox_3dvector questioned_point(generator& random, ox_polygon& polygon, float scale) {
    const point_list& vertices = polygon.get_contour_vertices();
    const ox_3dvector& a = vertices[random.between(0, vertices.size() - 1)];
    const ox_3dvector& b = vertices[random.between(0, vertices.size() - 1)];
    switch (random.between(0, 3)) {
    case 0:
        return a;
    case 1:
        return ox_3dvector(a.x, b.y, a.z);
    case 2:
        return (a + b) * 0.5f;
    default:
        return support::random_point(random, 4.0) * scale;
    }
}

void change(generator& random, ox_polygon& polygon) {
    ox::ox_matrix moving;
    moving.translate(support::random_point(random, 1.0));
    ox_polygon other = rectangle_polygon(-1.0f, -0.5f, 1.0f, 0.75f);
    switch (random.between(0, 8)) {
    case 0:
        return polygon.reverse();
    case 1:
        return polygon.matrix_transform(moving);
    case 2:
        return polygon.set_point(support::random_point(random, 1.0));
    case 3:
        return polygon.add_contour(support::random_tangle(random, 9, 2));
    case 4:
        return polygon.unites(other);
    case 5:
        return polygon.substracts(other);
    case 6:
        return polygon.offset(0.0625f, ox_polygon::join_miter);
    case 7:
        return polygon.swap(other);
    default:
        return polygon.set_normal(support::random_point(random, 1.0));
    }
}

TEST(PolygonRay, MeetsARegionFromEitherSideAndTellsWhere) {
    ox_polygon face = rectangle_polygon(0, 0, 4, 2);
    ox_3dvector hit;
    float distance = 0.0f;
    EXPECT_TRUE(face.intersect_by_ray({1, 1, 5}, {0, 0, -2}, hit, distance));
    EXPECT_EQ(hit, ox_3dvector(1, 1, 0));
    EXPECT_EQ(distance, 2.5f);
    EXPECT_TRUE(face.intersect_by_ray({0, 1, -1}, {1, 0, 1}, hit, distance));
    EXPECT_EQ(hit, ox_3dvector(1, 1, 0));
    EXPECT_EQ(distance, 1.0f);
}

TEST(PolygonRay, MissesHolesAndWhatLiesOutsideOrBehind) {
    ox_polygon face = rectangle_polygon(0, 0, 4, 4);
    face.add_contour(rectangle(1, 1, 3, 3));
    ox_3dvector hit(7, 7, 7);
    float distance = -1.0f;
    EXPECT_FALSE(face.intersect_by_ray({2, 2, 5}, {0, 0, -1}, hit, distance));
    EXPECT_FALSE(face.intersect_by_ray({9, 2, 5}, {0, 0, -1}, hit, distance));
    EXPECT_FALSE(face.intersect_by_ray({0.5f, 2, 5}, {0, 0, 1}, hit, distance));
    EXPECT_EQ(hit, ox_3dvector(7, 7, 7));
    EXPECT_EQ(distance, -1.0f);
}

TEST(PolygonRay, StartInThePlaneIsMetAtOnce) {
    ox_polygon face = rectangle_polygon(0, 0, 4, 4);
    ox_3dvector hit;
    float distance = -1.0f;
    EXPECT_TRUE(face.intersect_by_ray({1, 1, 0}, {0, 0, 1}, hit, distance));
    EXPECT_EQ(distance, 0.0f);
}

TEST(PolygonRay, ParallelRaysEmptyPolygonsAndNumbersThatAreNotFiniteMeetNothing) {
    ox_polygon face = rectangle_polygon(0, 0, 4, 4);
    ox_polygon empty;
    ox_3dvector hit;
    float distance = 0.0f;
    EXPECT_FALSE(face.intersect_by_ray({1, 1, 1}, {1, 0, 0}, hit, distance));
    EXPECT_FALSE(face.intersect_by_ray({1, 1, 0}, {1, 0, 0}, hit, distance));
    EXPECT_FALSE(face.intersect_by_ray({1, 1, 1}, {0, 0, 0}, hit, distance));
    EXPECT_FALSE(face.intersect_by_ray({1, 1, not_a_number}, {0, 0, -1}, hit, distance));
    EXPECT_FALSE(face.intersect_by_ray({1, 1, 1}, {infinity, 0, -1}, hit, distance));
    EXPECT_FALSE(empty.intersect_by_ray({1, 1, 1}, {0, 0, -1}, hit, distance));
}

} // namespace

TEST(OxPolygonContains, EqualsThePlainCountWhenAskedAgainAndAgain) {
    generator random(603);
    const std::uint64_t before = answers_of(answered_by::containment_index);
    for (int i = 0; i < 600; ++i) {
        static const float scales[] = {1.0f, 1.0f, 0.01f, 1000.0f, 1e10f};
        const float scale = scales[random.between(0, 4)];
        const frame axes = random.one_in(2) ? frame() : support::random_frame(random);
        ox_polygon polygon = many_sided_polygon(random, axes, scale);
        if (polygon.get_contour_sizes().size() == 0 ||
            !reference::has_reproducible_frame(polygon)) {
            continue;
        }
        for (int k = 0; k < 60; ++k) {
            const ox_3dvector p = questioned_point(random, polygon, scale);
            ASSERT_EQ(polygon.contains(p), reference::contains(polygon, p))
                << "polygon " << i << ", point " << p.x << ' ' << p.y << ' ' << p.z;
        }
        for (const float bad : {infinity, -infinity, not_a_number}) {
            EXPECT_FALSE(polygon.contains(ox_3dvector(bad, 0.0f, 0.0f)));
            EXPECT_FALSE(polygon.contains(ox_3dvector(0.0f, bad, 0.0f)));
        }
    }
    EXPECT_GT(answers_of(answered_by::containment_index) - before, 6000u);
}

TEST(OxPolygonContains, FollowsEveryChangeBetweenTwoQuestions) {
    generator random(604);
    ox_polygon polygon = many_sided_polygon(random, frame(), 1.0f);
    for (int i = 0; i < 2000; ++i) {
        if (polygon.get_contour_vertices().size() < 64 ||
            polygon.get_contour_vertices().size() > 1000) {
            polygon = many_sided_polygon(random, frame(), 1.0f);
        } else if (random.one_in(20)) {
            change(random, polygon);
        } else { // the first question to a copy is answered by counting all sides
            const ox_3dvector p = questioned_point(random, polygon, 1.0f);
            ASSERT_EQ(polygon.contains(p), ox_polygon(polygon).contains(p)) << "step " << i;
        }
    }
}

TEST(OxPolygonMayIntersect, IsTrueForBoxesThatTouchWithinTheTolerance) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    const ox_3dvector unit(1.0f, 1.0f, 1.0f);
    EXPECT_TRUE(square.may_intersect(box(ox_3dvector(1.0f, 0.0f, 0.0f), unit)));
    EXPECT_TRUE(square.may_intersect(box(ox_3dvector(1.00005f, 0.0f, 0.0f), unit)));
    EXPECT_TRUE(square.may_intersect(box(ox_3dvector(-1.00005f, 0.0f, 0.0f), unit)));
    EXPECT_TRUE(square.may_intersect(box(ox_3dvector(0.0f, 0.0f, 0.00005f), unit)));
}

TEST(OxPolygonMayIntersect, IsFalseForBoxesApartAlongAnyAxis) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    const ox_3dvector unit(1.0f, 1.0f, 1.0f);
    EXPECT_FALSE(square.may_intersect(box(ox_3dvector(1.001f, 0.0f, 0.0f), unit)));
    EXPECT_FALSE(square.may_intersect(box(ox_3dvector(-1.001f, 0.0f, 0.0f), unit)));
    EXPECT_FALSE(square.may_intersect(box(ox_3dvector(0.0f, 1.001f, 0.0f), unit)));
    EXPECT_FALSE(square.may_intersect(box(ox_3dvector(0.0f, -1.001f, 0.0f), unit)));
    EXPECT_FALSE(square.may_intersect(box(ox_3dvector(0.0f, 0.0f, 0.001f), unit)));
    EXPECT_FALSE(square.may_intersect(box(ox_3dvector(0.0f, 0.0f, -1.001f), unit)));
}

TEST(OxPolygonMayIntersect, OnlyComparesBoxes) {
    // The box lies in the notch of the L: the polygon is not met, but its box is.
    ox_polygon l = rectangle_polygon(0.0f, 0.0f, 4.0f, 4.0f);
    l.substracts(rectangle_polygon(1.0f, 1.0f, 4.0f, 4.0f));
    EXPECT_TRUE(l.may_intersect(box(ox_3dvector(2.0f, 2.0f, 0.0f), ox_3dvector(1.0f, 1.0f, 1.0f))));
}
