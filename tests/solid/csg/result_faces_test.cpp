// How the boundary of a result becomes faces: rings, planes, straight edges.

#include <gtest/gtest.h>

#include <ox/solid/internal/csg/rings.h>

namespace {

using namespace ox::internal::csg;

const planar_view from_above(std::array<double, 3>{0.0, 0.0, 1.0});

face_boundary ring_of(const std::vector<int>& points) {
    face_boundary edges;
    for (std::size_t i = 0; i < points.size(); ++i) {
        edges.push_back({points[i], points[(i + 1) % points.size()]});
    }
    return edges;
}

face_boundary operator+(face_boundary a, const face_boundary& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

/// Points of a grid of 10 by 10, numbered row by row.
std::vector<grid_point> square_grid() {
    std::vector<grid_point> points;
    for (int i = 0; i < 100; ++i) {
        points.push_back({i % 10, i / 10, 0});
    }
    return points;
}

TEST(CsgRings, ASquareIsOneRing) {
    const auto rings = trace_rings(ring_of({0, 9, 99, 90}), square_grid(), from_above);
    ASSERT_EQ(rings.size(), 1u);
    EXPECT_EQ(rings[0].size(), 4u);
}

TEST(CsgRings, TheOutlineComesBeforeItsHoles) {
    const auto rings =
        trace_rings(ring_of({11, 21, 22, 12}) + ring_of({0, 9, 99, 90}) + ring_of({44, 54, 55, 45}),
                    square_grid(), from_above);
    ASSERT_EQ(rings.size(), 3u);
    EXPECT_EQ(rings[0], (point_ring{0, 9, 99, 90}));
}

TEST(CsgRings, AHoleThatTouchesTheOutlineInAPointIsARingOfItsOwn) {
    const auto rings = trace_rings(ring_of({0, 4, 9, 99, 90}) + ring_of({4, 33, 44, 35}),
                                   square_grid(), from_above);
    ASSERT_EQ(rings.size(), 2u);
    EXPECT_EQ(rings[0].size(), 5u);
    EXPECT_EQ(rings[1].size(), 4u);
}

TEST(CsgRings, SquaresThatTouchInACornerAreTwoRings) {
    const auto rings =
        trace_rings(ring_of({0, 4, 44, 40}) + ring_of({44, 49, 99, 94}), square_grid(), from_above);
    ASSERT_EQ(rings.size(), 2u);
    EXPECT_EQ(rings[0].size(), 4u);
}

} // namespace
