#include <ox/solid/ox_solid.h>

#include <limits>
#include <memory>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ox/geometry/ox_matrix.h>
#include <ox/solid/internal/section/plane_section.h>
#include <tests/reference/plane_section.h>
#include <tests/solid/solid_lists.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;
using ox_test::unit_brick;

using pieces = std::vector<std::unique_ptr<ox_polygon>>;

pieces section_of(ox_solid& solid, const ox_3dvector& point, const ox_3dvector& normal) {
    pieces owned;
    for (ox_polygon* piece : solid.intersect_by_plane(point, normal)) {
        owned.emplace_back(piece);
    }
    return owned;
}

constexpr float infinite = std::numeric_limits<float>::infinity();
constexpr float not_a_number = std::numeric_limits<float>::quiet_NaN();

TEST(PlaneSection, OfABrickAtHalfHeightIsOneSquare) {
    ox_solid solid = unit_brick();
    const pieces section = section_of(solid, ox_3dvector(0, 0, 0.5f), ox_3dvector(0, 0, 1));
    ASSERT_EQ(section.size(), 1u);
    EXPECT_FLOAT_EQ(section[0]->get_area(), 1.0f);
    EXPECT_EQ(section[0]->get_contour_vertices().size(), 4);
    EXPECT_EQ(section[0]->get_normal(), ox_3dvector(0, 0, 1));
}

TEST(PlaneSection, ThroughAFaceCountsTheSolidOnlyFromTheSideOfTheNormal) {
    ox_solid solid = unit_brick();
    const ox_3dvector up(0, 0, 1);
    const ox_3dvector down(0, 0, -1);
    const ox_3dvector bottom(0, 0, 0);
    const ox_3dvector top(0, 0, 1);
    EXPECT_EQ(section_of(solid, bottom, up).size(), 0u);
    EXPECT_EQ(section_of(solid, bottom, down).size(), 1u);
    EXPECT_EQ(section_of(solid, top, up).size(), 1u);
    EXPECT_EQ(section_of(solid, top, down).size(), 0u);
}

TEST(PlaneSection, FacesInThePlaneGiveNoCrossings) {
    ox_polygon square = support::rectangle_polygon(0, 0, 1, 1);
    ox_solid solid;
    solid.add_face(square);
    EXPECT_EQ(section_of(solid, ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1)).size(), 0u);
}

TEST(PlaneSection, VerticesWithinTheToleranceLieOnThePlane) {
    ox_solid solid = unit_brick();
    EXPECT_EQ(section_of(solid, ox_3dvector(0, 0, 1.0009f), ox_3dvector(0, 0, 1)).size(), 1u);
    EXPECT_EQ(section_of(solid, ox_3dvector(0, 0, 1.0011f), ox_3dvector(0, 0, 1)).size(), 0u);
}

TEST(PlaneSection, OnEdgesAndVerticesOfTheSolidIsComplete) {
    ox_solid solid = unit_brick();
    const pieces diagonal = section_of(solid, ox_3dvector(0, 0, 0), ox_3dvector(-1, 1, 0));
    ASSERT_EQ(diagonal.size(), 1u);
    EXPECT_NEAR(diagonal[0]->get_area(), 1.41421356f, 1e-3f);
}

TEST(PlaneSection, OfATunnelHasAHole) {
    ox_polygon base = support::rectangle_polygon(0, 0, 4, 4);
    base.add_contour(support::rectangle(1, 1, 2, 2));
    ox_solid solid;
    solid.extrusion(base, ox_3dvector(0, 0, 3));
    const pieces section = section_of(solid, ox_3dvector(0, 0, 1), ox_3dvector(0, 0, 1));
    ASSERT_EQ(section.size(), 1u);
    EXPECT_EQ(section[0]->get_contour_sizes().size(), 2);
    EXPECT_FLOAT_EQ(section[0]->get_area(), 15.0f);
}

TEST(PlaneSection, OfTwoTowersIsTwoPolygons) {
    ox_solid solid = unit_brick();
    ox_solid second;
    second.brick(ox_3dvector(5, 0, 0), 1, 1, 1);
    solid.unites(second);
    EXPECT_EQ(section_of(solid, ox_3dvector(0, 0, 0.5f), ox_3dvector(0, 0, 1)).size(), 2u);
}

TEST(PlaneSection, MissingTheSolidIsEmpty) {
    ox_solid solid = unit_brick();
    ox_solid empty;
    EXPECT_EQ(section_of(solid, ox_3dvector(0, 0, 5), ox_3dvector(0, 0, 1)).size(), 0u);
    EXPECT_EQ(section_of(empty, ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1)).size(), 0u);
}

TEST(PlaneSection, OfAListOfFacesSkipsNullsAndLeavesTheFacesAlone) {
    ox_solid solid = unit_brick();
    ox_list<ox_polygon*> faces = solid.get_faces();
    faces.push_left(nullptr);
    pieces section;
    for (ox_polygon* piece :
         ox_solid::intersect_by_plane(ox_3dvector(0, 0, 0.5f), ox_3dvector(0, 0, 1), faces)) {
        section.emplace_back(piece);
    }
    ASSERT_EQ(section.size(), 1u);
    EXPECT_FLOAT_EQ(section[0]->get_area(), 1.0f);
    EXPECT_EQ(solid.get_faces()[0], faces[1]);
}

/// A chain is only continued by later segments, so of an open shell the section is whole only when
/// its faces come in the order in which the section runs round.
TEST(PlaneSection, OfAnOpenShellDependsOnTheOrderOfItsFaces) {
    ox_solid solid = unit_brick();
    ox_polygon* far_x = solid.get_faces()[1];
    ox_polygon* near_y = solid.get_faces()[2];
    ox_polygon* far_y = solid.get_faces()[3];
    const ox_3dvector middle(0, 0, 0.5f);
    const auto area_of = [&](const ox_list<ox_polygon*>& faces) {
        float area = 0.0f;
        for (ox_polygon* piece :
             ox_solid::intersect_by_plane(middle, ox_3dvector(0, 0, 1), faces)) {
            area += piece->get_area();
            delete piece;
        }
        return area;
    };
    EXPECT_FLOAT_EQ(area_of(ox_test::list_of({near_y, far_x, far_y})), 1.0f);
    EXPECT_FLOAT_EQ(area_of(ox_test::list_of({far_x, near_y, far_y})), 0.5f);
}

/// A spike whose tip touches the plane from below crosses it an odd number of times.
TEST(PlaneSection, AnOddLastCrossingIsDropped) {
    ox_polygon face;
    face.add_contour(support::contour({ox_3dvector(0, 0, 1), ox_3dvector(0, 0, -1),
                                       ox_3dvector(2, 0, -1), ox_3dvector(2, 0, 0),
                                       ox_3dvector(1, 0, 0.0009f), ox_3dvector(0.5f, 0, 0.0012f)}));
    ox_solid solid;
    solid.add_face(face);
    const auto section =
        reference::plane_section(solid, ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1), 0.001f);
    const pieces found = section_of(solid, ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1));
    EXPECT_EQ(found.size(), section ? 1u : 0u);
}

TEST(PlaneSection, ByAPlaneThatIsNotFiniteOrHasNoNormalDoesNotFail) {
    ox_solid solid = unit_brick();
    const float values[] = {0.0f, infinite, -infinite, not_a_number, 3e38f};
    for (const float value : values) {
        section_of(solid, ox_3dvector(0, 0, 0.5f), ox_3dvector(0, 0, value));
        section_of(solid, ox_3dvector(0, 0, value), ox_3dvector(0, 0, 1));
        section_of(solid, ox_3dvector(value, value, value), ox_3dvector(value, value, value));
    }
    EXPECT_EQ(section_of(solid, ox_3dvector(0, 0, 0.5f), ox_3dvector(0, 0, 0)).size(), 0u);
}

/// A side of a duct: an upright hexagon whose middle corners lie on the plane z = 0, and a leg
/// beside it. Stretched along z, the leg crosses the plane where no number tells.
ox_polygon duct_side(float y, bool is_turned) {
    ox_polygon side(ox_3dvector(0, y, 0), ox_3dvector(0, is_turned ? 1.0f : -1.0f, 0));
    side.add_contour(
        support::contour({ox_3dvector(0, y, -1), ox_3dvector(2, y, -1), ox_3dvector(3, y, 0),
                          ox_3dvector(2, y, 1), ox_3dvector(0, y, 1), ox_3dvector(-1, y, 0)}));
    side.add_contour(support::contour({ox_3dvector(5, y, -2), ox_3dvector(6, y, -2),
                                       ox_3dvector(6, y, 2), ox_3dvector(5, y, 2)}));
    return side;
}

/// The ends of a duct, as bare rectangles.
ox_polygon duct_end(float x, bool is_turned) {
    ox_polygon end(ox_3dvector(x, 0, 0), ox_3dvector(is_turned ? -1.0f : 1.0f, 0, 0));
    end.add_contour(support::contour({ox_3dvector(x, 0, -1), ox_3dvector(x, 1, -1),
                                      ox_3dvector(x, 1, 1), ox_3dvector(x, 0, 1)}));
    return end;
}

TEST(PlaneSection, SortsCrossingsAroundThoseWhosePlaceIsNoNumber) {
    ox_solid duct;
    for (ox_polygon face :
         {duct_side(0, false), duct_end(3, false), duct_side(1, true), duct_end(-1, true)}) {
        duct.add_face(face);
    }
    // One face a side: the hexagon as a hole, which it is not, of the leg.
    duct.set_contour_sizes(ox_test::list_of({4, -6, 4, 4, -6, 4}));
    ASSERT_EQ(duct.get_faces().size(), 4);
    ox::ox_matrix stretch;
    stretch[10] = 1e38f;
    duct.get_faces()[0]->matrix_transform(stretch);
    duct.get_faces()[2]->matrix_transform(stretch);
    std::vector<ox::internal::face_bounds> bounds;
    for (ox_polygon* face : duct.get_faces()) {
        bounds.emplace_back(*face);
    }
    const ox::internal::face_tree tree(bounds);
    for (const float up : {1.8f, -1.8f}) {
        const ox_3dvector normal(0, 0, up);
        const auto section =
            ox::internal::plane_section(duct.get_faces(), tree, ox_3dvector(), normal, 0.001f);
        const auto plain = reference::plane_section(duct, ox_3dvector(), normal, 0.001f);
        ASSERT_TRUE(section && plain);
        EXPECT_FLOAT_EQ(section->get_area(), 4.0f);
        EXPECT_TRUE(ox_test::have_same_bits(section->get_contour_vertices(),
                                            plain->get_contour_vertices()));
    }
}

TEST(PlaneSection, NoPolygonIsLeaked) {
    const int before = ox_polygon::get_instanced();
    {
        ox_solid solid = unit_brick();
        ox_solid second;
        second.brick(ox_3dvector(5, 0, 0), 1, 1, 1);
        section_of(solid, ox_3dvector(0, 0, 0.5f), ox_3dvector(0, 0, 1));
        solid.unites(second);
        section_of(solid, ox_3dvector(0, 0, 0.5f), ox_3dvector(0, 0, 1));
    }
    EXPECT_EQ(ox_polygon::get_instanced(), before);
}

TEST(ProjectingOnAPlane, ABrickGivesItsOutlineAndSkipsItsSides) {
    ox_solid solid;
    solid.brick(ox_3dvector(1, 1, 1), 2, 3, 4);
    const std::unique_ptr<ox_polygon> outline(
        solid.project_on_plane(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1)));
    EXPECT_NEAR(outline->get_area(), 6.0f, 1e-4f);
    EXPECT_EQ(outline->get_contour_sizes().size(), 1);
    EXPECT_EQ(outline->get_normal(), ox_3dvector(0, 0, 1));
    EXPECT_FLOAT_EQ(outline->get_bounding_box().origin.z, 0.0f);
}

TEST(ProjectingOnAPlane, AnEmptySolidGivesAnEmptyPolygon) {
    ox_solid solid;
    const std::unique_ptr<ox_polygon> outline(
        solid.project_on_plane(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 1)));
    ASSERT_NE(outline, nullptr);
    EXPECT_EQ(outline->get_contour_sizes().size(), 0);
}

TEST(ProjectingOnAPlane, ComparesTheCosineWithTheNormalAsGiven) {
    ox_solid solid = unit_brick();
    const std::unique_ptr<ox_polygon> short_normal(
        solid.project_on_plane(ox_3dvector(0, 0, 0), ox_3dvector(0, 0, 0.0009f)));
    EXPECT_EQ(short_normal->get_contour_sizes().size(), 0);
}

TEST(ProjectingOnAPlane, WithoutAUsableNormalDoesNotFail) {
    ox_solid solid = unit_brick();
    const float values[] = {0.0f, std::numeric_limits<float>::infinity(),
                            std::numeric_limits<float>::quiet_NaN()};
    for (const float value : values) {
        const std::unique_ptr<ox_polygon> outline(
            solid.project_on_plane(ox_3dvector(value, 0, 0), ox_3dvector(0, value, value)));
        EXPECT_NE(outline, nullptr);
    }
}

} // namespace
