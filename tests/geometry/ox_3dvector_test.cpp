#include <ox/geometry/ox_3dvector.h>

#include <gtest/gtest.h>

#include <tests/geometry/support.h>

using namespace geometry_test;
using ox::ox_3dvector;

TEST(Ox3dVector, DefaultIsZero) {
    EXPECT_EQ(ox_3dvector(), ox_3dvector(0.f, 0.f, 0.f));
}

TEST(Ox3dVector, ReadsThreeConsecutiveFloats) {
    float values[3] = {1.f, 2.f, 3.f};
    EXPECT_EQ(ox_3dvector(values), ox_3dvector(1.f, 2.f, 3.f));
}

TEST(Ox3dVector, NullArrayGivesZero) {
    const float* none = nullptr;
    EXPECT_EQ(ox_3dvector(none), ox_3dvector());
}

TEST(Ox3dVector, IndexReachesComponentsInOrder) {
    ox_3dvector v;
    v[0] = 5.f;
    v[1] = 6.f;
    v[2] = 7.f;
    EXPECT_EQ(v, ox_3dvector(5.f, 6.f, 7.f));
    EXPECT_EQ(v.at(0), 5.f);
    EXPECT_EQ(v.at(1), 6.f);
    EXPECT_EQ(v.at(2), 7.f);
}

TEST(Ox3dVector, ArrayIsTightlyPacked) {
    ox_3dvector v[2] = {ox_3dvector(1.f, 2.f, 3.f), ox_3dvector(4.f, 5.f, 6.f)};
    float values[6];
    std::memcpy(values, v, sizeof(v));
    EXPECT_EQ(values[2], 3.f);
    EXPECT_EQ(values[3], 4.f);
}

TEST(Ox3dVector, NegationLeavesTheOperand) {
    const ox_3dvector v(1.f, -2.f, 3.f);
    EXPECT_EQ(-v, ox_3dvector(-1.f, 2.f, -3.f));
    EXPECT_EQ(v, ox_3dvector(1.f, -2.f, 3.f));
}

TEST(Ox3dVector, InPlaceOperatorsWorkComponentByComponent) {
    ox_3dvector v(6.f, 8.f, 10.f);
    v += ox_3dvector(2.f, 4.f, 6.f);
    EXPECT_EQ(v, ox_3dvector(8.f, 12.f, 16.f));
    v -= ox_3dvector(4.f, 4.f, 4.f);
    EXPECT_EQ(v, ox_3dvector(4.f, 8.f, 12.f));
    v *= ox_3dvector(2.f, 3.f, 4.f);
    EXPECT_EQ(v, ox_3dvector(8.f, 24.f, 48.f));
    v /= ox_3dvector(4.f, 6.f, 8.f);
    EXPECT_EQ(v, ox_3dvector(2.f, 4.f, 6.f));
    v *= 3.f;
    EXPECT_EQ(v, ox_3dvector(6.f, 12.f, 18.f));
    v /= 6.f;
    EXPECT_EQ(v, ox_3dvector(1.f, 2.f, 3.f));
}

TEST(Ox3dVector, InPlaceOperatorsAcceptTheVectorItself) {
    ox_3dvector v(3.f, 5.f, 7.f);
    const ox_3dvector& itself = v;
    v += itself;
    EXPECT_EQ(v, ox_3dvector(6.f, 10.f, 14.f));
    v *= itself;
    EXPECT_EQ(v, ox_3dvector(36.f, 100.f, 196.f));
    v /= itself;
    EXPECT_EQ(v, ox_3dvector(1.f, 1.f, 1.f));
    v -= itself;
    EXPECT_EQ(v, ox_3dvector());
}

TEST(Ox3dVector, DivisionByZeroIsNotGuarded) {
    ox_3dvector v(1.f, -1.f, 2.f);
    v /= 0.f;
    EXPECT_EQ(v, ox_3dvector(infinity, -infinity, infinity));
}

TEST(Ox3dVector, BinaryOperatorsAgreeWithTheInPlaceForms) {
    const ox_3dvector a(1.f, 2.f, 3.f);
    const ox_3dvector b(3.f, 5.f, 7.f);
    EXPECT_EQ(a + b, ox_3dvector(4.f, 7.f, 10.f));
    EXPECT_EQ(a - b, ox_3dvector(-2.f, -3.f, -4.f));
    EXPECT_EQ(a * 2.f, ox_3dvector(2.f, 4.f, 6.f));
    EXPECT_EQ(2.f * a, ox_3dvector(2.f, 4.f, 6.f));
    EXPECT_EQ(b / 3.f, ox_3dvector(1.f, 5.f / 3.f, 7.f / 3.f));
}

TEST(Ox3dVector, DivisionDividesEachComponentInsteadOfMultiplyingByTheReciprocal) {
    ASSERT_NE(41.f * (1.f / 41.f), 1.f);
    EXPECT_EQ(ox_3dvector(41.f, 41.f, 41.f) / 41.f, ox_3dvector(1.f, 1.f, 1.f));
}

TEST(Ox3dVector, EqualityIsExact) {
    EXPECT_TRUE(ox_3dvector(1.f, 0.f, 2.f) == ox_3dvector(1.f, -0.f, 2.f));
    EXPECT_TRUE(ox_3dvector(1.f, 1.f, 2.f) != ox_3dvector(1.f, 1.f, std::nextafter(2.f, 3.f)));
    EXPECT_TRUE(ox_3dvector(not_a_number, 0.f, 0.f) != ox_3dvector(not_a_number, 0.f, 0.f));
}

TEST(Ox3dVector, ProductsAreTheSameFunctionsInBothNamespaces) {
    const ox_3dvector x(1.f, 0.f, 0.f);
    const ox_3dvector y(0.f, 1.f, 0.f);
    EXPECT_EQ(::ox_cross(x, y), ox::ox_cross(x, y));
    EXPECT_EQ(::ox_dot(x, y), ox::ox_dot(x, y));
}

TEST(Ox3dVector, CrossProductIsRightHanded) {
    EXPECT_EQ(ox_cross(ox_3dvector(1.f, 0.f, 0.f), ox_3dvector(0.f, 1.f, 0.f)),
              ox_3dvector(0.f, 0.f, 1.f));
    EXPECT_EQ(ox_cross(ox_3dvector(1.f, 2.f, 3.f), ox_3dvector(4.f, 5.f, 6.f)),
              ox_3dvector(-3.f, 6.f, -3.f));
}

TEST(Ox3dVector, DotProductSumsFromLeftToRight) {
    const ox_3dvector a(1e8f, -1e8f, 1.f);
    EXPECT_EQ(ox_dot(a, ox_3dvector(1.f, 1.f, 1.f)), 1.f);
    const ox_3dvector b(1.f, 1e8f, -1e8f);
    EXPECT_EQ(ox_dot(b, ox_3dvector(1.f, 1.f, 1.f)), 0.f);
}

TEST(Ox3dVector, SizesAndDistances) {
    const ox_3dvector v(2.f, -3.f, 6.f);
    EXPECT_EQ(v.size(), 7.f);
    EXPECT_EQ(v.manhattan_size(), 11.f);
    const ox_3dvector w(1.f, -1.f, 4.f);
    EXPECT_EQ(v.distance_to(w), 3.f);
    EXPECT_EQ(v.manhattan_distance_to(w), 5.f);
    EXPECT_EQ(v.square_distance_to(w), 9.f);
}

TEST(Ox3dVector, NormalizingZeroReturnsZeroAndChangesNothing) {
    ox_3dvector v;
    EXPECT_EQ(v.normalize(), 0.f);
    EXPECT_EQ(v, ox_3dvector());
}

TEST(Ox3dVector, NormalizingMultipliesByTheReciprocal) {
    ox_3dvector v(0.f, 41.f, 0.f);
    EXPECT_EQ(v.normalize(), 41.f);
    EXPECT_EQ(v, ox_3dvector(0.f, 41.f * (1.f / 41.f), 0.f));
}

TEST(Ox3dVector, NormalizingAVectorWhoseSquareUnderflowsChangesNothing) {
    ox_3dvector v(1e-30f, smallest, -1e-30f);
    EXPECT_EQ(v.normalize(), 0.f);
    EXPECT_EQ(v, ox_3dvector(1e-30f, smallest, -1e-30f));
}

TEST(Ox3dVector, NormalizingAVectorWhoseSquareOverflowsGivesZero) {
    ox_3dvector v(1e30f, 1.f, -1e30f);
    EXPECT_EQ(v.normalize(), infinity);
    EXPECT_EQ(v, ox_3dvector());
}

TEST(Ox3dVector, MainAxisGivesTiesToTheHigherIndex) {
    EXPECT_EQ(ox_3dvector(1.f, 1.f, 1.f).main_axis(), 2);
    EXPECT_EQ(ox_3dvector(1.f, 1.f, 0.f).main_axis(), 1);
    EXPECT_EQ(ox_3dvector(0.f, 0.f, 0.f).main_axis(), 2);
    EXPECT_EQ(ox_3dvector(1.f, 0.f, 1.f).main_axis(), 2);
    EXPECT_EQ(ox_3dvector(0.f, 1.f, 1.f).main_axis(), 2);
}

TEST(Ox3dVector, MainAxisComparesMagnitudes) {
    EXPECT_EQ(ox_3dvector(-3.f, 2.f, 1.f).main_axis(), 0);
    EXPECT_EQ(ox_3dvector(2.f, -3.f, 1.f).main_axis(), 1);
    EXPECT_EQ(ox_3dvector(1.f, 2.f, -3.f).main_axis(), 2);
}

TEST(Ox3dVector, BuildAxisNormalizesTheVectorItself) {
    ox_3dvector w(0.f, 0.f, 5.f);
    ox_3dvector u, v;
    w.build_axis(u, v);
    EXPECT_EQ(w, ox_3dvector(0.f, 0.f, 5.f * (1.f / 5.f)));
}

TEST(Ox3dVector, BuildAxisCrossesPlusZWithAVectorAwayFromZ) {
    ox_3dvector w(1.f, 0.f, 0.f);
    ox_3dvector u, v;
    w.build_axis(u, v);
    EXPECT_EQ(u, ox_3dvector(0.f, 1.f, 0.f));
    EXPECT_EQ(v, ox_3dvector(0.f, 0.f, 1.f));
}

TEST(Ox3dVector, BuildAxisCrossesPlusYWithAVectorNearZ) {
    ox_3dvector w(0.f, 0.f, 1.f);
    ox_3dvector u, v;
    w.build_axis(u, v);
    EXPECT_EQ(u, ox_3dvector(1.f, 0.f, 0.f));
    EXPECT_EQ(v, ox_3dvector(0.f, 1.f, 0.f));
    ox_3dvector down(0.f, 0.f, -1.f);
    down.build_axis(u, v);
    EXPECT_EQ(u, ox_3dvector(-1.f, 0.f, 0.f));
    EXPECT_EQ(v, ox_3dvector(0.f, 1.f, 0.f));
}

TEST(Ox3dVector, BuildAxisChangesItsReferenceAxisAtACosineOf099) {
    ox_3dvector u, v;
    ox_3dvector below(0.1425f, 0.f, 0.9898f);
    below.build_axis(u, v);
    EXPECT_LT(below.z, 0.99f);
    EXPECT_FLOAT_EQ(u.y, 1.f); // across +z
    ox_3dvector above(0.1404f, 0.f, 0.9901f);
    above.build_axis(u, v);
    EXPECT_GT(above.z, 0.99f);
    EXPECT_EQ(u.y, 0.f); // across +y
    EXPECT_GT(u.x, 0.98f);
}

TEST(Ox3dVector, BuildAxisGivesAnOrthonormalRightHandedFrame) {
    sampler random(3);
    for (int i = 0; i < 5000; ++i) {
        ox_3dvector w = random.direction();
        w *= random.number(0.01f, 100.f);
        ox_3dvector u, v;
        w.build_axis(u, v);
        EXPECT_NEAR(w.size(), 1.f, 1e-6f);
        EXPECT_NEAR(u.size(), 1.f, 1e-6f);
        EXPECT_NEAR(v.size(), 1.f, 1e-6f);
        EXPECT_NEAR(ox_dot(u, v), 0.f, 1e-6f);
        EXPECT_NEAR(ox_dot(v, w), 0.f, 1e-6f);
        EXPECT_NEAR(ox_dot(w, u), 0.f, 1e-6f);
        EXPECT_LT(ox_cross(u, v).distance_to(w), 1e-6f);
    }
}

TEST(Ox3dVector, BuildAxisOfZeroGivesZeroAxes) {
    ox_3dvector w, u(1.f, 1.f, 1.f), v(1.f, 1.f, 1.f);
    w.build_axis(u, v);
    EXPECT_EQ(u, ox_3dvector());
    EXPECT_EQ(v, ox_3dvector());
}

TEST(Ox3dVector, BuildAxisMayOverwriteTheVectorItself) {
    const ox_3dvector start(1.f, 2.f, 3.f);
    ox_3dvector w = start, u, v;
    w.build_axis(u, v);

    ox_3dvector as_first = start, other;
    as_first.build_axis(as_first, other);
    EXPECT_EQ(as_first, u);
    EXPECT_EQ(other, v);

    ox_3dvector as_second = start;
    as_second.build_axis(other, as_second);
    EXPECT_EQ(other, u);
    EXPECT_EQ(as_second, v);
}

TEST(Ox3dVector, HostileValuesTravelThroughEveryOperation) {
    for_each_hostile_vector([](const ox_3dvector& hostile) {
        ox_3dvector v = hostile;
        const int axis = v.main_axis();
        EXPECT_TRUE(axis >= 0 && axis <= 2);
        ox_3dvector u, w;
        v.build_axis(u, w);
        v = hostile;
        const float length = v.normalize();
        EXPECT_TRUE(std::isnan(length) || length >= 0.f);
    });
}
