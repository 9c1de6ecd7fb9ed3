#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include <ox/solid/ox_solid.h>
#include <tests/solid/solid_lists.h>
#include <tests/support/measures.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;
using ox_test::list_of;
using ox_test::unit_brick;

constexpr float no_number = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

/// A plate of 4 x 4 x 1 with a square tunnel of 2 x 2.
ox_solid plate_with_tunnel() {
    ox_polygon base = support::rectangle_polygon(0.0f, 0.0f, 4.0f, 4.0f);
    base.add_contour(support::rectangle(1.0f, 1.0f, 3.0f, 3.0f));
    ox_solid plate;
    plate.extrusion(base, ox_3dvector(0.0f, 0.0f, 1.0f));
    return plate;
}

/// The solid without its last face, which must have no holes.
ox_solid without_last_face(const ox_solid& solid) {
    ox_list<int> sizes = solid.get_contour_sizes();
    sizes.remove_right();
    ox_solid open = solid;
    open.set_contour_sizes(sizes);
    return open;
}

/// A solid of triangles or polygons, each vertex with an index of its own.
ox_solid solid_of(const std::vector<ox_list<ox_3dvector>>& faces) {
    ox_list<ox_3dvector> vertices;
    ox_list<unsigned int> contours;
    ox_list<int> sizes;
    for (const ox_list<ox_3dvector>& face : faces) {
        for (const ox_3dvector& vertex : face) {
            contours.push_right(static_cast<unsigned int>(vertices.size()));
            vertices.push_right(vertex);
        }
        sizes.push_right(face.size());
    }
    ox_solid solid;
    solid.set_vertices(vertices);
    solid.set_contours(contours);
    solid.set_contour_sizes(sizes);
    return solid;
}

ox_solid moved(const ox_solid& solid, const ox_3dvector& way) {
    ox_list<ox_3dvector> vertices = solid.get_vertices();
    for (ox_3dvector& vertex : vertices) {
        vertex = vertex + way;
    }
    ox_solid result = solid;
    result.set_vertices(vertices);
    return result;
}

/// The flat face of two triangles on one side and a square on the other: the diagonal has both
/// directions on one side only.
std::vector<ox_list<ox_3dvector>> square_and_triangles() {
    const ox_3dvector a(0.0f, 0.0f, 0.0f);
    const ox_3dvector b(2.0f, 0.0f, 0.0f);
    const ox_3dvector c(2.0f, 2.0f, 0.0f);
    const ox_3dvector d(0.0f, 2.0f, 0.0f);
    return {support::contour({a, b, c, d}), support::contour({a, c, b}),
            support::contour({a, d, c})};
}

// Volume and area

TEST(SolidMeasures, ABrickHasTheVolumeAndAreaOfItsSides) {
    ox_solid brick;
    brick.brick(ox_3dvector(1.0f, -2.0f, 3.0f), 2.0f, 3.0f, 4.0f);
    EXPECT_DOUBLE_EQ(brick.get_volume(), 24.0);
    EXPECT_DOUBLE_EQ(brick.get_surface_area(), 52.0);
}

TEST(SolidMeasures, AnEmptySolidMeasuresNothing) {
    const ox_solid empty;
    EXPECT_EQ(empty.get_volume(), 0.0);
    EXPECT_EQ(empty.get_surface_area(), 0.0);
    EXPECT_EQ(empty.get_open_edges(0.0f).size(), 0);
}

TEST(SolidMeasures, HolesAreTakenOffTheirFaces) {
    const ox_solid plate = plate_with_tunnel();
    EXPECT_DOUBLE_EQ(plate.get_volume(), 12.0);
    EXPECT_DOUBLE_EQ(plate.get_surface_area(), 2.0 * 12.0 + 16.0 + 8.0);
}

TEST(SolidMeasures, AShellInsideOutHasANegativeVolume) {
    ox_solid brick;
    brick.brick(ox_3dvector(), 1.0f, 1.0f, 1.0f);
    ox_list<unsigned int> contours;
    for (int i = brick.get_contours().size() - 1; i >= 0; --i) {
        contours.push_right(brick.get_contours()[i]);
    }
    brick.set_contours(contours);
    EXPECT_DOUBLE_EQ(brick.get_volume(), -1.0);
    EXPECT_DOUBLE_EQ(brick.get_surface_area(), 6.0);
    EXPECT_EQ(brick.get_open_edges(0.0f).size(), 0);
}

TEST(SolidMeasures, TheVolumeLosesNothingFarFromTheOrigin) {
    const ox_solid plate = moved(plate_with_tunnel(), ox_3dvector(4096.0f, -8192.0f, 2048.0f));
    EXPECT_DOUBLE_EQ(plate.get_volume(), 12.0);
}

TEST(SolidMeasures, AFaceInThePrimaryStorageCountsHoweverSmall) {
    ox_solid brick;
    brick.brick(ox_3dvector(), 1.0f, 1.0f, 1.0f);
    ox_list<ox_3dvector> vertices = brick.get_vertices();
    for (ox_3dvector& vertex : vertices) {
        vertex = vertex * 0.0009765625f;
    }
    brick.set_vertices(vertices);
    EXPECT_DOUBLE_EQ(brick.get_volume(), 1.0 / (1024.0 * 1024.0 * 1024.0));
    EXPECT_DOUBLE_EQ(brick.get_surface_area(), 6.0 / (1024.0 * 1024.0));
}

TEST(SolidMeasures, VolumeAndAreaAreThoseOfTheTriangles) {
    support::generator random(61);
    for (int i = 0; i < 200; ++i) {
        const support::frame axes = support::random_frame(random);
        const ox_3dvector centre = support::random_point(random, 20.0);
        ox_solid prism = support::random_prism(random, centre, axes);
        const support::measure measured = support::measure_solid(prism);
        EXPECT_NEAR(prism.get_volume(), measured.volume, 1e-3 * measured.area) << i;
        EXPECT_NEAR(prism.get_surface_area(), measured.area, 1e-3 * measured.area) << i;
    }
}

TEST(SolidMeasures, AVertexThatIsNotFiniteSpoilsTheMeasuresOfItsFacesOnly) {
    ox_solid brick = unit_brick();
    ox_list<ox_3dvector> vertices = brick.get_vertices();
    vertices.push_right(ox_3dvector(no_number, infinity, 0.0f));
    brick.set_vertices(vertices);
    EXPECT_DOUBLE_EQ(brick.get_volume(), 1.0);
    EXPECT_DOUBLE_EQ(brick.get_surface_area(), 6.0);

    vertices[0].x = no_number;
    brick.set_vertices(vertices);
    EXPECT_TRUE(std::isnan(brick.get_volume()));
    EXPECT_TRUE(std::isnan(brick.get_surface_area()));
}

TEST(SolidMeasures, FacesEndWhereTheListsContradictEachOther) {
    ox_solid brick = unit_brick();
    ox_list<unsigned int> contours = brick.get_contours();
    contours[4] = 1000;
    brick.set_contours(contours);
    EXPECT_DOUBLE_EQ(brick.get_surface_area(), 1.0);
    EXPECT_EQ(brick.get_open_edges(0.0f).size(), 8);

    brick.set_contour_sizes(list_of<int>({4, std::numeric_limits<int>::min()}));
    EXPECT_DOUBLE_EQ(brick.get_surface_area(), 1.0);
    brick.set_contour_sizes(list_of<int>({std::numeric_limits<int>::max(), 4}));
    EXPECT_EQ(brick.get_surface_area(), 0.0);
    EXPECT_EQ(brick.get_open_edges(0.0f).size(), 0);
}

TEST(SolidMeasures, ListsWithNegativeCountsAreEmpty) {
    ox_solid brick = unit_brick();
    ox_list<ox_3dvector> vertices;
    vertices.set_size(-5);
    brick.set_vertices(vertices);
    EXPECT_EQ(brick.get_volume(), 0.0);
    EXPECT_EQ(brick.get_open_edges(0.001f).size(), 0);
}

// Open edges

TEST(SolidMeasures, BricksAndPlatesWithTunnelsHaveNoOpenEdges) {
    EXPECT_EQ(unit_brick().get_open_edges(0.0f).size(), 0);
    EXPECT_EQ(plate_with_tunnel().get_open_edges(0.0f).size(), 0);
}

TEST(SolidMeasures, AMissingFaceLeavesTheEdgesOfItsNeighboursOpenInTheirDirection) {
    const ox_solid open = without_last_face(unit_brick()); // the lid at z = 1
    const ox_list<ox_3dvector> edges = open.get_open_edges(0.001f);
    ASSERT_EQ(edges.size(), 8);
    ox_3dvector turned;
    for (int i = 0; i < edges.size(); i += 2) {
        EXPECT_EQ(edges[i].z, 1.0f);
        EXPECT_EQ(edges[i + 1].z, 1.0f);
        turned = turned + ox_cross(edges[i], edges[i + 1]);
    }
    // The edges of the sides run clockwise round the lid, seen from above.
    EXPECT_FLOAT_EQ(turned.z, -2.0f);
}

TEST(SolidMeasures, OfTwoEdgesForOneOppositeOneIsOpen) {
    std::vector<ox_list<ox_3dvector>> faces = square_and_triangles();
    faces.push_back(faces[1]);
    EXPECT_EQ(solid_of(square_and_triangles()).get_open_edges(0.0f).size(), 0);
    EXPECT_EQ(solid_of(faces).get_open_edges(0.0f).size(), 6);
}

TEST(SolidMeasures, AnEdgeAlongSeveralOthersIsCoveredByThem) {
    // A square above, two rectangles below that meet in the middle of two of its sides.
    const ox_solid flat = solid_of(
        {support::rectangle(0.0f, 0.0f, 2.0f, 2.0f),
         support::contour({ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(0.0f, 2.0f, 0.0f),
                           ox_3dvector(1.0f, 2.0f, 0.0f), ox_3dvector(1.0f, 0.0f, 0.0f)}),
         support::contour({ox_3dvector(1.0f, 0.0f, 0.0f), ox_3dvector(1.0f, 2.0f, 0.0f),
                           ox_3dvector(2.0f, 2.0f, 0.0f), ox_3dvector(2.0f, 0.0f, 0.0f)})});
    EXPECT_EQ(flat.get_open_edges(0.0f).size(), 0);
}

TEST(SolidMeasures, OnlyTheUncoveredPartsOfAnEdgeAreOpen) {
    // The rectangle below covers the middle third of the long sides.
    const ox_solid flat = solid_of(
        {support::rectangle(0.0f, 0.0f, 3.0f, 1.0f),
         support::contour({ox_3dvector(1.0f, 0.0f, 0.0f), ox_3dvector(1.0f, 1.0f, 0.0f),
                           ox_3dvector(2.0f, 1.0f, 0.0f), ox_3dvector(2.0f, 0.0f, 0.0f)})});
    const ox_list<ox_3dvector> edges = flat.get_open_edges(0.0f);
    double extent = 0.0;
    for (int i = 0; i + 1 < edges.size(); i += 2) {
        extent += static_cast<double>((edges[i + 1] - edges[i]).size());
    }
    EXPECT_EQ(edges.size(), 2 * 8); // four thirds of long sides, four short sides
    EXPECT_DOUBLE_EQ(extent, 8.0);
}

TEST(SolidMeasures, PointsNearerThanTheToleranceAreOneInChains) {
    ox_solid brick = unit_brick();
    ox_list<ox_3dvector> vertices = brick.get_vertices();
    for (int i = 0; i < vertices.size(); ++i) {
        // The three vertices of each corner come to lie 0, 0.008 and 0.016 from it.
        const auto same_corner_before =
            std::count(brick.get_vertices().begin(), brick.get_vertices().begin() + i, vertices[i]);
        vertices[i].x += 0.008f * static_cast<float>(same_corner_before);
    }
    brick.set_vertices(vertices);
    EXPECT_EQ(brick.get_open_edges(0.01f).size(), 0);
    EXPECT_GT(brick.get_open_edges(0.005f).size(), 0);
}

TEST(SolidMeasures, AToleranceThatIsNoDistanceCountsAsZero) {
    const ox_solid open = without_last_face(unit_brick());
    EXPECT_EQ(open.get_open_edges(-1.0f).size(), 8);
    EXPECT_EQ(open.get_open_edges(no_number).size(), 8);
    EXPECT_EQ(open.get_open_edges(-infinity).size(), 8);
}

TEST(SolidMeasures, WithAToleranceBeyondTheSolidEverythingIsOnePoint) {
    const ox_solid open = without_last_face(unit_brick());
    EXPECT_EQ(open.get_open_edges(5.0f).size(), 0);
    EXPECT_EQ(open.get_open_edges(infinity).size(), 0);
}

TEST(SolidMeasures, AnEdgeToAPointThatIsNotFiniteIsOpen) {
    ox_solid brick = unit_brick();
    ox_list<ox_3dvector> vertices = brick.get_vertices();
    for (ox_3dvector& vertex : vertices) {
        if (vertex == ox_3dvector(1.0f, 1.0f, 1.0f)) {
            vertex = ox_3dvector(infinity, infinity, infinity);
        }
    }
    brick.set_vertices(vertices);
    EXPECT_EQ(brick.get_open_edges(0.001f).size(), 2 * 6);
}

TEST(SolidMeasures, PlusAndMinusZeroAreOnePoint) {
    ox_solid brick = unit_brick();
    ox_list<ox_3dvector> vertices = brick.get_vertices();
    for (int i = 0; i < vertices.size(); i += 2) {
        for (unsigned int axis = 0; axis < 3; ++axis) {
            vertices[i][axis] = vertices[i][axis] == 0.0f ? -0.0f : vertices[i][axis];
        }
    }
    brick.set_vertices(vertices);
    EXPECT_EQ(brick.get_open_edges(0.0f).size(), 0);
}

TEST(SolidMeasures, FarApartAndDenormalPointsAreTakenAsTheyAre) {
    ox_solid brick;
    brick.brick(ox_3dvector(3e38f, -3e38f, 0.0f), 1e37f, 1e37f, 1e-44f);
    EXPECT_EQ(brick.get_open_edges(1e-45f).size(), brick.get_open_edges(0.0f).size());
}

/// Counts as `get_open_edges` does, by comparing all points with all others.
int count_plainly(ox_solid& solid, double tolerance) {
    support::edge_balance balance(tolerance);
    int next = 0;
    for (const int size : solid.get_contour_sizes()) {
        std::vector<support::point> contour;
        for (int i = 0; i < std::abs(size); ++i) {
            const unsigned int index = solid.get_contours()[next++];
            contour.push_back(support::to_point(solid.get_vertices()[static_cast<int>(index)]));
        }
        balance.add_contour(contour);
    }
    return balance.count_open();
}

TEST(SolidMeasures, OpenEdgesAreThoseOfThePlainVersionOnBooleansWithMissingFaces) {
    support::generator random(62);
    for (int i = 0; i < 150; ++i) {
        const support::frame axes = support::random_frame(random);
        const ox_3dvector centre = support::random_point(random, 2.0);
        ox_solid solid = support::random_prism(random, centre, axes);
        ox_solid tool = support::random_brick(random, ox_3dvector(), support::frame());
        solid.substracts(tool);
        if (random.one_in(2) && support::count_faces(solid) > 0) {
            solid = without_last_face(solid);
        }
        EXPECT_EQ(solid.get_open_edges(0.001f).size(), 2 * count_plainly(solid, 0.001)) << i;
    }
}

TEST(SolidMeasures, AThousandCellsOfAGridBalanceAgainstOneSquare) {
    std::vector<ox_list<ox_3dvector>> faces = {support::rectangle(0.0f, 0.0f, 32.0f, 32.0f)};
    for (int x = 0; x < 32; ++x) {
        for (int y = 0; y < 32; ++y) {
            const float left = static_cast<float>(x);
            const float front = static_cast<float>(y);
            faces.push_back(support::contour({ox_3dvector(left, front, 0.0f),
                                              ox_3dvector(left, front + 1.0f, 0.0f),
                                              ox_3dvector(left + 1.0f, front + 1.0f, 0.0f),
                                              ox_3dvector(left + 1.0f, front, 0.0f)}));
        }
    }
    EXPECT_EQ(solid_of(faces).get_open_edges(0.0f).size(), 0);
    EXPECT_EQ(solid_of(faces).get_open_edges(0.25f).size(), 0);
}

} // namespace
