#include <limits>

#include <gtest/gtest.h>

#include <ox/polygon/ox_polygon.h>
#include <tests/reference/intersect_by_plane.h>
#include <tests/support/generator.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using support::contour;
using support::generator;
using support::rectangle;
using support::rectangle_polygon;

const ox_3dvector along_y(0.0f, 1.0f, 0.0f);

void expect_points(const ox_list<ox_3dvector>& actual, const ox_list<ox_3dvector>& expected) {
    ASSERT_EQ(actual.size(), expected.size());
    for (int i = 0; i < actual.size(); ++i) {
        EXPECT_FLOAT_EQ(actual.at(i).x, expected.at(i).x) << i;
        EXPECT_FLOAT_EQ(actual.at(i).y, expected.at(i).y) << i;
        EXPECT_FLOAT_EQ(actual.at(i).z, expected.at(i).z) << i;
    }
}

void expect_plain_result(ox_polygon& polygon, const ox_3dvector& point, const ox_3dvector& normal) {
    const ox_list<ox_3dvector> actual = polygon.intersect_by_plane(point, normal);
    const std::vector<ox_3dvector> expected = reference::intersect_by_plane(polygon, point, normal);
    ASSERT_EQ(static_cast<std::size_t>(actual.size()), expected.size());
    for (int i = 0; i < actual.size(); ++i) {
        EXPECT_EQ(actual.at(i), expected[static_cast<std::size_t>(i)]) << "point " << i;
    }
}

// Two teeth that point up from a common base.
ox_list<ox_3dvector> comb() {
    return contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(3.0f, 0.0f, 0.0f),
                    ox_3dvector(3.0f, 2.0f, 0.0f), ox_3dvector(2.0f, 2.0f, 0.0f),
                    ox_3dvector(2.0f, 1.0f, 0.0f), ox_3dvector(1.0f, 1.0f, 0.0f),
                    ox_3dvector(1.0f, 2.0f, 0.0f), ox_3dvector(0.0f, 2.0f, 0.0f)});
}

} // namespace

TEST(OxPolygonIntersectByPlane, FindsWhereTheLineEntersAndLeavesASquare) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    expect_points(square.intersect_by_plane(ox_3dvector(0.0f, 0.25f, 0.0f), along_y),
                  contour({ox_3dvector(0.0f, 0.25f, 0.0f), ox_3dvector(1.0f, 0.25f, 0.0f)}));
}

TEST(OxPolygonIntersectByPlane, RunsAlongTheCrossProductOfTheNormals) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    expect_points(square.intersect_by_plane(ox_3dvector(0.0f, 0.25f, 0.0f), -along_y),
                  contour({ox_3dvector(1.0f, 0.25f, 0.0f), ox_3dvector(0.0f, 0.25f, 0.0f)}));
}

TEST(OxPolygonIntersectByPlane, FindsOneStretchPerToothOfAComb) {
    ox_polygon polygon;
    polygon.add_contour(comb());
    expect_points(polygon.intersect_by_plane(ox_3dvector(0.0f, 1.5f, 0.0f), along_y),
                  contour({ox_3dvector(0.0f, 1.5f, 0.0f), ox_3dvector(1.0f, 1.5f, 0.0f),
                           ox_3dvector(2.0f, 1.5f, 0.0f), ox_3dvector(3.0f, 1.5f, 0.0f)}));
}

TEST(OxPolygonIntersectByPlane, FindsOneStretchPerDisjointContour) {
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    polygon.add_contour(rectangle(2.0f, 0.0f, 3.0f, 1.0f));
    EXPECT_EQ(polygon.intersect_by_plane(ox_3dvector(0.0f, 0.5f, 0.0f), along_y).size(), 4);
}

TEST(OxPolygonIntersectByPlane, IsEmptyForALineThroughAHole) {
    // The flags of outline and hole do not alternate along the line, so the whole answer is
    // withheld, although the line clearly has two stretches inside.
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 4.0f, 4.0f);
    polygon.add_contour(rectangle(1.0f, 1.0f, 3.0f, 3.0f));
    EXPECT_EQ(polygon.intersect_by_plane(ox_3dvector(0.0f, 2.0f, 0.0f), along_y).size(), 0);
    EXPECT_EQ(polygon.intersect_by_plane(ox_3dvector(0.0f, 0.5f, 0.0f), along_y).size(), 2)
        << "a line that misses the hole";
}

TEST(OxPolygonIntersectByPlane, IsEmptyForParallelPlanes) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    const ox_3dvector up(0.0f, 0.0f, 1.0f);
    EXPECT_EQ(square.intersect_by_plane(ox_3dvector(), up).size(), 0);
    EXPECT_EQ(square.intersect_by_plane(ox_3dvector(), -up).size(), 0);
}

TEST(OxPolygonIntersectByPlane, TakesALongSlantedNormalForParallel) {
    // The product with the polygon's normal is taken with the normal as given.
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    const ox_3dvector slanted(0.0f, 1.0f, 0.5f);
    const ox_3dvector middle(0.5f, 0.5f, 0.0f);
    EXPECT_EQ(square.intersect_by_plane(middle, slanted).size(), 2);
    EXPECT_EQ(square.intersect_by_plane(middle, slanted * 2.0f).size(), 0);
}

TEST(OxPolygonIntersectByPlane, IsEmptyWithoutContoursOrForALineThatMisses) {
    ox_polygon empty;
    EXPECT_EQ(empty.intersect_by_plane(ox_3dvector(), along_y).size(), 0);
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    EXPECT_EQ(square.intersect_by_plane(ox_3dvector(0.0f, 2.0f, 0.0f), along_y).size(), 0);
}

TEST(OxPolygonIntersectByPlane, IgnoresAVertexThatOnlyTouchesTheLine) {
    ox_polygon triangle;
    triangle.add_contour(contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(2.0f, 0.0f, 0.0f),
                                  ox_3dvector(1.0f, 1.0f, 0.0f)}));
    EXPECT_EQ(triangle.intersect_by_plane(ox_3dvector(0.0f, 1.0f, 0.0f), along_y).size(), 0);
}

TEST(OxPolygonIntersectByPlane, PassesThroughVerticesOnTheLine) {
    ox_polygon diamond;
    diamond.add_contour(contour({ox_3dvector(1.0f, 0.0f, 0.0f), ox_3dvector(0.0f, 1.0f, 0.0f),
                                 ox_3dvector(-1.0f, 0.0f, 0.0f), ox_3dvector(0.0f, -1.0f, 0.0f)}));
    expect_points(diamond.intersect_by_plane(ox_3dvector(), along_y),
                  contour({ox_3dvector(-1.0f, 0.0f, 0.0f), ox_3dvector(1.0f, 0.0f, 0.0f)}));
}

TEST(OxPolygonIntersectByPlane, EqualsThePlainVersionForALineAlongASide) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    ox_polygon teeth;
    teeth.add_contour(comb());
    for (const float y : {0.0f, 1.0f, 2.0f}) {
        expect_plain_result(square, ox_3dvector(0.0f, y, 0.0f), along_y);
        expect_plain_result(teeth, ox_3dvector(0.0f, y, 0.0f), along_y);
        expect_plain_result(teeth, ox_3dvector(0.0f, y, 0.0f), -along_y);
    }
}

TEST(OxPolygonIntersectByPlane, IsEmptyForANormalThatIsZeroOrNotFinite) {
    const float infinity = std::numeric_limits<float>::infinity();
    const float not_a_number = std::numeric_limits<float>::quiet_NaN();
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    const ox_3dvector middle(0.5f, 0.5f, 0.0f);
    EXPECT_EQ(square.intersect_by_plane(middle, ox_3dvector()).size(), 0);
    for (const float bad : {infinity, -infinity, not_a_number}) {
        for (unsigned int axis = 0; axis < 3; ++axis) {
            ox_3dvector v = along_y;
            v[axis] = bad;
            EXPECT_EQ(square.intersect_by_plane(middle, v).size(), 0);
            EXPECT_EQ(square.intersect_by_plane(v, along_y).size(), 0);
        }
    }
}

TEST(OxPolygonIntersectByPlane, TakesAPlanePointOfLargeFiniteNumbers) {
    ox_polygon square = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    const auto points =
        square.intersect_by_plane(ox_3dvector(0.5f, 2e38f, 2e38f), ox_3dvector(1.0f, 0.0f, 0.0f));
    expect_points(points, contour({ox_3dvector(0.5f, 1.0f, 0.0f), ox_3dvector(0.5f, 0.0f, 0.0f)}));
}

TEST(OxPolygonIntersectByPlane, SurvivesPlanesOfAnyNumbers) {
    generator random(801);
    ox_polygon polygon = rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    polygon.add_contour(rectangle(2.0f, 0.0f, 3.0f, 1.0f));
    for (int i = 0; i < 20000; ++i) {
        ox_3dvector point;
        ox_3dvector normal;
        for (unsigned int axis = 0; axis < 3; ++axis) {
            point[axis] = random.one_in(3) ? random.any_float() : 0.5f;
            normal[axis] = random.any_float();
        }
        EXPECT_EQ(polygon.intersect_by_plane(point, normal).size() % 2, 0);
    }
}

TEST(OxPolygonIntersectByPlane, EqualsThePlainVersionForTanglesAndPlanesThroughTheirVertices) {
    generator random(802);
    for (int i = 0; i < 3000; ++i) {
        ox_polygon polygon;
        const int contours = random.between(1, 3);
        for (int c = 0; c < contours; ++c) {
            polygon.add_contour(support::random_tangle(random, random.between(3, 7), 2));
        }
        const ox_list<ox_3dvector> vertices = polygon.get_contour_vertices();
        for (int k = 0; k < 4 && vertices.size() > 0; ++k) {
            const ox_3dvector& a = vertices[random.between(0, vertices.size() - 1)];
            const ox_3dvector& b = vertices[random.between(0, vertices.size() - 1)];
            const ox_3dvector through_both(a.y - b.y, b.x - a.x, 0.0f);
            expect_plain_result(polygon, a, through_both);
            expect_plain_result(polygon, a, along_y);
            expect_plain_result(polygon, support::random_point(random, 2.0),
                                support::random_frame(random).x);
            ASSERT_FALSE(HasFailure()) << "polygon " << i;
        }
    }
}

TEST(OxPolygonIntersectByPlane, EqualsThePlainVersionForShapesOfWholeNumbers) {
    // Many vertices lie exactly on the plane, many keys are equal.
    generator random(803);
    for (int i = 0; i < 3000; ++i) {
        ox_polygon polygon;
        const int contours = random.between(1, 3);
        for (int c = 0; c < contours; ++c) {
            ox_list<ox_3dvector> vertices;
            const int corners = random.between(3, 8);
            for (int k = 0; k < corners; ++k) {
                const float x = static_cast<float>(random.between(-2, 2));
                const float y = static_cast<float>(random.between(-2, 2));
                vertices.push_right(ox_3dvector(x, y, 0.0f));
            }
            polygon.add_contour(vertices);
        }
        for (int y = -2; y <= 2; ++y) {
            const ox_3dvector point(0.0f, static_cast<float>(y), 0.0f);
            expect_plain_result(polygon, point, along_y);
            expect_plain_result(polygon, point, ox_3dvector(1.0f, 1.0f, 0.25f));
        }
        ASSERT_FALSE(HasFailure()) << "polygon " << i;
    }
}
