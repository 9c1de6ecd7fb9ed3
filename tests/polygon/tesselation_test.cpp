// Triangles and area.

#include <cmath>

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using support::contour;
using support::rectangle;
using support::rectangle_polygon;

namespace {

ox_3dvector twice_area(ox_polygon& polygon, int triangle) {
    const ox_list<ox_3dvector>& v = polygon.get_tesselation_vertices();
    const ox_list<unsigned int>& t = polygon.get_tesselation_triangles();
    const ox_3dvector& a = v[static_cast<int>(t[3 * triangle])];
    const ox_3dvector& b = v[static_cast<int>(t[3 * triangle + 1])];
    const ox_3dvector& c = v[static_cast<int>(t[3 * triangle + 2])];
    return ox_cross(b - a, c - a);
}

} // namespace

TEST(OxPolygonTesselation, LoneTriangleIsItsOwnTessellation) {
    ox_polygon polygon;
    polygon.add_contour(contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(1.0f, 0.0f, 0.0f),
                                 ox_3dvector(0.0f, 1.0f, 0.0f)}));
    expect_same_elements(polygon.get_tesselation_vertices(), polygon.get_contour_vertices());
    const ox_list<unsigned int>& triangles = polygon.get_tesselation_triangles();
    ASSERT_EQ(triangles.size(), 3);
    EXPECT_EQ(triangles[0], 0u);
    EXPECT_EQ(triangles[1], 1u);
    EXPECT_EQ(triangles[2], 2u);
    EXPECT_FLOAT_EQ(polygon.get_area(), 0.5f);
}

TEST(OxPolygonTesselation, UnitSquareGivesTwoCounterClockwiseTriangles) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    ASSERT_EQ(polygon.get_tesselation_triangles().size(), 6);
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
    for (int t = 0; t < 2; ++t) {
        EXPECT_GT(ox_dot(twice_area(polygon, t), polygon.get_normal()), 0.0f);
    }
}

TEST(OxPolygonTesselation, HoleIsLeftOut) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 4, 4));
    polygon.add_contour(rectangle(1, 1, 3, 3));
    EXPECT_FLOAT_EQ(polygon.get_area(), 12.0f);
    for (int t = 0; t < polygon.get_tesselation_triangles().size() / 3; ++t) {
        EXPECT_GT(ox_dot(twice_area(polygon, t), polygon.get_normal()), 0.0f);
    }
}

TEST(OxPolygonTesselation, IslandInAHoleIsFilled) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 8, 8));
    polygon.add_contour(rectangle(1, 1, 7, 7));
    polygon.add_contour(rectangle(2, 2, 6, 6));
    EXPECT_FLOAT_EQ(polygon.get_area(), 64.0f - 36.0f + 16.0f);
}

TEST(OxPolygonTesselation, PrimitivesHaveVerticesOfTheirOwn) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 8, 8));
    polygon.add_contour(rectangle(1, 1, 3, 3));
    polygon.add_contour(rectangle(4, 5, 7, 6));
    EXPECT_GT(polygon.get_tesselation_vertices().size(), polygon.get_contour_vertices().size());
}

TEST(OxPolygonTesselation, CollinearVerticesOfANewPlaneAreSwallowed) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.get_contour_vertices();
    polygon.set_normal(ox_3dvector(1.0f, 0.0f, 0.0f));
    EXPECT_EQ(polygon.get_area(), 0.0f) << "seen edge on";
}

TEST(OxPolygonTesselation, EmptyPolygonHasNoTriangle) {
    ox_polygon polygon(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
    EXPECT_EQ(polygon.get_tesselation_vertices().size(), 0);
    EXPECT_EQ(polygon.get_tesselation_triangles().size(), 0);
    EXPECT_EQ(polygon.get_area(), 0.0f);
}

TEST(OxPolygonTesselation, DegenerateLoneTriangleStaysWithZeroArea) {
    ox_polygon polygon(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
    polygon.add_contour(contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(1.0f, 0.0f, 0.0f),
                                 ox_3dvector(2.0f, 0.0f, 0.0f)}));
    EXPECT_EQ(polygon.get_tesselation_triangles().size(), 3);
    EXPECT_EQ(polygon.get_area(), 0.0f);
}

TEST(OxPolygonTesselation, TessellationIsComputedAnewAfterAChange) {
    ox_polygon polygon = rectangle_polygon(0, 0, 2, 2);
    EXPECT_FLOAT_EQ(polygon.get_area(), 4.0f);
    polygon.substracts(rectangle_polygon(0, 0, 1, 2));
    EXPECT_NEAR(polygon.get_area(), 2.0f, 1e-5f);
    polygon.offset(1.0f, ox_polygon::join_miter);
    EXPECT_FLOAT_EQ(polygon.get_area(), 12.0f);
}

TEST(OxPolygonTesselation, TriangleAreaIsHerons) {
    EXPECT_EQ(ox_polygon::compute_triangle_area(ox_3dvector(0.0f, 0.0f, 0.0f),
                                                ox_3dvector(3.0f, 0.0f, 0.0f),
                                                ox_3dvector(0.0f, 4.0f, 0.0f)),
              6.0f);
}

TEST(OxPolygonTesselation, AreaOfAFlatTriangleIsZero) {
    const ox_3dvector a(0.0f, 0.0f, 0.0f);
    const ox_3dvector b(1.0f, 0.0f, 0.0f);
    EXPECT_EQ(ox_polygon::compute_triangle_area(a, a, a), 0.0f);
    EXPECT_EQ(ox_polygon::compute_triangle_area(a, b, b), 0.0f);
    EXPECT_EQ(ox_polygon::compute_triangle_area(a, b, ox_3dvector(2.0f, 0.0f, 0.0f)), 0.0f);
}

TEST(OxPolygonTesselation, AreaOfATriangleThatIsNotANumberIsZero) {
    const float nan = std::nanf("");
    EXPECT_EQ(ox_polygon::compute_triangle_area(ox_3dvector(nan, 0.0f, 0.0f),
                                                ox_3dvector(1.0f, 0.0f, 0.0f),
                                                ox_3dvector(0.0f, 1.0f, 0.0f)),
              0.0f);
}
