#ifndef OX_TESTS_SOLID_SOLID_LISTS_H
#define OX_TESTS_SOLID_SOLID_LISTS_H

#include <cstring>
#include <initializer_list>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ox/solid/ox_solid.h>

namespace ox_test {

/// A list of the given elements.
template <typename T>
ox::ox_list<T> list_of(std::initializer_list<T> elements) {
    ox::ox_list<T> list;
    for (const T& element : elements) {
        list.push_right(element);
    }
    return list;
}

template <typename T>
std::vector<T> to_vector(const ox::ox_list<T>& list) {
    return std::vector<T>(list.begin(), list.end());
}

/// Whether two vertex lists hold the same bits.
inline bool have_same_bits(const ox::ox_list<ox::ox_3dvector>& a,
                           const ox::ox_list<ox::ox_3dvector>& b) {
    return a.size() == b.size() &&
           (a.size() <= 0 ||
            std::memcmp(a.get_data(), b.get_data(),
                        static_cast<std::size_t>(a.size()) * sizeof(ox::ox_3dvector)) == 0);
}

/// Expects two solids to have the same primary storage, bit for bit.
inline void expect_same_storage(const ox::ox_solid& a, const ox::ox_solid& b) {
    EXPECT_TRUE(have_same_bits(a.get_vertices(), b.get_vertices()));
    EXPECT_EQ(to_vector(a.get_contours()), to_vector(b.get_contours()));
    EXPECT_EQ(to_vector(a.get_contour_sizes()), to_vector(b.get_contour_sizes()));
}

inline ox::ox_solid unit_brick() {
    ox::ox_solid solid;
    solid.brick(ox::ox_3dvector(0, 0, 0), 1, 1, 1);
    return solid;
}

} // namespace ox_test

#endif
