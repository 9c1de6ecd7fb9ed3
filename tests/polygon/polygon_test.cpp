// Construction, copying, clearing and the count of living polygons.

#include <utility>

#include <ox/polygon/ox_polygon.h>
#include <ox/polygon/ox_polygon_pieces.h>
#include <tests/polygon/polygon_checks.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using ox::ox_polygon;
using support::rectangle;
using support::rectangle_polygon;

TEST(OxPolygon, NewPolygonHasNoContourAndAnswersEveryQuery) {
    ox_polygon polygon;
    expect_empty_region(polygon);
    expect_same_vector(polygon.get_normal(), ox_3dvector());
    expect_same_vector(polygon.get_point(), ox_3dvector());
}

TEST(OxPolygon, PlaneConstructorNormalisesTheNormal) {
    ox_polygon polygon(ox_3dvector(1.0f, 2.0f, 3.0f), ox_3dvector(0.0f, 0.0f, -4.0f));
    expect_same_vector(polygon.get_point(), ox_3dvector(1.0f, 2.0f, 3.0f));
    expect_same_vector(polygon.get_normal(), ox_3dvector(0.0f, 0.0f, -1.0f));
}

TEST(OxPolygon, PlaneConstructorRefusesAShortNormalButKeepsThePoint) {
    ox_polygon polygon(ox_3dvector(1.0f, 2.0f, 3.0f), ox_3dvector(0.0f, 0.0f, 0.00009f));
    expect_same_vector(polygon.get_point(), ox_3dvector(1.0f, 2.0f, 3.0f));
    expect_same_vector(polygon.get_normal(), ox_3dvector());
}

TEST(OxPolygon, PlaneConstructorFixesTheSideWhateverTheContourDirection) {
    for (const bool turned : {false, true}) {
        ox_polygon polygon(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
        polygon.add_contour(turned ? reversed(rectangle(0, 0, 1, 1)) : rectangle(0, 0, 1, 1));
        expect_same_vector(polygon.get_normal(), ox_3dvector(0.0f, 0.0f, 1.0f));
        EXPECT_EQ(ox_polygon::is_clockwise(polygon.get_contour_vertices(), polygon.get_normal()),
                  -1);
    }
}

TEST(OxPolygon, InstanceCountRisesWithEveryPolygonAndFallsBack) {
    const int before = ox_polygon::get_instanced();
    {
        ox_polygon empty;
        ox_polygon with_plane(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
        EXPECT_EQ(ox_polygon::get_instanced(), before + 2);
        const ox_polygon copy(with_plane);
        EXPECT_EQ(ox_polygon::get_instanced(), before + 3);
        empty = copy;
        EXPECT_EQ(ox_polygon::get_instanced(), before + 3);
    }
    EXPECT_EQ(ox_polygon::get_instanced(), before);
}

TEST(OxPolygon, InstanceCountRisesWithThePiecesOfACutAndFallsBack) {
    ox_polygon square = rectangle_polygon(0, 0, 1, 1);
    const int before = ox_polygon::get_instanced();
    const auto pieces =
        square.cut_by_plane(ox_3dvector(0.5f, 0.0f, 0.0f), ox_3dvector(1.0f, 0.0f, 0.0f), true);
    EXPECT_EQ(ox_polygon::get_instanced(), before + 2);
    for (ox_polygon* piece : pieces) {
        delete piece;
    }
    EXPECT_EQ(ox_polygon::get_instanced(), before);
}

TEST(OxPolygon, ContourComputationTimeIsAlwaysZero) {
    EXPECT_EQ(ox_polygon::get_compute_contour_time(), 0.0);
    rectangle_polygon(0, 0, 1, 1).get_area();
    EXPECT_EQ(ox_polygon::get_compute_contour_time(), 0.0);
}

TEST(OxPolygon, CopyOfAnUnqueriedPolygonHoldsMergedContours) {
    ox_polygon source;
    source.add_contour(rectangle(0, 0, 4, 4));
    source.add_contour(rectangle(1, 1, 2, 2));
    ox_polygon copy(source);
    EXPECT_EQ(count_contours(copy), 2);
    expect_same_contours(copy, source);
}

TEST(OxPolygon, CopiesAreDeep) {
    ox_polygon source = rectangle_polygon(0, 0, 1, 1);
    ox_polygon copy(source);
    ox_polygon assigned;
    assigned = source;
    source.clear();
    EXPECT_FLOAT_EQ(copy.get_area(), 1.0f);
    EXPECT_FLOAT_EQ(assigned.get_area(), 1.0f);
}

TEST(OxPolygon, CopyTakesAValidTessellationAlong) {
    ox_polygon source = rectangle_polygon(0, 0, 1, 1);
    source.get_area();
    ox_polygon copy(source);
    expect_same_elements(copy.get_tesselation_vertices(), source.get_tesselation_vertices());
    expect_same_elements(copy.get_tesselation_triangles(), source.get_tesselation_triangles());
    EXPECT_EQ(copy.get_area(), source.get_area());
}

TEST(OxPolygon, CopyFindsItsBoundingBoxAnew) {
    ox_polygon source = rectangle_polygon(1, 2, 4, 6);
    source.get_bounding_box();
    ox_polygon copy(source);
    expect_same_vector(copy.get_bounding_box().origin, ox_3dvector(1.0f, 2.0f, 0.0f));
    expect_same_vector(copy.get_bounding_box().size, ox_3dvector(3.0f, 4.0f, 0.0f));
}

TEST(OxPolygon, AssignmentToItselfChangesNothing) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    const ox_polygon& same = polygon;
    polygon = same;
    EXPECT_FLOAT_EQ(polygon.get_area(), 1.0f);
}

TEST(OxPolygon, ClearForgetsContoursAndPlane) {
    ox_polygon polygon = rectangle_polygon(0, 0, 1, 1);
    polygon.get_area();
    polygon.clear();
    expect_empty_region(polygon);
    polygon.add_contour(reversed(rectangle(0, 0, 1, 1)));
    expect_same_vector(polygon.get_normal(), ox_3dvector(0.0f, 0.0f, -1.0f));
}

TEST(OxPolygon, ClearDropsPendingContours) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0, 0, 1, 1));
    polygon.clear();
    expect_empty_region(polygon);
}

TEST(OxPolygon, ClearKeepsTheStoredPointAndNormal) {
    ox_polygon polygon(ox_3dvector(1.0f, 2.0f, 3.0f), ox_3dvector(0.0f, 1.0f, 0.0f));
    polygon.clear();
    expect_same_vector(polygon.get_point(), ox_3dvector(1.0f, 2.0f, 3.0f));
    expect_same_vector(polygon.get_normal(), ox_3dvector(0.0f, 1.0f, 0.0f));
}

TEST(OxPolygon, MoveTakesTheContoursAndLeavesANewPolygon) {
    ox_polygon source = rectangle_polygon(0, 0, 1, 1);
    const int before = ox_polygon::get_instanced();
    ox_polygon taken(std::move(source));
    EXPECT_EQ(ox_polygon::get_instanced(), before + 1);
    EXPECT_EQ(count_contours(taken), 1);
    expect_empty_region(source);
}

TEST(OxPolygon, MoveAssignmentAndSwapExchangeTheContours) {
    ox_polygon small = rectangle_polygon(0, 0, 1, 1);
    ox_polygon large = rectangle_polygon(0, 0, 2, 2);
    small.swap(large);
    EXPECT_FLOAT_EQ(small.get_area(), 4.0f);
    small = std::move(large);
    EXPECT_FLOAT_EQ(small.get_area(), 1.0f);
}

TEST(OxPolygonPieces, DeletesThePiecesOfACut) {
    ox_polygon square = rectangle_polygon(0, 0, 1, 1);
    const int before = ox_polygon::get_instanced();
    {
        const ox::ox_polygon_pieces pieces(
            square, square.cut_by_plane(ox_3dvector(0.5f, 0.0f, 0.0f),
                                        ox_3dvector(1.0f, 0.0f, 0.0f), true));
        EXPECT_EQ(pieces.size(), 2);
        EXPECT_FALSE(pieces.is_receiver());
        EXPECT_NEAR(pieces[0].get_area(), 0.5f, 1e-4f);
    }
    EXPECT_EQ(ox_polygon::get_instanced(), before);
}

TEST(OxPolygonPieces, SparesThePolygonThatWasNotCut) {
    ox_polygon square = rectangle_polygon(0, 0, 1, 1);
    {
        const ox::ox_polygon_pieces pieces(square, square.split_to_polygons());
        EXPECT_TRUE(pieces.is_receiver());
    }
    EXPECT_FLOAT_EQ(square.get_area(), 1.0f);
}

TEST(OxPolygonPieces, MovesHandTheirPolygonsOver) {
    ox_polygon squares = rectangle_polygon(0, 0, 1, 1);
    squares.add_contour(rectangle(2, 0, 3, 1));
    ox::ox_polygon_pieces first(squares, squares.split_to_polygons());
    const ox::ox_polygon_pieces second(std::move(first));
    EXPECT_EQ(first.size(), 0);
    EXPECT_EQ(second.size(), 2);
}
