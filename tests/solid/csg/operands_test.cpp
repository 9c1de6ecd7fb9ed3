// What operands may be, and what becomes of those that cannot be used.

#include <limits>
#include <utility>

#include <gtest/gtest.h>

#include <tests/solid/csg/judged_results.h>
#include <tests/solid/csg/shapes.h>
#include <tests/solid/solid_lists.h>
#include <tests/support/recording_manager.h>

namespace {

using csg_test::combine;
using csg_test::operation;
using ox::ox_3dvector;
using ox::ox_csg;
using ox::ox_csg_problem;
using ox::ox_list;
using ox::ox_solid;
using ox_test::expect_same_storage;
using ox_test::unit_brick;

constexpr float no_number = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

ox_solid brick(float x, float y, float z, float size = 1.0f) {
    ox_solid solid;
    solid.brick(ox_3dvector(x, y, z), size, size, size);
    return solid;
}

ox_solid with_vertex(const ox_solid& solid, int index, const ox_3dvector& place) {
    ox_list<ox_3dvector> vertices = solid.get_vertices();
    vertices[index] = place;
    ox_solid changed = solid;
    changed.set_vertices(vertices);
    return changed;
}

ox_solid without_last_face(const ox_solid& solid) {
    ox_list<int> sizes = solid.get_contour_sizes();
    sizes.remove_right();
    ox_solid open = solid;
    open.set_contour_sizes(sizes);
    return open;
}

/// A computation of a brick and then `operand`, which must be refused.
ox_csg refused(const ox_solid& operand) {
    ox_csg csg;
    csg.unites(unit_brick());
    csg.substracts(operand);
    EXPECT_FALSE(csg.compute());
    EXPECT_EQ(csg.get_nb_operands(), 2);
    EXPECT_EQ(csg.get_solid().get_vertices().size(), 0);
    EXPECT_EQ(csg.get_triangles().get_nb_triangles(), 0u);
    EXPECT_EQ(csg.get_origins().size(), 0);
    return csg;
}

// Usable operands

TEST(CsgOperands, WithoutOperandsTheResultIsEmpty) {
    ox_csg csg;
    EXPECT_TRUE(csg.compute());
    EXPECT_EQ(csg.get_solid().get_vertices().size(), 0);
    EXPECT_EQ(csg.get_nb_problems(), 0);
}

TEST(CsgOperands, TheFirstOperationActsOnEmptiness) {
    for (const operation first : {operation::substracts, operation::intersects}) {
        ox_csg csg;
        csg_test::apply(csg, first, unit_brick());
        EXPECT_TRUE(csg.compute());
        EXPECT_EQ(csg.get_solid().get_contour_sizes().size(), 0);
    }
    ox_csg clipped;
    clipped.clips(ox_3dvector(), ox_3dvector(0.0f, 0.0f, 1.0f));
    EXPECT_TRUE(clipped.compute());
    EXPECT_EQ(clipped.get_solid().get_contour_sizes().size(), 0);
}

TEST(CsgOperands, IntersectingWithAnEmptySolidLeavesNothing) {
    EXPECT_EQ(support::count_faces(combine(unit_brick(), operation::intersects, ox_solid())), 0);
    EXPECT_EQ(support::count_faces(combine(unit_brick(), operation::substracts, ox_solid())), 6);
    EXPECT_EQ(support::count_faces(combine(unit_brick(), operation::unites, ox_solid())), 6);
}

TEST(CsgOperands, AnInsideOutShellCountsAsWhatItEncloses) {
    const ox_solid window = csg_test::inside_out(brick(0.25f, 0.25f, -0.5f, 0.5f));
    EXPECT_NEAR(combine(unit_brick(), operation::substracts, window).get_volume(), 1.0, 1e-3);
    const ox_solid through = csg_test::inside_out(brick(0.5f, 0.5f, 0.5f));
    EXPECT_NEAR(combine(unit_brick(), operation::substracts, through).get_volume(), 0.875, 1e-3);
    EXPECT_NEAR(
        combine(csg_test::inside_out(unit_brick()), operation::unites, through).get_volume(), 1.875,
        1e-3);
}

TEST(CsgOperands, TwoShellsInOneStorageAreTheirUnion) {
    const ox_solid two = csg_test::in_one_storage(unit_brick(), brick(0.5f, 0.5f, 0.5f));
    const ox_solid united = combine(ox_solid(), operation::unites, two);
    EXPECT_NEAR(united.get_volume(), 1.875, 1e-3);
    EXPECT_EQ(support::count_faces(united), 12);
    EXPECT_TRUE(csg_test::is_closed(united));
}

TEST(CsgOperands, AShellWithinAShellThatFacesInwardsIsAHollow) {
    const ox_solid hollow = csg_test::in_one_storage(brick(0.0f, 0.0f, 0.0f, 3.0f),
                                                     csg_test::inside_out(brick(1.0f, 1.0f, 1.0f)));
    const ox_solid result = combine(ox_solid(), operation::unites, hollow);
    EXPECT_NEAR(result.get_volume(), 26.0, 1e-2);
    EXPECT_EQ(support::count_faces(result), 12);
}

TEST(CsgOperands, FacesWithoutAreaArePartOfAClosedShell) {
    ox_solid solid = unit_brick();
    ox_list<unsigned int> contours = solid.get_contours();
    ox_list<int> sizes = solid.get_contour_sizes();
    for (const unsigned int corner : {0u, 1u, 1u, 0u}) {
        contours.push_right(corner);
    }
    sizes.push_right(4);
    solid.set_contours(contours);
    solid.set_contour_sizes(sizes);
    const ox_solid result = combine(solid, operation::unites, brick(2.0f, 0.0f, 0.0f));
    EXPECT_NEAR(result.get_volume(), 2.0, 1e-3);
    EXPECT_TRUE(csg_test::is_closed(result));
}

TEST(CsgOperands, OneOperandTwiceIsOne) {
    const ox_solid solid = unit_brick();
    EXPECT_EQ(support::count_faces(combine(solid, operation::unites, solid)), 6);
    EXPECT_EQ(support::count_faces(combine(solid, operation::intersects, solid)), 6);
    EXPECT_EQ(support::count_faces(combine(solid, operation::substracts, solid)), 0);
}

TEST(CsgOperands, AHalfSpaceNeedsNoUnitNormal) {
    for (const float length : {1e-20f, 1e-3f, 1.0f, 1e20f}) {
        ox_csg csg;
        csg.unites(unit_brick());
        csg.clips(ox_3dvector(0.0f, 0.0f, 0.25f), ox_3dvector(0.0f, 0.0f, length));
        ASSERT_TRUE(csg.compute()) << length;
        EXPECT_NEAR(csg.get_solid().get_volume(), 0.25, 1e-3) << length;
    }
}

TEST(CsgOperands, APlaneBesideTheSolidCutsNothingOrAll) {
    for (const float side : {1.0f, -1.0f}) {
        ox_csg csg;
        csg.unites(unit_brick());
        csg.clips(ox_3dvector(0.0f, 0.0f, 7.0f), ox_3dvector(0.0f, 0.0f, side));
        ASSERT_TRUE(csg.compute());
        EXPECT_EQ(support::count_faces(csg.get_solid()), side > 0.0f ? 6 : 0);
    }
}

// Refused operands

TEST(CsgOperands, AnOpenShellIsRefusedWithItsOpenEdges) {
    const ox_csg csg = refused(without_last_face(unit_brick()));
    ASSERT_GT(csg.get_nb_problems(), 0);
    for (int i = 0; i < csg.get_nb_problems(); ++i) {
        const ox_csg_problem& problem = csg.get_problem(i);
        EXPECT_EQ(problem.operand, 1);
        EXPECT_EQ(problem.kind, ox_csg_problem::problem_open_edge);
        EXPECT_EQ(problem.from.z, 1.0f);
        EXPECT_EQ(problem.to.z, 1.0f);
    }
}

TEST(CsgOperands, ACoordinateThatIsNotFiniteIsRefused) {
    for (const float bad : {no_number, infinity, -infinity}) {
        const ox_csg csg = refused(with_vertex(unit_brick(), 5, ox_3dvector(0.0f, bad, 0.0f)));
        ASSERT_GT(csg.get_nb_problems(), 0);
        EXPECT_EQ(csg.get_problem(0).kind, ox_csg_problem::problem_not_finite);
        EXPECT_TRUE(support::is_finite(csg.get_problem(0).from));
        EXPECT_TRUE(support::is_finite(csg.get_problem(0).to));
    }
}

TEST(CsgOperands, ACoordinateBeyondTwoToTheThirtyTolerancesIsRefused) {
    const ox_csg csg = refused(brick(0.0f, 0.0f, 0.0f, 1.1e6f));
    ASSERT_GT(csg.get_nb_problems(), 0);
    EXPECT_EQ(csg.get_problem(0).kind, ox_csg_problem::problem_too_large);
}

TEST(CsgOperands, AHalfSpaceWithoutAPlaneIsRefused) {
    const std::pair<ox_3dvector, ox_csg_problem::ox_kind> cases[] = {
        {ox_3dvector(), ox_csg_problem::problem_no_plane},
        {ox_3dvector(no_number, 0.0f, 1.0f), ox_csg_problem::problem_not_finite},
        {ox_3dvector(0.0f, infinity, 0.0f), ox_csg_problem::problem_not_finite}};
    for (const auto& [normal, kind] : cases) {
        ox_csg csg;
        csg.unites(unit_brick());
        csg.clips(ox_3dvector(), normal);
        EXPECT_FALSE(csg.compute());
        ASSERT_EQ(csg.get_nb_problems(), 1);
        EXPECT_EQ(csg.get_problem(0).operand, 1);
        EXPECT_EQ(csg.get_problem(0).kind, kind);
    }
}

TEST(CsgOperands, EveryBadOperandHasAProblemOfItsOwn) {
    ox_csg csg;
    csg.unites(without_last_face(unit_brick()));
    csg.unites(unit_brick());
    csg.clips(ox_3dvector(), ox_3dvector());
    csg.unites(with_vertex(unit_brick(), 0, ox_3dvector(no_number, 0.0f, 0.0f)));
    EXPECT_FALSE(csg.compute());
    bool has_problem[4] = {};
    for (int i = 0; i < csg.get_nb_problems(); ++i) {
        has_problem[csg.get_problem(i).operand] = true;
    }
    EXPECT_TRUE(has_problem[0] && has_problem[2] && has_problem[3]);
    EXPECT_FALSE(has_problem[1]);
}

TEST(CsgOperands, InconsistentListsEndTheFaces) {
    ox_solid solid = unit_brick();
    ox_list<int> sizes = solid.get_contour_sizes();
    sizes.push_right(std::numeric_limits<int>::min());
    sizes.push_right(4);
    solid.set_contour_sizes(sizes);
    EXPECT_NEAR(combine(solid, operation::unites, ox_solid()).get_volume(), 1.0, 1e-3);
}

TEST(CsgOperands, AfterARefusalTheOperandsCanBeChanged) {
    ox_csg csg = refused(without_last_face(unit_brick()));
    csg.clear();
    EXPECT_EQ(csg.get_nb_operands(), 0);
    EXPECT_EQ(csg.get_nb_problems(), 0);
    csg.unites(unit_brick());
    EXPECT_TRUE(csg.compute());
    EXPECT_EQ(support::count_faces(csg.get_solid()), 6);
}

// Tolerances

TEST(CsgOperands, ThinGapsCloseWithinTheTolerance) {
    const ox_solid beside = brick(1.0078125f, 0.0f, 0.0f);
    ox_csg coarse(0.02f);
    coarse.unites(unit_brick());
    coarse.unites(beside);
    ASSERT_TRUE(coarse.compute());
    EXPECT_EQ(support::count_faces(coarse.get_solid()), 6);
    EXPECT_EQ(support::count_faces(combine(unit_brick(), operation::unites, beside)), 12);
}

TEST(CsgOperands, AToleranceThatIsNoneCountsAsAThousandth) {
    for (const float tolerance : {-1.0f, no_number, infinity}) {
        const ox_solid near = brick(1.0005f, 0.0f, 0.0f);
        EXPECT_EQ(support::count_faces(combine(unit_brick(), operation::unites, near, tolerance)),
                  6);
    }
}

TEST(CsgOperands, WithToleranceZeroOnlyEqualPointsAreOne) {
    EXPECT_EQ(support::count_faces(
                  combine(unit_brick(), operation::unites, brick(1.0f, 0.0f, 0.0f), 0.0f)),
              6);
    EXPECT_EQ(support::count_faces(
                  combine(unit_brick(), operation::unites, brick(0.5f, 0.5f, 0.5f), 0.0f)),
              12);
}

// Copies, moves, results

ox_csg notched_brick() {
    ox_csg csg;
    csg.unites(unit_brick());
    csg.substracts(brick(0.5f, 0.5f, 0.5f));
    return csg;
}

TEST(CsgOperands, ACopyIsDeep) {
    ox_csg csg = notched_brick();
    ox_csg copy = csg;
    copy.unites(brick(3.0f, 0.0f, 0.0f));
    EXPECT_EQ(csg.get_nb_operands(), 2);
    EXPECT_EQ(copy.get_nb_operands(), 3);
    ASSERT_TRUE(csg.compute());
    ASSERT_TRUE(copy.compute());
    EXPECT_EQ(support::count_faces(csg.get_solid()), 9);
    EXPECT_EQ(support::count_faces(copy.get_solid()), 15);
}

TEST(CsgOperands, AMovedFromObjectIsEmptyAndUsable) {
    ox_csg csg = notched_brick();
    ASSERT_TRUE(csg.compute());
    ox_csg taken = std::move(csg);
    EXPECT_EQ(support::count_faces(taken.get_solid()), 9);
    EXPECT_EQ(csg.get_nb_operands(), 0); // NOLINT(bugprone-use-after-move)
    csg.unites(unit_brick());
    ASSERT_TRUE(csg.compute());
    EXPECT_EQ(support::count_faces(csg.get_solid()), 6);
}

TEST(CsgOperands, ANewOperandEmptiesTheResultUntilTheNextCompute) {
    ox_csg csg = notched_brick();
    ASSERT_TRUE(csg.compute());
    csg.unites(brick(3.0f, 0.0f, 0.0f));
    EXPECT_EQ(csg.get_solid().get_vertices().size(), 0);
    ASSERT_TRUE(csg.compute());
    EXPECT_EQ(support::count_faces(csg.get_solid()), 15);
}

TEST(CsgOperands, TheOperandIsTakenAsItWasAtTheCall) {
    ox_csg csg;
    ox_solid operand = unit_brick();
    csg.unites(operand);
    operand.clear();
    ASSERT_TRUE(csg.compute());
    EXPECT_EQ(support::count_faces(csg.get_solid()), 6);
}

TEST(CsgOperands, OriginsNameTheLowestOperandOfEachFace) {
    ox_csg csg = notched_brick();
    csg.unites(
        brick(1.0f, 0.0f, 0.0f)); // shares the plane of the floor and two sides with the first
    ASSERT_TRUE(csg.compute());
    const ox_list<int> origins = csg.get_origins();
    ASSERT_EQ(origins.size(), support::count_faces(csg.get_solid()));
    bool has_origin[3] = {};
    for (const int origin : origins) {
        ASSERT_GE(origin, 0);
        ASSERT_LE(origin, 2);
        has_origin[origin] = true;
    }
    EXPECT_TRUE(has_origin[0] && has_origin[1] && has_origin[2]);
}

TEST(CsgOperands, TheSameOperandsGiveTheSameBitsAgain) {
    ox_csg first = notched_brick();
    ox_csg second = notched_brick();
    ASSERT_TRUE(first.compute());
    ASSERT_TRUE(second.compute());
    ASSERT_TRUE(second.compute());
    expect_same_storage(first.get_solid(), second.get_solid());
}

// Progress

ox_csg two_spheres() {
    ox_csg csg;
    csg.unites(csg_test::sphere(ox_3dvector(), 24, 3.0));
    csg.unites(csg_test::sphere(ox_3dvector(1.0f, 0.7f, 0.4f), 24, 3.0));
    return csg;
}

TEST(CsgOperands, ProgressAscendsWithinItsShare) {
    recording_manager manager;
    ox_csg csg = two_spheres();
    csg.set_progress_manager(&manager, 0.25, 0.75);
    ASSERT_TRUE(csg.compute());
    ASSERT_FALSE(manager.reports.empty());
    double last = 0.25;
    for (const double report : manager.reports) {
        EXPECT_GE(report, last);
        EXPECT_LE(report, 0.75);
        last = report;
    }
}

TEST(CsgOperands, WorkThatIsStoppedGivesNoResultAndNoProblemsAndCanBeDoneAgain) {
    recording_manager counting;
    ox_csg counted = two_spheres();
    counted.set_progress_manager(&counting, 0.0, 1.0);
    ASSERT_TRUE(counted.compute());
    const int reports = static_cast<int>(counting.reports.size());
    for (const int stop : {0, reports / 2, reports - 1}) {
        recording_manager manager(stop);
        ox_csg csg = two_spheres();
        csg.set_progress_manager(&manager, 0.0, 1.0);
        EXPECT_FALSE(csg.compute());
        EXPECT_EQ(csg.get_nb_problems(), 0);
        EXPECT_EQ(csg.get_nb_operands(), 2);
        EXPECT_EQ(csg.get_solid().get_vertices().size(), 0);
        csg.set_progress_manager(nullptr, 0.0, 1.0);
        ASSERT_TRUE(csg.compute());
        expect_same_storage(csg.get_solid(), counted.get_solid());
    }
}

} // namespace
