// Input that no caller should give, and every caller may: nothing crashes, hangs or throws.

#include <cmath>
#include <limits>

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_matrix;
using ox::ox_polygon;
using support::contour;
using support::generator;
using support::rectangle;
using support::rectangle_polygon;

namespace {

const float nan_value = std::numeric_limits<float>::quiet_NaN();
const float infinity = std::numeric_limits<float>::infinity();
const ox_3dvector up(0.0f, 0.0f, 1.0f);

// In model units; the integer grid ends at 4.6e14.
const float too_far = 1e15f;

ox_list<ox_3dvector> square_with(const ox_3dvector& bad) {
    ox_list<ox_3dvector> result = rectangle(0, 0, 1, 1);
    result[2] = bad;
    return result;
}

void query_everything(ox_polygon& polygon) {
    expect_invariants(polygon);
    polygon.get_bounding_box();
    polygon.get_perimeter();
    polygon.get_area();
    polygon.count_outer_contours();
}

float any_length(generator& random) {
    switch (random.between(0, 5)) {
    case 0:
        return random.any_float();
    case 1:
        return static_cast<float>(random.real(-4e14, 4e14));
    case 2:
        return static_cast<float>(random.real(-1e-3, 1e-3));
    default:
        return static_cast<float>(random.between(-4, 4));
    }
}

ox_3dvector any_vector(generator& random) {
    const float x = any_length(random);
    const float y = any_length(random);
    const float z = any_length(random);
    return ox_3dvector(x, y, z);
}

ox_list<ox_3dvector> any_contour(generator& random, bool flat) {
    ox_list<ox_3dvector> result;
    const int n = random.between(0, 8);
    for (int i = 0; i < n; ++i) {
        ox_3dvector v = any_vector(random);
        if (flat) {
            v.z = 0.0f;
        }
        result.push_right(v);
    }
    return result;
}

void do_anything(generator& random, ox_polygon& polygon, ox_polygon& other) {
    switch (random.between(0, 9)) {
    case 0:
        polygon.set_normal(any_vector(random));
        break;
    case 1:
        polygon.set_point(any_vector(random));
        break;
    case 2:
        polygon.reverse();
        break;
    case 3: {
        ox_matrix m;
        for (unsigned int i = 0; i < 16; ++i) {
            m[i] = any_length(random);
        }
        polygon.matrix_transform(m);
        break;
    }
    case 4:
        polygon.unites(other);
        break;
    case 5:
        polygon.substracts(other);
        break;
    case 6:
        polygon.intersects(other);
        break;
    case 7:
        polygon.offset(any_length(random), 2 * random.between(0, 1));
        break;
    default:
        polygon.add_contour(any_contour(random, random.one_in(2)));
        break;
    }
}

} // namespace

TEST(HostilePolygon, BadContoursAreDroppedAloneAndTheBatchStays) {
    const ox_3dvector bad_points[] = {
        ox_3dvector(nan_value, 1.0f, 0.0f), ox_3dvector(1.0f, infinity, 0.0f),
        ox_3dvector(-infinity, 1.0f, 0.0f), ox_3dvector(1.0f, 1.0f, nan_value),
        ox_3dvector(too_far, 1.0f, 0.0f),   ox_3dvector(1.0f, -3e38f, 0.0f)};
    for (const ox_3dvector& bad : bad_points) {
        ox_polygon polygon;
        polygon.add_contour(rectangle(10, 0, 11, 1));
        polygon.add_contour(square_with(bad));
        polygon.add_contour(rectangle(20, 0, 21, 1));
        EXPECT_EQ(count_contours(polygon), 2);
        EXPECT_FLOAT_EQ(polygon.get_area(), 2.0f);
    }
}

TEST(HostilePolygon, ThePlaneComesFromTheNextGoodContour) {
    for (const ox_3dvector& bad :
         {ox_3dvector(nan_value, 1.0f, 0.0f), ox_3dvector(too_far, too_far, 0.0f),
          ox_3dvector(3e38f, -3e38f, 0.0f)}) {
        ox_polygon polygon;
        polygon.add_contour(square_with(bad));
        polygon.add_contour(reversed(rectangle(0, 0, 1, 1, 5.0f)));
        EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
        expect_same_vector(polygon.get_normal(), ox_3dvector(0.0f, 0.0f, -1.0f));
        EXPECT_EQ(polygon.get_point().z, 5.0f);
    }
}

TEST(HostilePolygon, OnlyBadContoursLeaveThePlaneUndefined) {
    ox_polygon polygon;
    polygon.set_point(ox_3dvector(1.0f, 2.0f, 3.0f));
    polygon.add_contour(square_with(ox_3dvector(nan_value, 0.0f, 0.0f)));
    expect_empty_region(polygon);
    expect_same_vector(polygon.get_normal(), ox_3dvector());
    expect_same_vector(polygon.get_point(), ox_3dvector(1.0f, 2.0f, 3.0f));
}

TEST(HostilePolygon, EarlierContoursSurviveABadOne) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.get_area();
    polygon.add_contour(square_with(ox_3dvector(nan_value, 0.0f, 0.0f)));
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
}

TEST(HostilePolygon, BadLoneTriangleLeavesAnEmptyRegion) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.get_area();
    polygon.add_contour(contour({ox_3dvector(nan_value, 0.0f, 0.0f), ox_3dvector(1.0f, 0.0f, 0.0f),
                                 ox_3dvector(0.0f, 1.0f, 0.0f)}));
    expect_empty_region(polygon);
    EXPECT_EQ(polygon.get_normal().z, 1.0f);
}

TEST(HostilePolygon, NormalThatIsNotANumberLeavesAnEmptyRegion) {
    for (const float bad : {nan_value, infinity, -infinity}) {
        ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
        polygon.get_area();
        polygon.set_normal(ox_3dvector(bad, 0.0f, 1.0f));
        expect_empty_region(polygon);
        polygon.add_contour(rectangle(0, 0, 1, 1));
        expect_empty_region(polygon);
    }
}

TEST(HostilePolygon, PointThatIsNotANumberLeavesAnEmptyRegion) {
    for (const float bad : {nan_value, infinity, -infinity}) {
        ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
        polygon.get_area();
        polygon.set_point(ox_3dvector(0.0f, bad, 0.0f));
        expect_empty_region(polygon);
        polygon.add_contour(rectangle(0, 0, 1, 1));
        expect_empty_region(polygon);
        polygon.set_point(ox_3dvector());
        polygon.add_contour(rectangle(0, 0, 1, 1));
        EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f) << "a good point heals the plane";
    }
}

TEST(HostilePolygon, MatrixThatIsNotANumberLeavesAnEmptyRegion) {
    for (const float bad : {nan_value, infinity, 3e38f}) {
        ox_polygon polygon = rectangle_polygon(1, 1, 20, 20);
        ox_matrix m;
        m[0] = bad;
        polygon.matrix_transform(m);
        expect_empty_region(polygon);
    }
}

TEST(HostilePolygon, HugeScalingNeverReachesTheClippingLibrary) {
    ox_polygon polygon = rectangle_polygon(1, 1, 2, 2);
    ox_matrix m;
    m.scaling(1e30f, 1e30f, 1e30f);
    polygon.matrix_transform(m);
    polygon.get_area();
    polygon.unites(rectangle_polygon(0, 0, 1, 1));
    query_everything(polygon);
}

TEST(HostilePolygon, FarAwayContoursOfTheOtherAreLeftOut) {
    ox_polygon far_away(ox_3dvector(too_far, 0.0f, 0.0f), up);
    far_away.add_contour(rectangle(too_far, 0, 1.5f * too_far, too_far));
    ASSERT_EQ(count_contours(far_away), 0) << "wider than the grid";
    ox_polygon distant(ox_3dvector(too_far, 0.0f, 0.0f), up);
    distant.add_contour(rectangle(too_far, 0, 1.1f * too_far, 1e14f));
    ASSERT_EQ(count_contours(distant), 1);
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.unites(distant);
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
    polygon.substracts(distant);
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
    polygon.intersects(distant);
    expect_empty_region(polygon);
}

TEST(HostilePolygon, ContoursUpToTheEndOfTheGridAreMerged) {
    ox_polygon polygon(ox_3dvector(), up);
    polygon.add_contour(rectangle(-4.6e14f, -4.6e14f, 4.6e14f, 4.6e14f));
    EXPECT_EQ(count_contours(polygon), 1);
    query_everything(polygon);
}

TEST(HostilePolygon, ContoursBeyondTheEndOfTheGridAreDropped) {
    ox_polygon polygon(ox_3dvector(), up);
    polygon.add_contour(rectangle(-4.62e14f, -4.62e14f, 4.62e14f, 4.62e14f));
    expect_empty_region(polygon);
}

TEST(HostilePolygon, LoneTriangleOfHugeCoordinatesIsKept) {
    ox_polygon polygon(ox_3dvector(), up);
    polygon.add_contour(contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(1e38f, 0.0f, 0.0f),
                                 ox_3dvector(0.0f, 1e38f, 0.0f)}));
    EXPECT_EQ(count_contours(polygon), 1);
    query_everything(polygon);
}

TEST(HostilePolygon, TessellationOfHugeCoordinatesEnds) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 4, 4));
    polygon.add_contour(rectangle(1, 1, 3, 3));
    ox_matrix m;
    m.scaling(5e37f, 5e37f, 1.0f);
    polygon.matrix_transform(m);
    query_everything(polygon);
}

TEST(HostilePolygon, RepeatedCollinearAndSpikedInputNeverEndsTheTessellator) {
    generator random(31415);
    for (int round = 0; round < 300; ++round) {
        ox_polygon polygon(ox_3dvector(), up);
        const int contours = random.between(1, 5);
        for (int c = 0; c < contours; ++c) {
            ox_list<ox_3dvector> points;
            const int n = random.between(1, 20);
            for (int i = 0; i < n; ++i) {
                const float x = static_cast<float>(random.between(0, 3));
                const float y = static_cast<float>(random.between(0, 3));
                points.push_right(ox_3dvector(x, y, 0.0f));
            }
            polygon.add_contour(points);
        }
        query_everything(polygon);
        polygon.set_normal(ox_3dvector(1.0f, 0.0f, 0.001f));
        query_everything(polygon);
    }
}

TEST(HostilePolygon, RandomOperationsOnRandomFloatsAreSurvived) {
    const int before = ox_polygon::get_instanced();
    generator random(27182);
    for (int round = 0; round < 3000; ++round) {
        ox_polygon first;
        ox_polygon second;
        for (int step = 0; step < 8; ++step) {
            do_anything(random, first, second);
            do_anything(random, second, first);
        }
        query_everything(first);
        query_everything(second);
    }
    EXPECT_EQ(ox_polygon::get_instanced(), before);
}

TEST(HostilePolygon, RandomContoursNearTheEndOfTheGridAreSurvived) {
    generator random(16180);
    for (int round = 0; round < 1000; ++round) {
        ox_polygon polygon(ox_3dvector(), up);
        for (int c = 0; c < 3; ++c) {
            ox_list<ox_3dvector> points;
            const int n = random.between(3, 10);
            for (int i = 0; i < n; ++i) {
                const double extent = random.one_in(3) ? 4.6e14 : 10.0;
                const float x = static_cast<float>(random.real(-extent, extent));
                const float y = static_cast<float>(random.real(-extent, extent));
                points.push_right(ox_3dvector(x, y, 0.0f));
            }
            polygon.add_contour(points);
        }
        query_everything(polygon);
        polygon.offset(static_cast<float>(random.real(-1e14, 1e14)), ox_polygon::join_miter);
        query_everything(polygon);
    }
}
