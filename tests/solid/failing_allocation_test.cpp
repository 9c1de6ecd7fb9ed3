// An allocation that fails leaves a solid as it was.

#include <ox/solid/ox_solid.h>

#include <new>

#include <gtest/gtest.h>

#include <tests/solid/solid_lists.h>
#include <tests/support/failing_memory.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;
using ox_test::expect_same_storage;
using ox_test::list_of;
using ox_test::unit_brick;

/// Runs `operation` on what `prepare` makes, with the first allocation failing, then the second,
/// and so on until none fails any more; `check` looks at the object after each failure, and is told
/// whether it came out. Returns the number of failures.
template <typename Prepare, typename Operation, typename Check>
int fail_each_allocation(Prepare prepare, Operation operation, Check check) {
    for (int number = 1;; ++number) {
        auto object = prepare();
        bool has_thrown = false;
        failing_memory::start(number, false);
        try {
            operation(object);
        } catch (const std::bad_alloc&) {
            has_thrown = true;
        }
        if (!failing_memory::stop()) {
            return number - 1;
        }
        check(object, has_thrown);
    }
}

/// A square of 4, and sizes that contradict the indices after the second face.
ox_solid contradictory_solid() {
    ox_solid solid;
    solid.set_vertices(list_of(
        {ox_3dvector(0, 0, 0), ox_3dvector(4, 0, 0), ox_3dvector(4, 4, 0), ox_3dvector(0, 4, 0)}));
    solid.set_contours(list_of({0u, 1u, 2u, 3u, 0u, 1u, 2u, 3u, 0u, 1u, 2u}));
    solid.set_contour_sizes(list_of({4, 4, -4, 4}));
    return solid;
}

TEST(FailingAllocation, LeavesTheFaceListToBeMadeAsIfItHadNeverFailed) {
    const int failures = fail_each_allocation(
        contradictory_solid, [](ox_solid& solid) { solid.get_faces(); },
        [](ox_solid& solid, bool) { EXPECT_EQ(solid.get_faces().size(), 2); });
    EXPECT_GT(failures, 5);
}

/// Expects an operation that fails to leave a unit brick as it was.
template <typename Operation>
void expect_untouched_brick(Operation operation) {
    const ox_solid expected = unit_brick();
    const int failures =
        fail_each_allocation(unit_brick, operation, [&](ox_solid& solid, bool has_thrown) {
            if (has_thrown) {
                expect_same_storage(solid, expected);
                EXPECT_EQ(solid.get_faces().size(), 6);
            }
        });
    EXPECT_GT(failures, 5);
}

TEST(FailingAllocation, LeavesTheSolidAsItWasWhenAFaceIsAdded) {
    ox_polygon face = support::rectangle_polygon(0, 0, 4, 4);
    face.add_contour(support::rectangle(1, 1, 2, 2));
    face.get_contour_vertices();
    expect_untouched_brick([&](ox_solid& solid) { solid.add_face(face); });
}

TEST(FailingAllocation, LeavesTheSolidAsItWasWhenAnotherIsAppended) {
    ox_solid other = support::brick_between(ox_3dvector(5, 5, 5), ox_3dvector(6, 6, 6));
    expect_untouched_brick([&](ox_solid& solid) { solid.unites(other); });
}

TEST(FailingAllocation, LeavesTheSolidAsItWasWhenABrickOrAPrismIsBuilt) {
    expect_untouched_brick([](ox_solid& solid) { solid.brick(ox_3dvector(), 2, 2, 2); });
    ox_polygon base = support::rectangle_polygon(0, 0, 4, 4);
    base.get_contour_vertices();
    expect_untouched_brick([&](ox_solid& solid) { solid.extrusion(base, ox_3dvector(0, 0, 1)); });
}

} // namespace
