// Whatever a caller hands in: the solid neither crashes nor hangs, and stays usable.

#include <climits>
#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include <ox/solid/ox_solid.h>
#include <tests/support/measures.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;
using support::brick_between;
using support::generator;

const float not_a_number = std::numeric_limits<float>::quiet_NaN();
const float infinite = std::numeric_limits<float>::infinity();
const float huge = std::numeric_limits<float>::max();
const float tiny = std::numeric_limits<float>::denorm_min();

ox_solid unit_brick() {
    return brick_between(ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(1.0f, 1.0f, 1.0f));
}

void delete_all(const ox_list<ox_polygon*>& polygons) {
    for (ox_polygon* polygon : polygons) {
        delete polygon;
    }
}

/// Runs every operation on copies of a solid, alone and with a brick.
void exercise(ox_solid& solid) {
    const ox_3dvector point(0.5f, 0.5f, 0.5f);
    const ox_3dvector up(0.0f, 0.0f, 1.0f);
    solid.get_bounding_box();
    solid.get_tesselation_vertices();
    delete_all(solid.intersect_by_plane(point, up));
    delete solid.project_on_plane(point, up);
    ox_solid brick = unit_brick();
    ox_solid united = solid;
    united.unites(brick);
    united.get_tesselation_triangles();
    ox_solid rest = solid;
    rest.substracts(brick);
    rest.get_tesselation_triangles();
    ox_solid common = solid;
    common.intersects(brick);
    common.get_tesselation_triangles();
    ox_solid clipped = solid;
    clipped.clip(point, up);
    clipped.get_tesselation_triangles();
    brick.unites(solid);
    brick.substracts(solid);
    brick.intersects(solid);
}

class OxSolidWithCoordinate : public ::testing::TestWithParam<float> {};

TEST_P(OxSolidWithCoordinate, AsAVertexSurvivesEveryOperation) {
    ox_solid solid = unit_brick();
    for (int corner = 0; corner < 24; corner += 5) {
        ox_list<ox_3dvector> vertices = solid.get_vertices();
        vertices[corner].x = GetParam();
        ox_solid damaged = solid;
        damaged.set_vertices(vertices);
        exercise(damaged);
    }
}

TEST_P(OxSolidWithCoordinate, AsABrickOriginSurvivesEveryOperation) {
    ox_solid solid;
    solid.brick(ox_3dvector(GetParam(), 0.0f, 0.0f), 1.0f, 1.0f, 1.0f);
    exercise(solid);
}

TEST_P(OxSolidWithCoordinate, AsABrickEdgeSurvivesEveryOperation) {
    ox_solid solid;
    solid.brick(ox_3dvector(), 1.0f, GetParam(), 1.0f);
    exercise(solid);
    solid.brick(ox_3dvector(), ox_3dvector(1.0f, 0.0f, 0.0f), ox_3dvector(0.0f, GetParam(), 0.0f),
                ox_3dvector(0.0f, 0.0f, GetParam()));
    exercise(solid);
}

TEST_P(OxSolidWithCoordinate, AsAnExtrusionDirectionSurvivesEveryOperation) {
    ox_polygon base = support::rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f);
    ox_solid solid;
    solid.extrusion(base, ox_3dvector(0.0f, GetParam(), 1.0f));
    exercise(solid);
}

TEST_P(OxSolidWithCoordinate, AsAPlaneLeavesTheSolidUsable) {
    const ox_3dvector axis(0.0f, 0.0f, 1.0f);
    const ox_3dvector bad(GetParam(), 0.0f, GetParam());
    for (const ox_3dvector& point : {bad, ox_3dvector(0.5f, 0.5f, 0.5f)}) {
        for (const ox_3dvector& normal : {bad, axis}) {
            ox_solid solid = unit_brick();
            delete_all(solid.intersect_by_plane(point, normal));
            delete solid.project_on_plane(point, normal);
            solid.clip(point, normal);
            exercise(solid);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Extreme, OxSolidWithCoordinate,
                         ::testing::Values(not_a_number, infinite, -infinite, huge, -huge, tiny,
                                           0.0f, -1.0f, 1e10f, -1e15f, 1e19f));

TEST(OxSolidHostileInput, ContourSizesThatNeedMoreIndicesThanThereAreEndTheFaces) {
    for (const int size : {INT_MAX, INT_MIN, INT_MIN + 1, 25, -25}) {
        ox_solid solid = unit_brick();
        ox_list<int> sizes = solid.get_contour_sizes();
        sizes[2] = size;
        solid.set_contour_sizes(sizes);
        EXPECT_EQ(solid.get_faces().size(), 2) << "size " << size;
        exercise(solid);
    }
}

TEST(OxSolidHostileInput, OnlyNegativeAndZeroSizesStillMakeOneFace) {
    ox_solid solid = unit_brick();
    ox_list<int> sizes;
    sizes.push_right(0);
    sizes.push_right(-4);
    sizes.push_right(0);
    solid.set_contour_sizes(sizes);
    EXPECT_EQ(solid.get_faces().size(), 1);
    exercise(solid);
}

TEST(OxSolidHostileInput, IndexBeyondTheVerticesEndsTheFaces) {
    for (const unsigned int index : {24u, UINT_MAX, 1u << 31}) {
        ox_solid solid = unit_brick();
        ox_list<unsigned int> contours = solid.get_contours();
        contours[9] = index;
        solid.set_contours(contours);
        EXPECT_EQ(solid.get_faces().size(), 2);
        exercise(solid);
    }
}

TEST(OxSolidHostileInput, ListsWithoutTheirCounterpartsMakeNoFace) {
    ox_solid sizes_only;
    sizes_only.set_contour_sizes(unit_brick().get_contour_sizes());
    EXPECT_EQ(sizes_only.get_faces().size(), 0);
    exercise(sizes_only);
    ox_solid vertices_only;
    vertices_only.set_vertices(unit_brick().get_vertices());
    EXPECT_EQ(vertices_only.get_faces().size(), 0);
    exercise(vertices_only);
    ox_solid contours_only;
    contours_only.set_contours(unit_brick().get_contours());
    EXPECT_EQ(contours_only.get_faces().size(), 0);
    exercise(contours_only);
}

TEST(OxSolidHostileInput, ListsOfNegativeCountAreEmpty) {
    ox_solid solid;
    solid.set_vertices(ox_list<ox_3dvector>(-3));
    solid.set_contours(ox_list<unsigned int>(-3));
    solid.set_contour_sizes(ox_list<int>(-3));
    EXPECT_EQ(solid.get_faces().size(), 0);
    exercise(solid);
}

TEST(OxSolidHostileInput, RepeatedVerticesAndFlatFacesSurviveEveryOperation) {
    ox_solid solid = unit_brick();
    ox_list<ox_3dvector> vertices = solid.get_vertices();
    for (int i = 0; i < 8; ++i) {
        vertices[i] = ox_3dvector(0.5f, 0.5f, 0.5f);
    }
    solid.set_vertices(vertices);
    exercise(solid);
}

TEST(OxSolidHostileInput, AssignmentToItselfKeepsTheSolid) {
    ox_solid solid = unit_brick();
    ox_solid& same = solid;
    solid = same;
    EXPECT_EQ(solid.get_vertices().size(), 24);
    EXPECT_EQ(solid.get_faces().size(), 6);
}

TEST(OxSolidHostileInput, ItsOwnFaceCanBeAdded) {
    ox_solid solid = unit_brick();
    solid.add_face(*solid.get_faces().at(0));
    EXPECT_EQ(solid.get_faces().size(), 7);
    EXPECT_EQ(solid.get_vertices().size(), 28);
}

TEST(OxSolidHostileInput, ItsOwnListsCanBeSet) {
    ox_solid solid = unit_brick();
    solid.set_vertices(solid.get_vertices());
    solid.set_contours(solid.get_contours());
    solid.set_contour_sizes(solid.get_contour_sizes());
    EXPECT_EQ(support::count_faces(solid), 6);
    EXPECT_NEAR(support::volume_of(solid), 1.0, 1e-6);
}

TEST(OxSolidHostileInput, CombinedWithItselfIsLikeCombinedWithACopy) {
    using operation = void (ox_solid::*)(ox_solid&);
    for (const operation combine :
         {&ox_solid::unites, &ox_solid::substracts, &ox_solid::intersects}) {
        ox_solid solid = unit_brick();
        (solid.*combine)(solid);
        ox_solid other = unit_brick();
        ox_solid copy = unit_brick();
        (other.*combine)(copy);
        EXPECT_EQ(solid.get_contour_sizes().size(), other.get_contour_sizes().size());
        EXPECT_EQ(support::volume_of(solid), support::volume_of(other));
    }
}

TEST(OxSolidHostileInput, ExtrusionOfAFaceOfItsOwnUsesTheFaceAsItWas) {
    ox_solid solid = unit_brick();
    solid.extrusion(*solid.get_faces().at(5), ox_3dvector(0.0f, 0.0f, 2.0f));
    EXPECT_NEAR(std::fabs(support::volume_of(solid)), 2.0, 1e-3);
}

TEST(OxSolidHostileInput, NullFacesAreLeftOutOfASection) {
    ox_solid solid = unit_brick();
    ox_list<ox_polygon*> faces = solid.get_faces();
    faces.push_left(nullptr);
    const ox_list<ox_polygon*> pieces = ox_solid::intersect_by_plane(
        ox_3dvector(0.0f, 0.0f, 0.5f), ox_3dvector(0.0f, 0.0f, 1.0f), faces);
    EXPECT_EQ(pieces.size(), 1);
    delete_all(pieces);
}

/// Expects a solid whose first face was changed to survive a section and everything else.
void expect_survival_of_change(void (*change)(ox_polygon&)) {
    ox_solid solid = unit_brick();
    change(*solid.get_faces()[0]);
    delete_all(solid.intersect_by_plane(ox_3dvector(0.5f, 0.5f, 0.5f), ox_3dvector(0, 0, 1)));
    ox_solid other = support::brick_between(ox_3dvector(0.5f, 0.5f, 0.5f), ox_3dvector(2, 2, 2));
    solid.unites(other);
    exercise(solid);
}

TEST(OxSolidHostileInput, AFaceThatItsCallerEmptiedIsLeftOutOfASection) {
    expect_survival_of_change([](ox_polygon& face) { face.clear(); });
    expect_survival_of_change([](ox_polygon& face) { face.offset(-5.0f, ox_polygon::join_miter); });
    expect_survival_of_change([](ox_polygon& face) {
        ox_polygon elsewhere = support::rectangle_polygon(8.0f, 8.0f, 9.0f, 9.0f);
        face.intersects(elsewhere);
    });
}

TEST(OxSolidHostileInput, RandomBitPatternsSurviveEveryOperation) {
    generator random(666);
    for (int i = 0; i < 200; ++i) {
        ox_solid solid;
        const int count = random.between(0, 40);
        ox_list<ox_3dvector> vertices;
        ox_list<unsigned int> contours;
        ox_list<int> sizes;
        for (int k = 0; k < count; ++k) {
            ox_3dvector vertex = support::random_point(random, 2.0);
            if (random.one_in(4)) {
                vertex.y = random.any_float();
            }
            vertices.push_right(vertex);
            contours.push_right(static_cast<unsigned int>(random.between(0, count)));
            sizes.push_right(random.one_in(20) ? static_cast<int>(random.any_float() > 0.0f)
                                               : random.between(-5, 8));
        }
        solid.set_vertices(vertices);
        solid.set_contours(contours);
        solid.set_contour_sizes(sizes);
        exercise(solid);
    }
}

} // namespace
