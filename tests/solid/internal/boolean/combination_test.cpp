#include <ox/solid/ox_solid.h>

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/solid/solid_lists.h>
#include <tests/support/measures.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;
using ox_test::unit_brick;
using testing::HasSubstr;
using testing::Not;

ox_solid brick_at(float x, float y, float z) {
    ox_solid solid;
    solid.brick(ox_3dvector(x, y, z), 1, 1, 1);
    return solid;
}

std::string progress(const std::string& phase, int count) {
    std::string lines;
    for (int i = 0; i < count; ++i) {
        lines += phase + " faces (" + std::to_string(i) + " / " + std::to_string(count) + ")\n";
    }
    return lines;
}

/// Two triangular prisms set against each other to an L whose boxes overlap but not the volumes.
ox_solid wedge(bool upper) {
    ox_polygon base;
    base.add_contour(upper ? support::contour({ox_3dvector(1, 1, 0), ox_3dvector(0.2f, 1, 0),
                                               ox_3dvector(1, 0.2f, 0)})
                           : support::contour({ox_3dvector(0, 0, 0), ox_3dvector(0.9f, 0, 0),
                                               ox_3dvector(0, 0.9f, 0)}));
    ox_solid solid;
    solid.extrusion(base, ox_3dvector(0, 0, 1));
    return solid;
}

TEST(SolidCombination, AVerboseDifferencePrintsItsFacesAndDone) {
    ox_solid solid = unit_brick();
    ox_solid other = brick_at(0.5f, 0.5f, 0.5f);
    solid.set_verbose(true);
    testing::internal::CaptureStdout();
    solid.substracts(other);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              progress("this", 6) + progress("other", 6) + "done\n");
}

TEST(SolidCombination, AVerboseUnionPrintsItsMergesToo) {
    ox_solid solid = unit_brick();
    ox_solid other = brick_at(0.5f, 0.5f, 0.5f);
    solid.set_verbose(true);
    testing::internal::CaptureStdout();
    solid.unites(other);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              progress("this", 6) + progress("other", 6) + progress("merge", 12) + "done\n");
}

TEST(SolidCombination, AVerboseBooleanThatChangesNothingDoesNotPrintDone) {
    ox_solid solid = wedge(false);
    ox_solid other = wedge(true);
    solid.set_verbose(true);
    testing::internal::CaptureStdout();
    solid.substracts(other);
    EXPECT_THAT(testing::internal::GetCapturedStdout(), Not(HasSubstr("done")));
}

TEST(SolidCombination, NothingIsPrintedByDefault) {
    ox_solid solid = unit_brick();
    ox_solid other = brick_at(0.5f, 0.5f, 0.5f);
    other.set_verbose(true); // only the flag of the changed solid counts
    testing::internal::CaptureStdout();
    solid.unites(other);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(SolidCombination, ADifferenceOfOverlappingBoxesButApartVolumesLeavesEverythingUntouched) {
    ox_solid solid = wedge(false);
    const ox_solid before(solid);
    ox_solid other = wedge(true);
    ox_polygon* face = solid.get_faces()[0];
    const ox_3dvector* mesh = solid.get_tesselation_vertices().get_data();
    solid.substracts(other);
    EXPECT_EQ(solid.get_faces()[0], face);
    EXPECT_EQ(solid.get_tesselation_vertices().get_data(), mesh);
    EXPECT_FALSE(solid.get_bounding_box().is_empty());
    EXPECT_GT(solid.get_chrono(0), 0.0);
    EXPECT_GT(solid.get_chrono(1), 0.0);
    EXPECT_EQ(solid.get_chrono(2), 0.0) << "there is no rebuild to time";
    ox_test::expect_same_storage(solid, before);
}

TEST(SolidCombination, AnIntersectionDropsFacesOutsideTheOther) {
    ox_solid solid = wedge(false);
    ox_solid other = wedge(true);
    solid.intersects(other);
    EXPECT_EQ(solid.get_vertices().size(), 0);
}

TEST(SolidCombination, AUnionMergesCoplanarPiecesIntoOneFace) {
    ox_solid solid = unit_brick();
    ox_solid other = brick_at(1, 0, 0);
    solid.unites(other);
    EXPECT_EQ(solid.get_faces().size(), 6);
    EXPECT_EQ(solid.get_vertices().size(), 24);
    EXPECT_NEAR(support::volume_of(solid), 2.0, 1e-4);
    EXPECT_TRUE(support::is_closed(solid));
}

TEST(SolidCombination, PiecesThatTouchInACornerAloneStayFacesOfTheirOwn) {
    ox_solid solid = unit_brick();
    ox_solid other = brick_at(1, 1, 0); // they touch along one edge
    solid.unites(other);
    EXPECT_EQ(solid.get_faces().size(), 12);
    EXPECT_NEAR(support::volume_of(solid), 2.0, 1e-4);
}

TEST(SolidCombination, AUnionDoesNotMergeCoplanarFacesThatFaceOppositeWays) {
    ox_polygon square = support::rectangle_polygon(0, 0, 1, 1);
    ox_polygon reversed = support::rectangle_polygon(1, 0, 2, 1);
    reversed.reverse();
    ox_solid solid;
    solid.add_face(square);
    ox_solid other;
    other.add_face(reversed);
    solid.unites(other);
    EXPECT_EQ(solid.get_faces().size(), 2);
}

TEST(SolidCombination, ADifferenceDoesNotMerge) {
    ox_solid solid = unit_brick();
    ox_solid beside;
    beside.brick(ox_3dvector(1.5f, 0, 0), 1, 1, 1);
    solid.unites(beside); // appended: its bottom lies in the plane of the first one
    ox_solid tool = brick_at(0.5f, 0.5f, 0.5f);
    solid.set_verbose(true);
    testing::internal::CaptureStdout();
    solid.substracts(tool);
    EXPECT_THAT(testing::internal::GetCapturedStdout(), Not(HasSubstr("merge")));
}

/// Faces that overlap in their plane make new vertices where their outlines cross.
TEST(SolidCombination, FacesThatOverlapInTheirPlaneReportMergeDivergence) {
    ox_polygon across = support::rectangle_polygon(0, 1, 3, 2);
    ox_polygon along = support::rectangle_polygon(1, 0, 2, 3);
    ox_solid solid;
    solid.add_face(across);
    ox_solid other;
    other.add_face(along);
    testing::internal::CaptureStdout();
    solid.unites(other);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Merge divergence for 0\n");
    ASSERT_EQ(solid.get_faces().size(), 2); // the union, and the second piece as it was
    EXPECT_FLOAT_EQ(solid.get_faces()[0]->get_area(), 5.0f);
    EXPECT_FLOAT_EQ(solid.get_faces()[1]->get_area(), 3.0f);
}

TEST(SolidCombination, FacesWithoutAreaDisappearAtTheNextRebuild) {
    ox_polygon sliver = support::rectangle_polygon(0.2f, 0.2f, 0.2005f, 0.201f);
    ox_solid solid = unit_brick();
    solid.add_face(sliver);
    ASSERT_EQ(solid.get_contour_sizes().size(), 7);
    ox_solid other = brick_at(0.5f, 0.5f, 0.5f);
    solid.substracts(other);
    EXPECT_EQ(solid.get_contour_sizes().size(), 9);
}

TEST(SolidCombination, AChangeOfLessThanAThousandthOfTheFacesLeavesTheSolidAlone) {
    // A pinhole needs the other's faces inside this solid: one that is open at both ends has none
    // large enough to keep.
    ox_solid solid;
    solid.brick(ox_3dvector(0, 0, 0), 10, 10, 0.0015f);
    ox_solid pin;
    pin.brick(ox_3dvector(5, 5, -1), 0.0006f, 0.0006f, 3);
    const ox_solid before(solid);
    solid.substracts(pin);
    ox_test::expect_same_storage(solid, before);
}

TEST(SolidCombination, NoPolygonIsLeaked) {
    const int before = ox_polygon::get_instanced();
    {
        ox_solid solid = unit_brick();
        ox_solid other = brick_at(0.5f, 0.5f, 0.5f);
        solid.unites(other);
        solid.substracts(other);
        solid.intersects(other);
    }
    EXPECT_EQ(ox_polygon::get_instanced(), before);
}

} // namespace
