#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <ox/polygon/ox_polygon.h>
#include <tests/reference/best_center.h>
#include <tests/reference/plane_frame.h>
#include <tests/support/generator.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_matrix;
using ox::ox_polygon;
using support::contour;
using support::frame;
using support::generator;
using support::rectangle;
using support::rectangle_polygon;

// Within the coarsest step of the finest grid.
constexpr float one_step = 0.0625f;

void expect_same(const ox_3dvector& actual, const ox_3dvector& expected) {
    EXPECT_EQ(actual.x, expected.x);
    EXPECT_EQ(actual.y, expected.y);
    EXPECT_EQ(actual.z, expected.z);
}

void expect_near(const ox_3dvector& actual, const ox_3dvector& expected, float tolerance) {
    EXPECT_NEAR(actual.x, expected.x, tolerance);
    EXPECT_NEAR(actual.y, expected.y, tolerance);
    EXPECT_NEAR(actual.z, expected.z, tolerance);
}

void expect_plain_center(ox_polygon& polygon) {
    ASSERT_TRUE(reference::has_reproducible_frame(polygon));
    expect_same(polygon.get_best_center(), reference::best_center(polygon));
}

ox_list<ox_3dvector> circle(float radius, int corners) {
    ox_list<ox_3dvector> result;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2.0 * 3.14159265358979 * i / corners;
        result.push_right(ox_3dvector(static_cast<float>(radius * std::cos(angle)),
                                      static_cast<float>(radius * std::sin(angle)), 0.0f));
    }
    return result;
}

ox_list<ox_3dvector> l_shape(float size) {
    const float half = size * 0.5f;
    return contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(size, 0.0f, 0.0f),
                    ox_3dvector(size, half, 0.0f), ox_3dvector(half, half, 0.0f),
                    ox_3dvector(half, size, 0.0f), ox_3dvector(0.0f, size, 0.0f)});
}

ox_polygon polygon_of(const ox_list<ox_3dvector>& vertices) {
    ox_polygon polygon;
    polygon.add_contour(vertices);
    return polygon;
}

} // namespace

TEST(OxPolygonBestCenter, OfAPolygonWithoutContoursIsItsPoint) {
    ox_polygon polygon(ox_3dvector(1.0f, 2.0f, 3.0f), ox_3dvector(0.0f, 0.0f, 1.0f));
    expect_same(polygon.get_best_center(), ox_3dvector(1.0f, 2.0f, 3.0f));
}

TEST(OxPolygonBestCenter, OfASquareIsItsMiddle) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    expect_same(square.get_best_center(), ox_3dvector(0.5f, 0.5f, 0.0f));
}

TEST(OxPolygonBestCenter, LiesOnTheMaterialOfAFrameAroundAHole) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 4.0f, 4.0f);
    polygon.add_contour(rectangle(1.0f, 1.0f, 3.0f, 3.0f));
    EXPECT_TRUE(polygon.contains(polygon.get_best_center()));
    expect_plain_center(polygon);
}

TEST(OxPolygonBestCenter, GivesTiesToTheLaterCandidate) {
    // Four equally good corners of the frame: the last in scan order wins, not the first.
    ox_polygon polygon = rectangle_polygon(-2.0f, -2.0f, 2.0f, 2.0f);
    polygon.add_contour(rectangle(-1.0f, -1.0f, 1.0f, 1.0f));
    const ox_3dvector center = polygon.get_best_center();
    expect_same(center, reference::best_center(polygon));
    EXPECT_GT(center.x, 0.0f);
}

TEST(OxPolygonBestCenter, StaysWhereItWasWhenNoCandidateIsInside) {
    // Every candidate lies on the left or lower side of the sliver's bounds and none inside it.
    ox_polygon sliver =
        polygon_of(contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(0.01f, 0.0f, 0.0f),
                            ox_3dvector(0.02f, 0.01f, 0.0f), ox_3dvector(0.01f, 0.02f, 0.0f)}));
    expect_same(sliver.get_best_center(), reference::best_center(sliver));
    expect_same(sliver.get_best_center(), ox_3dvector());
}

TEST(OxPolygonBestCenter, IsKeptByBooleansOffsetsReversalANewPlaneTransformationAndClear) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 2.0f, 2.0f);
    const ox_3dvector center = polygon.get_best_center();
    polygon.substracts(rectangle_polygon(0.5f, 0.5f, 1.5f, 1.5f));
    expect_same(polygon.get_best_center(), center);
    polygon.offset(0.1f, ox_polygon::join_square);
    expect_same(polygon.get_best_center(), center);
    polygon.reverse();
    expect_same(polygon.get_best_center(), center);
    polygon.set_normal(ox_3dvector(0.0f, 1.0f, 1.0f));
    expect_same(polygon.get_best_center(), center);
    ox_matrix shift;
    shift[12] = 5.0f;
    polygon.matrix_transform(shift);
    expect_same(polygon.get_best_center(), center);
    polygon.clear();
    expect_same(polygon.get_best_center(), center);
}

TEST(OxPolygonBestCenter, IsComputedAnewAfterAContourWasAdded) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 2.0f, 2.0f);
    polygon.get_best_center();
    polygon.add_contour(rectangle(0.5f, 0.5f, 1.5f, 1.5f));
    EXPECT_TRUE(polygon.contains(polygon.get_best_center()));
    expect_same(polygon.get_best_center(), reference::best_center(polygon));
}

TEST(OxPolygonBestCenter, IsCopied) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 2.0f, 2.0f);
    const ox_3dvector center = polygon.get_best_center();
    ox_polygon copy(polygon);
    copy.clear();
    expect_same(copy.get_best_center(), center);
}

TEST(OxPolygonBestCenter, OfAFrameWithinTheScoreLimitIsTheMiddle) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 10000.0f, 10000.0f);
    expect_near(square.get_best_center(), ox_3dvector(5000.0f, 5000.0f, 0.0f), one_step);
}

TEST(OxPolygonBestCenter, OfAnAreaBeyondTheScoreLimitIsTheLastCandidateAtTheLimit) {
    // All candidates far enough from the outline score 10000, the limit, and the last one wins:
    // 10000 and a tenth of 490000 / 1.1 or so inside the right side, not the middle.
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1000000.0f, 1000000.0f);
    const ox_3dvector center = square.get_best_center();
    const double reach = (490000.0 / 1.1);
    EXPECT_NEAR(center.x, 500000.0 + reach, 1.0);
    EXPECT_TRUE(square.contains(center));
}

TEST(OxPolygonBestCenter, OfALargeLShapeLiesOnTheDiagonalOfItsElbow) {
    ox_polygon polygon = polygon_of(l_shape(10000.0f));
    const ox_3dvector center = polygon.get_best_center();
    EXPECT_NEAR(center.x, center.y, 2.0f * one_step);
    EXPECT_TRUE(polygon.contains(center));
}

TEST(OxPolygonBestCenter, OfALargeAnnulusLiesBetweenItsCircles) {
    ox_polygon polygon = polygon_of(circle(5000.0f, 400));
    polygon.add_contour(circle(3000.0f, 400));
    const ox_3dvector center = polygon.get_best_center();
    EXPECT_NEAR(center.size(), 4000.0f, 10.0f);
}

TEST(OxPolygonBestCenter, OfALongThinSlabIsItsMiddle) {
    ox_polygon slab = rectangle_polygon(0.0f, 0.0f, 100000.0f, 1.0f);
    expect_near(slab.get_best_center(), ox_3dvector(50000.0f, 0.5f, 0.0f), one_step);
}

TEST(OxPolygonBestCenter, OfALongSlantedSliverLiesNearItsMiddle) {
    ox_polygon sliver =
        polygon_of(contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(10000.0f, 10000.0f, 0.0f),
                            ox_3dvector(9999.0f, 10001.0f, 0.0f), ox_3dvector(-1.0f, 1.0f, 0.0f)}));
    expect_near(sliver.get_best_center(), ox_3dvector(4999.5f, 5000.5f, 0.0f), 1.0f);
}

TEST(OxPolygonBestCenter, IsFoundFarFromTheOrigin) {
    const float far = 1000000.0f;
    ox_polygon polygon = rectangle_polygon(far, far, far + 10000.0f, far + 10000.0f);
    expect_near(polygon.get_best_center(), ox_3dvector(far + 5000.0f, far + 5000.0f, 0.0f), 0.5f);
}

TEST(OxPolygonBestCenter, IsFoundWhereTheStepNoLongerAdvancesACoordinate) {
    // The frame's origin is a corner, so the grid starts at 0 and its step is lost at 2^20.
    for (const float size : {1e7f, 1e9f, 1e12f, 4e14f}) {
        ox_polygon square = rectangle_polygon(0.0f, 0.0f, size, size);
        const ox_3dvector center = square.get_best_center();
        EXPECT_TRUE(std::isfinite(center.x) && std::isfinite(center.y)) << size;
    }
}

TEST(OxPolygonBestCenter, OfAScaledPolygonIsFoundInBoundedTime) {
    ox_polygon polygon = polygon_of(l_shape(10.0f));
    ox_matrix scale;
    scale[0] = scale[5] = scale[10] = 1000.0f;
    polygon.matrix_transform(scale);
    const ox_3dvector center = polygon.get_best_center();
    EXPECT_TRUE(std::isfinite(center.x) && std::isfinite(center.y));
}

TEST(OxPolygonBestCenter, OfAPlaneThatIsNotFiniteIsItsPoint) {
    const float infinity = std::numeric_limits<float>::infinity();
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 2.0f, 2.0f);
    polygon.get_area();
    polygon.set_point(ox_3dvector(infinity, 0.0f, 0.0f));
    expect_same(polygon.get_best_center(), ox_3dvector(infinity, 0.0f, 0.0f));
    polygon.set_point(ox_3dvector(0.0f, std::numeric_limits<float>::quiet_NaN(), 0.0f));
    polygon.get_best_center();
}

TEST(OxPolygonBestCenter, SurvivesTransformationsThatOverflow) {
    for (const float factor : {1e10f, 1e20f, 3e38f, std::numeric_limits<float>::infinity()}) {
        ox_polygon polygon = rectangle_polygon(1.0f, 1.0f, 3.0f, 2.0f);
        polygon.get_area();
        ox_matrix scale;
        scale[0] = scale[5] = scale[10] = factor;
        polygon.matrix_transform(scale);
        polygon.get_best_center();
    }
}

TEST(OxPolygonBestCenter, EqualsThePlainScanForTanglesOnAGrid) {
    generator random(501);
    for (int i = 0; i < 4000; ++i) {
        ox_polygon polygon;
        polygon.add_contour(support::random_tangle(random, random.between(3, 9), 2));
        expect_plain_center(polygon);
        ASSERT_FALSE(HasFailure()) << "polygon " << i;
    }
}

TEST(OxPolygonBestCenter, EqualsThePlainScanForSymmetricShapesOfWholeNumbers) {
    generator random(502);
    for (int i = 0; i < 4000; ++i) {
        ox_polygon polygon;
        const int contours = random.between(1, 3);
        for (int c = 0; c < contours; ++c) {
            const float half_width = static_cast<float>(random.between(1, 4)) * 0.5f;
            const float half_height = static_cast<float>(random.between(1, 4)) * 0.5f;
            polygon.add_contour(rectangle(-half_width, -half_height, half_width, half_height));
        }
        expect_plain_center(polygon);
        ASSERT_FALSE(HasFailure()) << "polygon " << i;
    }
}

TEST(OxPolygonBestCenter, EqualsThePlainScanForManySmallHoles) {
    generator random(503);
    for (int i = 0; i < 20; ++i) {
        ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 6.0f, 4.0f);
        for (int hole = 0; hole < 12; ++hole) {
            const float x = static_cast<float>(random.between(0, 11)) * 0.5f;
            const float y = static_cast<float>(random.between(0, 7)) * 0.5f;
            const float size = static_cast<float>(random.real(0.005, 0.6));
            polygon.add_contour(rectangle(x, y, x + size, y + size));
        }
        expect_plain_center(polygon);
        ASSERT_FALSE(HasFailure()) << "polygon " << i;
    }
}

TEST(OxPolygonBestCenter, EqualsThePlainScanInSlantedAndDistantPlanes) {
    generator random(504);
    int compared = 0;
    for (int i = 0; i < 4000; ++i) {
        const frame axes = support::random_frame(random);
        const double distances[] = {1.0, 1000.0, 100000.0, 10000000.0};
        const ox_3dvector origin = support::random_point(random, distances[i % 4]);
        ox_list<ox_3dvector> vertices;
        const int corners = random.between(3, 8);
        for (int k = 0; k < corners; ++k) {
            const float x = static_cast<float>(random.real(-2.0, 2.0));
            const float y = static_cast<float>(random.real(-2.0, 2.0));
            vertices.push_right(origin + axes.x * x + axes.y * y);
        }
        ox_polygon polygon = polygon_of(vertices);
        if (reference::has_reproducible_frame(polygon)) {
            ++compared;
            expect_plain_center(polygon);
            ASSERT_FALSE(HasFailure()) << "polygon " << i;
        }
    }
    EXPECT_GT(compared, 1000);
}

TEST(OxPolygonBestCenter, EqualsThePlainScanForShapesOfAFewHundredCandidatesAcross) {
    generator random(505);
    for (int i = 0; i < 3; ++i) {
        ox_polygon polygon;
        polygon.add_contour(support::random_tangle(random, 7, 10));
        expect_plain_center(polygon);
    }
}

TEST(OxPolygonBestCenter, EqualsThePlainScanFarFromTheOriginOfTheFrame) {
    // Up to where the finer steps, and at last all of them, no longer advance a coordinate.
    generator random(506);
    const float distances[] = {1e3f, 1e5f, 1e6f, 2097152.0f, 3e6f, 5e6f, 1.7e7f, 1e9f};
    for (int i = 0; i < 400; ++i) {
        const float far_x = distances[i % 8] * (random.one_in(2) ? 1.0f : -1.0f);
        const float far_y = distances[random.between(0, 7)] * (random.one_in(2) ? 1.0f : -1.0f);
        ox_polygon polygon(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
        ox_list<ox_3dvector> vertices;
        const int corners = random.between(4, 8);
        for (int k = 0; k < corners; ++k) {
            const float x = far_x + static_cast<float>(random.real(-3.0, 3.0));
            const float y = far_y + static_cast<float>(random.real(-3.0, 3.0));
            vertices.push_right(ox_3dvector(x, y, 0.0f));
        }
        polygon.add_contour(vertices);
        expect_plain_center(polygon);
        ASSERT_FALSE(HasFailure()) << "polygon " << i;
    }
}

TEST(OxPolygonBestCenter, EqualsThePlainScanWhereOneSideOfTheBoundsIsFar) {
    // Thin strips whose candidates run through many powers of two.
    generator random(507);
    for (int i = 0; i < 40; ++i) {
        const float begin = static_cast<float>(random.real(-600.0, 600.0));
        const float end = static_cast<float>(random.real(-600.0, 600.0));
        const float height = static_cast<float>(random.real(0.1, 1.0));
        ox_polygon polygon(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
        polygon.add_contour(rectangle(begin, 0.0f, end, height));
        polygon.add_contour(rectangle(begin, height * 0.25f, end, height * 0.5f));
        expect_plain_center(polygon);
        ASSERT_FALSE(HasFailure()) << "polygon " << i;
    }
}

TEST(OxPolygonBestCenter, EqualsThePlainScanAfterTransformationsThatChangeTheAxes) {
    generator random(508);
    for (int i = 0; i < 400; ++i) {
        ox_polygon polygon;
        polygon.add_contour(support::random_tangle(random, random.between(4, 8), 2));
        if (polygon.get_contour_sizes().size() == 0) {
            continue;
        }
        ASSERT_TRUE(reference::has_reproducible_frame(polygon));
        reference::plane_frame axes(polygon);
        ox_matrix stretch;
        for (const unsigned int diagonal : {0u, 5u, 10u}) {
            stretch[diagonal] = static_cast<float>(random.real(0.5, 1.6));
        }
        stretch[4] = random.one_in(2) ? static_cast<float>(random.real(-0.5, 0.5)) : 0.0f;
        polygon.matrix_transform(stretch);
        axes.point = polygon.get_point();
        for (ox_3dvector* axis : {&axes.dx, &axes.dy}) {
            const ox_3dvector v = *axis;
            *axis = ox_3dvector(stretch[0] * v.x + stretch[4] * v.y + stretch[8] * v.z,
                                stretch[1] * v.x + stretch[5] * v.y + stretch[9] * v.z,
                                stretch[2] * v.x + stretch[6] * v.y + stretch[10] * v.z);
        }
        expect_same(polygon.get_best_center(),
                    reference::best_center(polygon, axes, ox_3dvector()));
        ASSERT_FALSE(HasFailure()) << "polygon " << i;
    }
}
