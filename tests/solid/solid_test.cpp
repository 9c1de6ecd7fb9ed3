#include <ox/solid/ox_solid.h>

#include <type_traits>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tests/solid/solid_lists.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;
using ox_test::list_of;
using ox_test::to_vector;
using ox_test::unit_brick;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(OxSolid, ANewSolidIsEmpty) {
    ox_solid solid;
    EXPECT_EQ(solid.get_vertices().size(), 0);
    EXPECT_EQ(solid.get_contours().size(), 0);
    EXPECT_EQ(solid.get_contour_sizes().size(), 0);
    EXPECT_EQ(solid.get_faces().size(), 0);
    EXPECT_TRUE(solid.get_bounding_box().is_empty());
}

TEST(OxSolid, InstancesAreCountedThroughConstructionCopyAndDestructionButNotAssignment) {
    const int before = ox_solid::get_instanced();
    {
        ox_solid first;
        ox_solid second(first);
        EXPECT_EQ(ox_solid::get_instanced(), before + 2);
        second = first;
        EXPECT_EQ(ox_solid::get_instanced(), before + 2);
    }
    EXPECT_EQ(ox_solid::get_instanced(), before);
}

TEST(OxSolid, CopiesAreDeep) {
    ox_solid source = unit_brick();
    ox_solid copy(source);
    source.clear();
    EXPECT_EQ(copy.get_vertices().size(), 24);
    EXPECT_EQ(copy.get_faces().size(), 6);
}

TEST(OxSolid, CopiesHaveFacesOfTheirOwn) {
    ox_solid source = unit_brick();
    ox_polygon* face = source.get_faces()[0];
    ox_solid copy(source);
    EXPECT_NE(copy.get_faces()[0], face);
}

TEST(OxSolid, CopiesBooleanWithTheToleranceOfANewSolid) {
    const ox_solid source = unit_brick();
    ox_solid copy(source);
    ox_solid tool;
    tool.brick(ox_3dvector(0.25f, 0.25f, -1.0f), 0.5f, 0.5f, 3.0f);
    copy.substracts(tool);
    EXPECT_EQ(copy.get_faces().size(), 10);
}

TEST(OxSolid, CopiesAreNotVerbose) {
    ox_solid source = unit_brick();
    source.set_verbose(true);
    ox_solid copy(source);
    ox_solid assigned;
    assigned.set_verbose(true);
    assigned = source;
    ox_solid tool = unit_brick();
    testing::internal::CaptureStdout();
    copy.substracts(tool);
    assigned.substracts(tool);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(OxSolid, AssignmentReplacesTheContentAndRestartsTheStopwatches) {
    ox_solid solid = unit_brick();
    ox_solid tool;
    tool.brick(ox_3dvector(0.5f, 0.5f, 0.5f), 1, 1, 1);
    solid.substracts(tool);
    EXPECT_GT(solid.get_chrono(0), 0.0);
    solid = ox_solid();
    EXPECT_EQ(solid.get_vertices().size(), 0);
    EXPECT_EQ(solid.get_chrono(0), 0.0);
}

TEST(OxSolid, AssignmentToItselfChangesNothing) {
    ox_solid solid = unit_brick();
    ox_polygon* face = solid.get_faces()[0];
    const ox_solid& same = solid;
    solid = same;
    EXPECT_EQ(solid.get_faces()[0], face);
    EXPECT_EQ(solid.get_vertices().size(), 24);
}

TEST(OxSolid, AMoveTakesEverythingAndLeavesASolidLikeNew) {
    static_assert(std::is_nothrow_move_constructible_v<ox_solid>);
    static_assert(std::is_nothrow_move_assignable_v<ox_solid>);
    ox_solid source = unit_brick();
    const ox_polygon* face = source.get_faces()[0];
    ox_solid taken(std::move(source));
    EXPECT_EQ(taken.get_faces()[0], face);
    EXPECT_EQ(source.get_vertices().size(), 0);
    EXPECT_EQ(ox_solid(source).get_faces().size(), 0);
    EXPECT_FALSE(source.check_manifold());
    EXPECT_EQ(source.get_faces().size(), 0);
    source = std::move(taken);
    EXPECT_EQ(source.get_faces()[0], face);
    taken.unites(source);
    EXPECT_EQ(taken.get_faces().size(), 6);
}

TEST(OxSolid, AMovedSolidCountsLikeAnyOther) {
    const int before = ox_solid::get_instanced();
    {
        ox_solid source = unit_brick();
        const ox_solid taken(std::move(source));
        EXPECT_EQ(ox_solid::get_instanced(), before + 2);
    }
    EXPECT_EQ(ox_solid::get_instanced(), before);
}

TEST(OxSolid, SwappedSolidsHaveEachOthersFaces) {
    ox_solid a = unit_brick();
    ox_solid b;
    const ox_polygon* face = a.get_faces()[0];
    swap(a, b);
    EXPECT_EQ(a.get_faces().size(), 0);
    EXPECT_EQ(b.get_faces()[0], face);
}

TEST(OxSolid, SettersStoreCopiesWithoutComparingTheLists) {
    ox_solid solid;
    solid.set_vertices(list_of({ox_3dvector(1, 2, 3)}));
    solid.set_contours(list_of({7u, 8u}));
    solid.set_contour_sizes(list_of({-5, 0, 9}));
    EXPECT_EQ(to_vector(solid.get_vertices()).front(), ox_3dvector(1, 2, 3));
    EXPECT_THAT(to_vector(solid.get_contours()), ElementsAre(7u, 8u));
    EXPECT_THAT(to_vector(solid.get_contour_sizes()), ElementsAre(-5, 0, 9));
}

TEST(OxSolid, EverySetterDropsTheCaches) {
    ox_solid solid = unit_brick();
    const ox_list<int> no_sizes;
    const ox_list<ox_3dvector> moved = list_of({ox_3dvector(5, 5, 5)});

    EXPECT_EQ(solid.get_tesselation_vertices().size(), 24);
    solid.set_vertices(moved);
    EXPECT_EQ(solid.get_bounding_box().origin, ox_3dvector(5, 5, 5));
    EXPECT_EQ(solid.get_faces().size(), 0);
    EXPECT_EQ(solid.get_tesselation_vertices().size(), 0);

    solid = unit_brick();
    EXPECT_EQ(solid.get_faces().size(), 6);
    solid.set_contours(list_of({0u, 1u, 2u, 3u}));
    EXPECT_EQ(solid.get_faces().size(), 1);

    solid = unit_brick();
    EXPECT_EQ(solid.get_faces().size(), 6);
    solid.set_contour_sizes(no_sizes);
    EXPECT_EQ(solid.get_faces().size(), 0);
}

TEST(OxSolid, SettersTakeListsOfTheSolidItself) {
    ox_solid solid = unit_brick();
    solid.set_vertices(solid.get_vertices());
    solid.set_contours(solid.get_contours());
    solid.set_contour_sizes(solid.get_contour_sizes());
    ox_test::expect_same_storage(solid, unit_brick());
}

TEST(OxSolid, SettersTakeListsOfCachedFacesAndOfTheTesselation) {
    ox_solid solid = unit_brick();
    solid.set_vertices(solid.get_faces()[0]->get_contour_vertices());
    EXPECT_EQ(solid.get_vertices().size(), 4);
    solid = unit_brick();
    solid.set_vertices(solid.get_tesselation_vertices());
    EXPECT_EQ(solid.get_vertices().size(), 24);
}

TEST(OxSolid, AfterClearTheBoxAndTheFacesAreEmpty) {
    ox_solid solid = unit_brick();
    solid.get_faces();
    solid.get_bounding_box();
    solid.clear();
    EXPECT_LT(solid.get_bounding_box().size.x, 0.0f);
    EXPECT_EQ(solid.get_faces().size(), 0);
    EXPECT_EQ(solid.get_vertices().get_capacity(), 0);
    EXPECT_EQ(solid.get_contours().get_capacity(), 0);
    EXPECT_EQ(solid.get_contour_sizes().get_capacity(), 0);
}

TEST(OxSolid, StopwatchesOutOfRangeRead0) {
    ox_solid solid;
    EXPECT_EQ(solid.get_chrono(8), 0.0);
    EXPECT_EQ(solid.get_chrono(-1), 0.0);
}

TEST(OxSolid, AllStopwatchesRead0BeforeAnyBoolean) {
    ox_solid solid;
    for (int slot = 0; slot < 8; ++slot) {
        EXPECT_EQ(solid.get_chrono(slot), 0.0);
    }
}

TEST(OxSolid, ABooleanRunsStopwatches0To2AndNoOther) {
    ox_solid solid = unit_brick();
    ox_solid tool;
    tool.brick(ox_3dvector(0.5f, 0.5f, 0.5f), 1, 1, 1);
    solid.set_profiling(true);
    solid.substracts(tool);
    const double first = solid.get_chrono(0);
    EXPECT_GT(first, 0.0);
    EXPECT_GT(solid.get_chrono(1), 0.0);
    EXPECT_GE(solid.get_chrono(2), 0.0);
    EXPECT_EQ(solid.get_chrono(0), first) << "still running";
    for (int slot = 3; slot < 8; ++slot) {
        EXPECT_EQ(solid.get_chrono(slot), 0.0);
    }
}

TEST(OxSolid, NoSolidIsKnownToBeManifold) {
    ox_solid solid = unit_brick();
    EXPECT_FALSE(solid.check_manifold());
    EXPECT_FALSE(ox_solid(solid).check_manifold());
}

TEST(OxSolid, OptimisingVerticesDoesNothing) {
    ox_solid solid = unit_brick();
    ox_polygon* face = solid.get_faces()[0];
    solid.optimize_vertices(10.0f);
    EXPECT_EQ(solid.get_faces()[0], face);
    ox_test::expect_same_storage(solid, unit_brick());
}

} // namespace
