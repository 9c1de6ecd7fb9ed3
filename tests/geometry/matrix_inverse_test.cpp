#include <ox/geometry/ox_matrix.h>

#include <cmath>

#include <gtest/gtest.h>

#include <tests/geometry/expanded_inverse.h>
#include <tests/geometry/matrix_support.h>

using namespace geometry_test;
using ox::ox_matrix;

namespace {

ox_matrix zero_matrix() {
    const float values[16] = {};
    return ox_matrix(values);
}

} // namespace

TEST(MatrixInverse, ZeroMatrixHasNoInverseAndLeavesTheOutput) {
    ox_matrix out = counting_matrix();
    EXPECT_FALSE(zero_matrix().reverse(out));
    EXPECT_TRUE(same_bits(out, counting_matrix()));
}

TEST(MatrixInverse, MatrixOfATinyDeterminantIsInverted) {
    ox_matrix m;
    m.scaling(1e-10f, 1e-10f, 1e-10f);
    ox_matrix out;
    EXPECT_TRUE(m.reverse(out));
    EXPECT_FLOAT_EQ(out[0], 1e10f);
    EXPECT_FLOAT_EQ(out[10], 1e10f);
    EXPECT_EQ(out[15], 1.f);
}

TEST(MatrixInverse, InverseLeavesTheMatrixAndMayReplaceIt) {
    sampler random(17);
    const ox_matrix start = random_placement(random);
    ox_matrix m = start;
    ox_matrix out;
    ASSERT_TRUE(m.reverse(out));
    EXPECT_TRUE(same_bits(m, start));
    ASSERT_TRUE(m.reverse(m));
    EXPECT_TRUE(same_bits(m, out));
}

TEST(MatrixInverse, ProductWithTheInverseIsTheIdentity) {
    sampler random(18);
    for (int i = 0; i < 1000; ++i) {
        ox_matrix m = random_placement(random);
        const float sx = random.number(0.5f, 2.f);
        const float sy = random.number(0.5f, 2.f);
        m.scale(sx, sy, random.number(0.5f, 2.f));
        ox_matrix inverse;
        ASSERT_TRUE(m.reverse(inverse));
        m *= inverse;
        expect_near(m, ox_matrix(), 1e-4f);
    }
}

TEST(MatrixInverse, InverseHasTheBitsOfTheFullyExpandedForm) {
    sampler random(19);
    for (int i = 0; i < 5000; ++i) {
        ox_matrix m = random_matrix(random);
        if (i % 2 == 0) { // many zeros and equal elements: singular matrices, signed zeros
            for (unsigned int k = 0; k < 16; ++k) {
                m[k] = std::trunc(m[k]);
            }
        }
        ox_matrix inverse;
        ox_matrix expected;
        const bool found = m.reverse(inverse);
        ASSERT_EQ(found, reference::expanded_inverse(&m[0], &expected[0]));
        ASSERT_TRUE(same_bits(inverse, expected)) << "matrix " << i;
    }
}
