#ifndef TESTS_GEOMETRY_MATRIX_SUPPORT_H
#define TESTS_GEOMETRY_MATRIX_SUPPORT_H

#include <gtest/gtest.h>

#include <ox/geometry/ox_matrix.h>
#include <tests/geometry/support.h>

namespace geometry_test {

/// The matrix of the elements 1 to 16.
inline ox::ox_matrix counting_matrix() {
    float values[16];
    for (int i = 0; i < 16; ++i) {
        values[i] = static_cast<float>(i + 1);
    }
    return ox::ox_matrix(values);
}

/// Elements in [-2, 2].
inline ox::ox_matrix random_matrix(sampler& random) {
    ox::ox_matrix m;
    for (unsigned int i = 0; i < 16; ++i) {
        m[i] = random.number(-2.f, 2.f);
    }
    return m;
}

/// Random rotation and translation.
inline ox::ox_matrix random_placement(sampler& random) {
    ox::ox_matrix m;
    const ox::ox_3dvector point = random.vector(3.f);
    const ox::ox_3dvector axis = random.direction();
    m.rotation(point, axis, random.number(-3.f, 3.f));
    m.translate(random.vector(5.f));
    return m;
}

inline void expect_near(const ox::ox_3dvector& actual, const ox::ox_3dvector& expected,
                        float limit = 1e-6f) {
    EXPECT_NEAR(actual.x, expected.x, limit);
    EXPECT_NEAR(actual.y, expected.y, limit);
    EXPECT_NEAR(actual.z, expected.z, limit);
}

inline void expect_near(const ox::ox_matrix& actual, const ox::ox_matrix& expected, float limit) {
    for (unsigned int i = 0; i < 16; ++i) {
        EXPECT_NEAR(actual[i], expected[i], limit) << "element " << i;
    }
}

} // namespace geometry_test

#endif
