#ifndef OX_TESTS_SOLID_SAME_POLYGONS_H
#define OX_TESTS_SOLID_SAME_POLYGONS_H

#include <cstring>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include <ox/polygon/ox_polygon.h>
#include <tests/solid/solid_lists.h>
#include <tests/support/dump.h>

namespace ox_test {

inline bool have_same_bits(const ox::ox_3dvector& a, const ox::ox_3dvector& b) {
    return std::memcmp(&a, &b, sizeof(ox::ox_3dvector)) == 0;
}

/// Expects two polygons to be the same in everything that can be asked of them.
inline void expect_same_polygon(ox::ox_polygon& a, ox::ox_polygon& b) {
    EXPECT_TRUE(have_same_bits(a.get_normal(), b.get_normal()));
    EXPECT_TRUE(have_same_bits(a.get_point(), b.get_point()));
    EXPECT_TRUE(have_same_bits(a.get_contour_vertices(), b.get_contour_vertices()));
    EXPECT_EQ(to_vector(a.get_contour_sizes()), to_vector(b.get_contour_sizes()));
    EXPECT_EQ(to_vector(a.get_contour_orientations()), to_vector(b.get_contour_orientations()));
    EXPECT_EQ(to_vector(a.get_contour_parents()), to_vector(b.get_contour_parents()));
    EXPECT_TRUE(have_same_bits(a.get_bounding_box().origin, b.get_bounding_box().origin));
    EXPECT_TRUE(have_same_bits(a.get_bounding_box().size, b.get_bounding_box().size));
    EXPECT_EQ(a.get_area(), b.get_area());
    EXPECT_TRUE(have_same_bits(a.get_tesselation_vertices(), b.get_tesselation_vertices()));
    EXPECT_EQ(to_vector(a.get_tesselation_triangles()), to_vector(b.get_tesselation_triangles()));
    support::dump_where_different(a, b, ::testing::Test::HasFailure());
}

/// Expects new polygons, which it deletes, to be the expected ones.
inline void expect_same_pieces(const ox::ox_list<ox::ox_polygon*>& pieces,
                               const std::vector<std::unique_ptr<ox::ox_polygon>>& expected) {
    EXPECT_EQ(pieces.size(), static_cast<int>(expected.size()));
    for (int i = 0; i < pieces.size(); ++i) {
        const std::unique_ptr<ox::ox_polygon> piece(pieces[i]);
        if (i < static_cast<int>(expected.size())) {
            expect_same_polygon(*piece, *expected[static_cast<std::size_t>(i)]);
        }
    }
}

} // namespace ox_test

#endif
