#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>
#include <utility>

#include <tests/support/recording_manager.h>

namespace {

using interval = std::pair<double, double>;
using ::testing::ElementsAre;

/// Where a phase begins and ends; makes it current.
interval interval_of(ox::ox_progress_manager& manager, const std::string& name) {
    manager.set_current_phase(name);
    return {manager.compute_phase_progress(0.0), manager.compute_phase_progress(1.0)};
}

/// A list as a vector, which matchers can read.
template <typename T>
std::vector<T> values_of(const ox::ox_list<T>& list) {
    return std::vector<T>(list.begin(), list.end());
}

struct listing {
    explicit listing(ox::ox_progress_manager& manager) {
        manager.get_all_phases(names, parents, weights, durations);
    }
    ox::ox_list<std::string> names;
    ox::ox_list<std::string> parents;
    ox::ox_list<double> weights;
    ox::ox_list<double> durations;
};

TEST(OxProgressManager, ThreePhasesOfWeights1And1And2TileTheBarByQuarters) {
    ox::ox_progress_manager manager;
    manager.add_phase("a", "", 1.0);
    manager.add_phase("b", "", 1.0);
    manager.add_phase("c", "", 2.0);
    EXPECT_EQ(interval_of(manager, "a"), interval(0.0, 0.25));
    EXPECT_EQ(interval_of(manager, "b"), interval(0.25, 0.5));
    EXPECT_EQ(interval_of(manager, "c"), interval(0.5, 1.0));
}

TEST(OxProgressManager, ChildrenOfWeights3And1TileTheirParentsHalf) {
    ox::ox_progress_manager manager;
    manager.add_phase("first", "", 1.0);
    manager.add_phase("second", "", 1.0);
    manager.add_phase("child", "second", 3.0);
    manager.add_phase("sibling", "second", 1.0);
    EXPECT_EQ(interval_of(manager, "child"), interval(0.5, 0.875));
    EXPECT_EQ(interval_of(manager, "sibling"), interval(0.875, 1.0));
}

TEST(OxProgressManager, AddingAnExistingNameChangesItsWeightAndTilesTheWholeTreeAnew) {
    ox::ox_progress_manager manager;
    manager.add_phase("a", "", 1.0);
    manager.add_phase("b", "", 1.0);
    manager.add_phase("b1", "b", 1.0);
    manager.add_phase("b2", "b", 1.0);
    manager.add_phase("a", "b", 3.0); // the parent of an existing phase is not asked for
    EXPECT_EQ(interval_of(manager, "a"), interval(0.0, 0.75));
    EXPECT_EQ(interval_of(manager, "b1"), interval(0.75, 0.875));
    EXPECT_EQ(interval_of(manager, "b2"), interval(0.875, 1.0));
}

TEST(OxProgressManager, PhaseProgressIsTheFractionItselfWithoutACurrentPhase) {
    ox::ox_progress_manager manager;
    EXPECT_EQ(manager.compute_phase_progress(0.3), 0.3);
}

TEST(OxProgressManager, PhaseProgressMapsTheFractionIntoTheCurrentPhase) {
    ox::ox_progress_manager manager;
    manager.add_phase("a", "", 1.0);
    manager.add_phase("b", "", 1.0);
    manager.add_phase("c", "", 2.0);
    manager.set_current_phase("b");
    EXPECT_DOUBLE_EQ(manager.compute_phase_progress(0.3), 0.325);
}

TEST(OxProgressManager, AFreshManagerHasNoCurrentPhase) {
    ox::ox_progress_manager manager;
    EXPECT_EQ(manager.get_current_phase(), "");
    EXPECT_EQ(manager.get_current_phase_duration(), 0.0);
    EXPECT_TRUE(manager.set_progress(0.5));
}

TEST(OxProgressManager, APhaseThatBecomesCurrentReportsItsStart) {
    recording_manager manager;
    manager.add_phase("a", "", 1.0);
    manager.add_phase("b", "", 1.0);
    manager.set_current_phase("b");
    EXPECT_EQ(manager.get_current_phase(), "b");
    EXPECT_THAT(manager.reports, ElementsAre(0.5));
}

TEST(OxProgressManager, AnUnknownPhaseLeavesNoneCurrentAndReportsNothing) {
    recording_manager manager;
    manager.add_phase("a", "", 1.0);
    manager.set_current_phase("a");
    manager.set_current_phase("unknown");
    EXPECT_EQ(manager.get_current_phase(), "");
    EXPECT_EQ(manager.reports.size(), 1u);
}

TEST(OxProgressManager, AnUnknownParentPutsThePhaseAtTheTop) {
    ox::ox_progress_manager manager;
    manager.add_phase("a", "unknown", 1.0);
    EXPECT_EQ(interval_of(manager, "a"), interval(0.0, 1.0));
    EXPECT_EQ(listing(manager).parents[0], "");
}

TEST(OxProgressManager, PhasesAreListedEachBeforeItsChildren) {
    ox::ox_progress_manager manager;
    manager.add_phase("a", "", 1.0);
    manager.add_phase("b", "", 2.0);
    manager.add_phase("a1", "a", 3.0);
    manager.add_phase("a11", "a1", 4.0);
    manager.add_phase("a2", "a", 5.0);
    const listing all(manager);
    EXPECT_THAT(values_of(all.names), ElementsAre("a", "a1", "a11", "a2", "b"));
    EXPECT_THAT(values_of(all.parents), ElementsAre("", "a", "a1", "a", ""));
    EXPECT_THAT(values_of(all.weights), ElementsAre(1.0, 3.0, 4.0, 5.0, 2.0));
}

TEST(OxProgressManager, ListingAppendsToTheDurationsItIsGivenAndEmptiesTheOtherLists) {
    ox::ox_progress_manager manager;
    manager.add_phase("a", "", 1.0);
    listing all(manager);
    manager.get_all_phases(all.names, all.parents, all.weights, all.durations);
    EXPECT_EQ(all.names.size(), 1);
    EXPECT_EQ(all.parents.size(), 1);
    EXPECT_EQ(all.weights.size(), 1);
    EXPECT_EQ(all.durations.size(), 2);
}

TEST(OxProgressManager, WeightsWithoutAPositiveSumLeaveTheIntervalsAsTheyWere) {
    ox::ox_progress_manager manager;
    manager.add_phase("a", "", 1.0);
    manager.add_phase("b", "", -1.0);
    EXPECT_EQ(interval_of(manager, "a"), interval(0.0, 1.0));
    EXPECT_EQ(interval_of(manager, "b"), interval(0.0, 0.0));
}

TEST(OxProgressManager, WeightsThatAreNoFiniteNumbersLeaveTheIntervalsAsTheyWere) {
    for (double weight : {std::numeric_limits<double>::quiet_NaN(),
                          std::numeric_limits<double>::infinity(), 1e308, 5e-324}) {
        ox::ox_progress_manager manager;
        manager.add_phase("a", "", weight);
        manager.add_phase("b", "", weight);
        const interval b = interval_of(manager, "b");
        EXPECT_TRUE(std::isfinite(b.first) && std::isfinite(b.second)) << weight;
    }
}

TEST(OxProgressManager, ACopySharesThePhasesAndOutlivesItsOriginal) {
    auto original = std::make_unique<ox::ox_progress_manager>();
    original->add_phase("a", "", 1.0);
    ox::ox_progress_manager copy(*original);
    ox::ox_progress_manager assigned;
    assigned = copy;
    copy.add_phase("b", "", 1.0);
    EXPECT_EQ(interval_of(*original, "b"), interval(0.5, 1.0));
    original.reset();
    EXPECT_EQ(interval_of(assigned, "a"), interval(0.0, 0.5));
    EXPECT_EQ(copy.get_current_phase(), "a");
}

TEST(OxProgressManager, NamesAreComparedByteByByteNulsIncluded) {
    ox::ox_progress_manager manager;
    manager.add_phase(std::string("a\0b", 3), "", 1.0);
    manager.add_phase("a", "", 1.0);
    EXPECT_EQ(listing(manager).names.size(), 2);
}

TEST(OxProgressManager, ChainsOf100000PhasesAreTiledListedAndDestroyed) {
    ox::ox_progress_manager manager;
    std::string parent;
    for (int i = 0; i < 100000; ++i) {
        const std::string name = "phase" + std::to_string(i);
        manager.add_phase(name, parent, 1.0);
        parent = name;
    }
    manager.add_phase("phase0", "", 2.0); // tiles all of them
    EXPECT_EQ(interval_of(manager, "phase99999"), interval(0.0, 1.0));
    EXPECT_EQ(listing(manager).names.size(), 100000);
}

} // namespace
