#ifndef OX_TESTS_POLYGON_POLYGON_CHECKS_H
#define OX_TESTS_POLYGON_POLYGON_CHECKS_H

#include <cmath>
#include <cstring>

#include <gtest/gtest.h>

#include <ox/polygon/ox_polygon.h>
#include <tests/support/dump.h>
#include <tests/support/random_shapes.h>

namespace polygon_checks {

/// The same contour seen from behind.
inline ox::ox_list<ox::ox_3dvector> reversed(const ox::ox_list<ox::ox_3dvector>& contour) {
    ox::ox_list<ox::ox_3dvector> result;
    for (int i = contour.size() - 1; i >= 0; --i) {
        result.push_right(contour[i]);
    }
    return result;
}

/// The vertices of one normalised contour.
inline ox::ox_list<ox::ox_3dvector> contour_of(ox::ox_polygon& polygon, int wanted) {
    int first = 0;
    for (int c = 0; c < wanted; ++c) {
        first += static_cast<int>(polygon.get_contour_sizes()[c]);
    }
    ox::ox_list<ox::ox_3dvector> result;
    for (unsigned int i = 0; i < polygon.get_contour_sizes()[wanted]; ++i) {
        result.push_right(polygon.get_contour_vertices()[first + static_cast<int>(i)]);
    }
    return result;
}

inline int count_contours(ox::ox_polygon& polygon) {
    return polygon.get_contour_sizes().size();
}

inline void expect_same_vector(const ox::ox_3dvector& a, const ox::ox_3dvector& b) {
    EXPECT_TRUE(a == b) << '(' << a.x << ", " << a.y << ", " << a.z << ") is not (" << b.x << ", "
                        << b.y << ", " << b.z << ')';
}

/// Equal element by element, exactly.
template <typename A, typename B>
void expect_same_elements(const A& a, const B& b) {
    ASSERT_EQ(static_cast<int>(a.size()), static_cast<int>(b.size()));
    for (int i = 0; i < static_cast<int>(a.size()); ++i) {
        EXPECT_TRUE(a.begin()[i] == b.begin()[i]) << "element " << i;
    }
}

inline void expect_same_contours(ox::ox_polygon& a, ox::ox_polygon& b) {
    expect_same_elements(a.get_contour_vertices(), b.get_contour_vertices());
    expect_same_elements(a.get_contour_sizes(), b.get_contour_sizes());
    expect_same_elements(a.get_contour_orientations(), b.get_contour_orientations());
    expect_same_elements(a.get_contour_parents(), b.get_contour_parents());
    support::dump_where_different(a, b, ::testing::Test::HasFailure());
}

/// What holds for every polygon after a merge or a boolean.
inline void expect_invariants(ox::ox_polygon& polygon) {
    const int n = count_contours(polygon);
    ASSERT_EQ(polygon.get_contour_orientations().size(), n);
    ASSERT_EQ(polygon.get_contour_parents().size(), n);
    unsigned int total = 0;
    for (int c = 0; c < n; ++c) {
        total += polygon.get_contour_sizes()[c];
        const int parent = polygon.get_contour_parents()[c];
        EXPECT_LT(parent, c);
        EXPECT_GE(parent, -1);
        const bool outer = polygon.get_contour_orientations()[c];
        if (parent == -1) {
            EXPECT_TRUE(outer);
        } else {
            EXPECT_NE(outer, polygon.get_contour_orientations()[parent]);
        }
    }
    ASSERT_EQ(polygon.get_contour_vertices().size(), static_cast<int>(total));
    const int vertices = polygon.get_tesselation_vertices().size();
    const ox::ox_list<unsigned int>& triangles = polygon.get_tesselation_triangles();
    ASSERT_EQ(triangles.size() % 3, 0);
    for (const unsigned int index : triangles) {
        EXPECT_LT(index, static_cast<unsigned int>(vertices));
    }
}

/// No region, and every query answers.
inline void expect_empty_region(ox::ox_polygon& polygon) {
    EXPECT_EQ(count_contours(polygon), 0);
    EXPECT_EQ(polygon.get_contour_vertices().size(), 0);
    EXPECT_EQ(polygon.get_tesselation_triangles().size(), 0);
    EXPECT_EQ(polygon.get_area(), 0.0f);
    EXPECT_EQ(polygon.get_perimeter(), 0.0f);
    EXPECT_EQ(polygon.count_outer_contours(), 0);
    EXPECT_TRUE(polygon.get_bounding_box().is_empty());
}

} // namespace polygon_checks

#endif
