// Perimeter, bounding box and the count of outer contours.

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using ox::ox_polygon;
using support::rectangle;
using support::rectangle_polygon;

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
    expect_same_vector(polygon.get_bounding_box().size, ox_3dvector(1.0f, 1.0f, 0.0f));
    polygon.add_contour(rectangle(4, 4, 6, 6));
    expect_same_vector(polygon.get_bounding_box().size, ox_3dvector(6.0f, 6.0f, 0.0f));
    polygon.intersects(rectangle_polygon(4, 4, 5, 5));
    expect_same_vector(polygon.get_bounding_box().origin, ox_3dvector(4.0f, 4.0f, 0.0f));
    expect_same_vector(polygon.get_bounding_box().size, ox_3dvector(1.0f, 1.0f, 0.0f));
}

TEST(OxPolygonMeasures, BoundingBoxOfAnEmptyPolygonIsEmpty) {
    ox_polygon polygon;
    EXPECT_TRUE(polygon.get_bounding_box().is_empty());
    expect_same_vector(polygon.get_bounding_box().origin, ox_3dvector());
    expect_same_vector(polygon.get_bounding_box().size, ox_3dvector(-1.0f, 0.0f, 0.0f));
}

TEST(OxPolygonMeasures, OuterContoursAreCounted) {
    ox_polygon polygon;
    EXPECT_EQ(polygon.count_outer_contours(), 0);
    polygon.add_contour(rectangle(0, 0, 4, 4));
    polygon.add_contour(rectangle(1, 1, 2, 2));
    polygon.add_contour(rectangle(10, 10, 12, 12));
    EXPECT_EQ(polygon.count_outer_contours(), 2);
}
