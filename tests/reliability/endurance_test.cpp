// Long runs: memory stays flat, every object goes, and sizes far beyond the usual are worked on. A
// hundredth of each is run; all of it with OX_CHECK=1.

#include <cmath>
#include <cstdio>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include <ox/core/ox_log.h>
#include <ox/polygon/ox_polygon.h>
#include <ox/solid/ox_solid.h>
#include <tests/reliability/mixed_work.h>
#include <tests/support/all_cases.h>
#include <tests/support/failing_memory.h>
#include <tests/support/generator.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_polygon;
using ox::ox_solid;

/// The bytes that were asked for and not given back.
double bytes_in_use() {
    return static_cast<double>(failing_memory::count_live_bytes());
}

void work_on(int first, int count) {
    for (int i = first; i < first + count; ++i) {
        mixed_work::run(i % mixed_work::kind_count, i / mixed_work::kind_count % 100);
    }
}

TEST(Endurance, MemoryStaysFlatOverAMillionOperations) {
    const int count = support::all_or(1000000, 10000);
    const int polygons = ox_polygon::get_instanced();
    const int solids = ox_solid::get_instanced();
    ox_log_set(false);
    work_on(0, 300 * mixed_work::kind_count); // everything three times: what is kept is kept
    const double before = bytes_in_use();
    work_on(0, count);
    const double after = bytes_in_use();
    ox_log_set(true);
    std::printf("%d operations, %.0f bytes before, %.0f after\n", count, before, after);
    EXPECT_LE(after, 1.01 * before);
    EXPECT_EQ(ox_polygon::get_instanced(), polygons);
    EXPECT_EQ(ox_solid::get_instanced(), solids);
}

TEST(Endurance, TenThousandBooleansOnOneSolidLeaveItAsItWas) {
    const int count = support::all_or(10000, 100);
    ox_solid solid = support::brick_between(ox_3dvector(0, 0, 0), ox_3dvector(20, 1, 10));
    for (int i = 0; i < count; i += 2) {
        const float x = 1.0f + static_cast<float>(i / 2 % 9) * 2.0f;
        const ox_solid window =
            support::brick_between(ox_3dvector(x, -1.0f, 3.0f), ox_3dvector(x + 1, 2.0f, 5.0f));
        ox_solid filling =
            support::brick_between(ox_3dvector(x, 0.0f, 3.0f), ox_3dvector(x + 1, 1.0f, 5.0f));
        ox_solid cutter = window;
        solid.substracts(cutter);
        ASSERT_NEAR(solid.get_volume(), 198.0, 0.01) << "boolean " << i;
        solid.unites(filling);
        ASSERT_NEAR(solid.get_volume(), 200.0, 0.01) << "boolean " << i + 1;
    }
    std::printf("%d booleans, %d vertices, volume %.6f\n", count, solid.get_vertices().size(),
                solid.get_volume());
}

TEST(Endurance, PolygonOfAHundredThousandContoursHasTheirArea) {
    const int count = support::all_or(100000, 1000);
    const int side = static_cast<int>(std::ceil(std::sqrt(count)));
    ox_polygon polygon(ox_3dvector(), ox_3dvector(0, 0, 1));
    for (int i = 0; i < count; ++i) {
        const float x = static_cast<float>(i % side) * 2.0f;
        const float y = static_cast<float>(i / side) * 2.0f;
        polygon.add_contour(support::rectangle(x, y, x + 1, y + 1));
    }
    EXPECT_EQ(polygon.get_contour_sizes().size(), count);
    EXPECT_EQ(polygon.count_outer_contours(), count);
    EXPECT_NEAR(polygon.get_area(), static_cast<float>(count), 1e-4f * static_cast<float>(count));
    std::printf("%d contours, area %.1f\n", polygon.get_contour_sizes().size(),
                static_cast<double>(polygon.get_area()));
}

/// A small outline of right angles or of any.
ox_polygon small_shape(support::generator& random, bool is_right_angled) {
    ox_polygon polygon(ox_3dvector(), ox_3dvector(0, 0, 1));
    if (is_right_angled) {
        for (int i = 0; i < 3; ++i) {
            const float x = static_cast<float>(random.between(0, 8));
            const float y = static_cast<float>(random.between(0, 8));
            polygon.add_contour(support::rectangle(x, y, x + 1 + static_cast<float>(i), y + 2));
        }
        return polygon;
    }
    ox::ox_list<ox_3dvector> contour;
    for (int i = 0; i < 7; ++i) {
        const double angle = (i + random.real(0.0, 0.8)) * 0.8975979;
        const double radius = random.real(1.0, 5.0);
        contour.push_right(ox_3dvector(static_cast<float>(radius * std::cos(angle)),
                                       static_cast<float>(radius * std::sin(angle)), 0.0f));
    }
    polygon.add_contour(contour);
    return polygon;
}

/// What a thread holds after so many shapes that all its memories are full.
double kept_by_a_thread(int shapes) {
    double kept = 0.0;
    std::thread([&] {
        support::generator random(7);
        const double before = bytes_in_use();
        for (int i = 0; i < shapes; ++i) {
            small_shape(random, i % 2 == 0).get_area();
        }
        kept = bytes_in_use() - before;
    }).join();
    return kept;
}

TEST(Endurance, ThreadKeepsAFewMegabytesAndGivesThemBack) {
    constexpr double bound = 8.0 * 1048576.0;
    const int shapes = support::all_or(400000, 4000);
    kept_by_a_thread(1); // what is made once and for all
    const double before = bytes_in_use();
    const double kept = kept_by_a_thread(shapes);
    std::printf("%d shapes, %.0f bytes kept by the thread\n", shapes, kept);
    EXPECT_LE(kept, bound);
    EXPECT_LE(bytes_in_use(), before + 4096.0);
}

} // namespace
