// Long planes with many points are sliced; the work can be ended.

#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

#include <tests/solid/csg/laid_scene.h>
#include <tests/solid/csg/shapes.h>

namespace {

using csg_test::brick_in;
using ox::ox_3dvector;
using ox::ox_solid;
using support::frame;
using namespace ox::internal::csg;

/// A wall whose foot is divided at the jambs of many doors, not sliced yet.
scene wall_with_doors(int count) {
    std::vector<ox_solid> solids = {brick_in(
        frame(), ox_3dvector(), ox_3dvector(1.5f * static_cast<float>(count) + 1.5f, 0.3f, 3.0f))};
    for (int i = 0; i < count; ++i) {
        const float x = 1.5f * static_cast<float>(i) + 0.25f;
        solids.push_back(
            brick_in(frame(), ox_3dvector(x, -0.05f, 0.0f), ox_3dvector(x + 1.0f, 0.35f, 2.0f)));
    }
    return csg_test::snapped_scene(solids);
}

TEST(CsgSlicing, DividesTheTopOfAWallWithManyDoors) {
    scene wall = wall_with_doors(200);
    const std::size_t point_count = wall.points.size();
    EXPECT_TRUE(slice_long_planes(wall, csg_test::keep_going));
    EXPECT_GT(wall.points.size(), point_count);
}

TEST(CsgSlicing, ReportsProgressThatAscendsToTheWhole) {
    scene wall = wall_with_doors(200);
    std::vector<double> reports;
    EXPECT_TRUE(slice_long_planes(wall, [&reports](double done) {
        reports.push_back(done);
        return true;
    }));
    ASSERT_GT(reports.size(), 3u);
    EXPECT_TRUE(std::is_sorted(reports.begin(), reports.end()));
    EXPECT_LE(reports.back(), 1.0);
}

TEST(CsgSlicing, EndsWhereverAReportAsksForIt) {
    int all = 0;
    scene counted = wall_with_doors(200);
    EXPECT_TRUE(slice_long_planes(counted, [&all](double) {
        ++all;
        return true;
    }));
    for (int last = 1; last <= all; ++last) {
        scene wall = wall_with_doors(200);
        int count = 0;
        EXPECT_FALSE(slice_long_planes(wall, [&](double) { return ++count < last; }));
        EXPECT_EQ(count, last);
    }
}

} // namespace
