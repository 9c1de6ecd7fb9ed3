#include <examples/view/picking.h>
#include <examples/view/snapping.h>

#include <gtest/gtest.h>

namespace {

using building::element;

/// A cube of two metres with a corner at the origin.
std::vector<element> cube() {
    std::vector<element> elements(1);
    elements[0].name = "cube";
    elements[0].solid.brick(ox::ox_3dvector(0, 0, 0), 2, 2, 2);
    return elements;
}

void expect_near(const ox::ox_3dvector& expected, const ox::ox_3dvector& p) {
    EXPECT_NEAR(expected.x, p.x, 1e-4f);
    EXPECT_NEAR(expected.y, p.y, 1e-4f);
    EXPECT_NEAR(expected.z, p.z, 1e-4f);
}

TEST(ViewPicking, TheRayEndsAtTheNearSide) {
    std::vector<element> elements = cube();
    const auto found = view::first_hit(elements, {1, -5, 1}, {0, 1, 0});
    ASSERT_TRUE(found.has_value());
    EXPECT_DOUBLE_EQ(5, found->distance);
    EXPECT_EQ("cube", found->name);
    expect_near({1, 0, 1}, found->point);
}

TEST(ViewPicking, TheRayMissesWhatLiesBehindOrBeside) {
    std::vector<element> elements = cube();
    EXPECT_FALSE(view::first_hit(elements, {1, -5, 1}, {0, -1, 0}).has_value());
    EXPECT_FALSE(view::first_hit(elements, {3, -5, 1}, {0, 1, 0}).has_value());
}

TEST(ViewPicking, ACornerIsVisibleFromItsSideOnly) {
    std::vector<element> elements = cube();
    EXPECT_TRUE(view::is_visible(elements, {-5, -5, -5}, {0, 0, 0}));
    EXPECT_FALSE(view::is_visible(elements, {7, 8, 9}, {0, 0, 0}));
    EXPECT_TRUE(view::is_visible(elements, {7, 8, 9}, {2, 2, 2}));
}

TEST(ViewSnapping, APointNearACornerSnapsToIt) {
    std::vector<element> elements = cube();
    const auto steps = view::snap_to_faces(elements, {0.15f, 0, 0.1f});
    ASSERT_EQ(3u, steps.size());
    expect_near({0.15f, 0, 0.1f}, steps[0].position);
    expect_near({0.15f, 0, 0}, steps[1].position);
    expect_near({0, 0, 0}, steps[2].position);
    EXPECT_EQ(0, steps[2].freedom);
}

TEST(ViewSnapping, APointNearAnEdgeSnapsToIt) {
    std::vector<element> elements = cube();
    const auto steps = view::snap_to_faces(elements, {1, 0, 0.1f});
    ASSERT_EQ(2u, steps.size());
    expect_near({1, 0, 0}, steps[1].position);
    EXPECT_EQ(1, steps[1].freedom);
}

TEST(ViewSnapping, APointFarFromAllFacesStays) {
    std::vector<element> elements = cube();
    EXPECT_TRUE(view::snap_to_faces(elements, {1, 1, 1}).empty());
    EXPECT_TRUE(view::snap_to_faces(elements, {9, 9, 9}).empty());
}

} // namespace
