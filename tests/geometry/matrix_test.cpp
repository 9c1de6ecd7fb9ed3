#include <ox/geometry/ox_matrix.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <ox/core/ox_log.h>
#include <tests/geometry/matrix_support.h>

using namespace geometry_test;
using ox::ox_3dvector;
using ox::ox_matrix;

namespace {

constexpr float half_pi = 1.5707964f;

} // namespace

TEST(OxMatrix, DefaultIsTheIdentity) {
    const ox_matrix m;
    for (unsigned int i = 0; i < 16; ++i) {
        EXPECT_EQ(m[i], i % 5 == 0 ? 1.f : 0.f);
    }
}

TEST(OxMatrix, LoadIdentityReplacesEverything) {
    ox_matrix m = counting_matrix();
    m.load_identity();
    EXPECT_TRUE(same_bits(m, ox_matrix()));
}

TEST(OxMatrix, ReadsFloatsInStorageOrder) {
    const ox_matrix m = counting_matrix();
    for (unsigned int i = 0; i < 16; ++i) {
        EXPECT_EQ(m[i], static_cast<float>(i + 1));
    }
}

TEST(OxMatrix, ReadsDoublesRoundedToFloat) {
    double values[16] = {0.1, 0.2, 0.3};
    values[12] = 1e300;
    const ox_matrix m(values);
    EXPECT_EQ(m[0], 0.1f);
    EXPECT_EQ(m[2], 0.3f);
    EXPECT_EQ(m[12], infinity);
    EXPECT_EQ(m[15], 0.f);
}

TEST(OxMatrix, NullArraysGiveTheIdentityOrChangeNothing) {
    const float* no_floats = nullptr;
    const double* no_doubles = nullptr;
    EXPECT_TRUE(same_bits(ox_matrix(no_floats), ox_matrix()));
    EXPECT_TRUE(same_bits(ox_matrix(no_doubles), ox_matrix()));
    ox_matrix m = counting_matrix();
    m.load_from_float(no_floats);
    m.load_from_double(no_doubles);
    EXPECT_TRUE(same_bits(m, counting_matrix()));
}

TEST(OxMatrix, CopiesAndMovesItsElements) {
    ox_matrix copied;
    copied = counting_matrix();
    EXPECT_TRUE(same_bits(copied, counting_matrix()));
    ox_matrix moved;
    moved = std::move(copied);
    EXPECT_TRUE(same_bits(moved, counting_matrix()));
}

TEST(OxMatrix, IndexWritesAnElement) {
    ox_matrix m;
    m[14] = 9.f;
    EXPECT_EQ(m.transform_point(ox_3dvector()), ox_3dvector(0.f, 0.f, 9.f));
}

TEST(OxMatrix, TranslateMovesPoints) {
    ox_matrix m;
    m.translate(ox_3dvector(1.f, 2.f, 3.f));
    EXPECT_EQ(m.transform_point(ox_3dvector()), ox_3dvector(1.f, 2.f, 3.f));
}

TEST(OxMatrix, TranslationLeavesDirections) {
    ox_matrix m;
    m.translation(ox_3dvector(1.f, 2.f, 3.f));
    const ox_3dvector v(4.f, 5.f, 6.f);
    EXPECT_EQ(m.transform_vector(v), v);
}

TEST(OxMatrix, QuarterTurnAboutZMapsXToY) {
    ox_matrix m;
    m.rotation(2, half_pi);
    expect_near(m.transform_point(ox_3dvector(1.f, 0.f, 0.f)), ox_3dvector(0.f, 1.f, 0.f));
}

TEST(OxMatrix, QuarterTurnAboutXMapsYToZ) {
    ox_matrix m;
    m.rotation(0, half_pi);
    expect_near(m.transform_point(ox_3dvector(0.f, 1.f, 0.f)), ox_3dvector(0.f, 0.f, 1.f));
}

TEST(OxMatrix, QuarterTurnAboutYMapsZToX) {
    ox_matrix m;
    m.rotation(1, half_pi);
    expect_near(m.transform_point(ox_3dvector(0.f, 0.f, 1.f)), ox_3dvector(1.f, 0.f, 0.f));
}

TEST(OxMatrix, RotationAboutZHasSineBelowCosine) {
    ox_matrix m;
    m.rotation(2, 0.3f);
    const float cosine = static_cast<float>(std::cos(static_cast<double>(0.3f)));
    const float sine = static_cast<float>(std::sin(static_cast<double>(0.3f)));
    EXPECT_EQ(m[0], cosine);
    EXPECT_EQ(m[1], sine);
    EXPECT_EQ(m[4], -sine);
    EXPECT_EQ(m[5], cosine);
    EXPECT_EQ(m[10], 1.f);
}

TEST(OxMatrix, RotationAboutAnUnknownAxisIsTheIdentity) {
    for (const int axis :
         {-1, -2, 3, 4, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        ox_matrix m = counting_matrix();
        m.rotation(axis, 1.f);
        EXPECT_TRUE(same_bits(m, ox_matrix())) << axis;
        m = counting_matrix();
        m.rotate(axis, 1.f);
        EXPECT_TRUE(same_bits(m, counting_matrix())) << axis;
    }
}

TEST(OxMatrix, ScaleAfterTranslationScalesFirst) {
    ox_matrix m;
    m.translation(ox_3dvector(1.f, 0.f, 0.f));
    m.scale(2.f, 2.f, 2.f);
    EXPECT_EQ(m.transform_point(ox_3dvector(1.f, 0.f, 0.f)), ox_3dvector(3.f, 0.f, 0.f));
}

TEST(OxMatrix, TranslateAfterScalingTranslatesFirst) {
    ox_matrix m;
    m.scaling(2.f, 2.f, 2.f);
    m.translate(ox_3dvector(1.f, 0.f, 0.f));
    EXPECT_EQ(m.transform_point(ox_3dvector(1.f, 0.f, 0.f)), ox_3dvector(4.f, 0.f, 0.f));
}

TEST(OxMatrix, SetFamilyForgetsWhatWasBefore) {
    ox_matrix m = counting_matrix();
    m.scaling(2.f, 3.f, 4.f);
    EXPECT_EQ(m.transform_point(ox_3dvector(1.f, 1.f, 1.f)), ox_3dvector(2.f, 3.f, 4.f));
    EXPECT_EQ(m[15], 1.f);
    m = counting_matrix();
    m.translation(ox_3dvector(1.f, 2.f, 3.f));
    EXPECT_EQ(m.transform_point(ox_3dvector()), ox_3dvector(1.f, 2.f, 3.f));
    EXPECT_EQ(m[3], 0.f);
}

TEST(OxMatrix, ApplyFamilyMultipliesOnTheRightByTheSetFamily) {
    sampler random(12);
    const ox_matrix start = random_matrix(random);
    const ox_3dvector o = random.vector(3.f);
    const ox_3dvector x = random.direction();
    const ox_3dvector y = random.direction();
    const ox_3dvector z = random.direction();

    const auto expect_product = [&start](const ox_matrix& applied, const ox_matrix& set) {
        ox_matrix product = start;
        product *= set;
        EXPECT_TRUE(same_bits(applied, product));
    };
    ox_matrix set;
    ox_matrix applied = start;
    set.rotation(1, 0.4f);
    applied.rotate(1, 0.4f);
    expect_product(applied, set);
    applied = start;
    set.rotation(o, x, 0.4f);
    applied.rotate(o, x, 0.4f);
    expect_product(applied, set);
    applied = start;
    set.scaling(2.f, 3.f, 4.f);
    applied.scale(2.f, 3.f, 4.f);
    expect_product(applied, set);
    applied = start;
    set.translation(o);
    applied.translate(o);
    expect_product(applied, set);
    applied = start;
    set.axis_transformation(o, x, y, z);
    applied.axis_transform(o, x, y, z);
    expect_product(applied, set);
    applied = start;
    set.inv_axis_transformation(o, x, y, z);
    applied.inv_axis_transform(o, x, y, z);
    expect_product(applied, set);
}

TEST(OxMatrix, ProductSumsRowTimesColumnFromZeroInAscendingOrder) {
    sampler random(13);
    for (int round = 0; round < 500; ++round) {
        const ox_matrix a = random_matrix(random);
        const ox_matrix b = random_matrix(random);
        ox_matrix product = a;
        product *= b;
        for (unsigned int column = 0; column < 4; ++column) {
            for (unsigned int row = 0; row < 4; ++row) {
                float sum = 0.f;
                for (unsigned int k = 0; k < 4; ++k) {
                    const float term = a[4 * k + row] * b[4 * column + k];
                    sum = sum + term;
                }
                EXPECT_TRUE(same_bits(product[4 * column + row], sum));
            }
        }
    }
}

TEST(OxMatrix, ProductWithItselfIsTheSquare) {
    ox_matrix m = counting_matrix();
    ox_matrix square = m;
    square *= counting_matrix();
    m *= m;
    EXPECT_TRUE(same_bits(m, square));
}

TEST(OxMatrix, ProductAppliesItsRightFactorFirst) {
    sampler random(14);
    for (int i = 0; i < 500; ++i) {
        const ox_matrix a = random_placement(random);
        const ox_matrix b = random_placement(random);
        ox_matrix product = a;
        product *= b;
        const ox_3dvector p = random.vector(5.f);
        expect_near(product.transform_point(p), a.transform_point(b.transform_point(p)), 1e-4f);
    }
}

TEST(OxMatrix, RotationAboutALineKeepsItsPointsAndTurnsCounterClockwise) {
    const ox_3dvector point(1.f, 2.f, 3.f);
    ox_matrix m;
    m.rotation(point, ox_3dvector(0.f, 0.f, 7.f), half_pi);
    expect_near(m.transform_point(ox_3dvector(1.f, 2.f, -5.f)), ox_3dvector(1.f, 2.f, -5.f));
    expect_near(m.transform_point(ox_3dvector(2.f, 2.f, 3.f)), ox_3dvector(1.f, 3.f, 3.f));
}

TEST(OxMatrix, RotationAboutALineThroughTheOriginAgreesWithTheAxisRotation) {
    const ox_3dvector axes[3] = {ox_3dvector(2.f, 0.f, 0.f), ox_3dvector(0.f, 2.f, 0.f),
                                 ox_3dvector(0.f, 0.f, 2.f)};
    for (int axis = 0; axis < 3; ++axis) {
        ox_matrix about_line;
        ox_matrix about_axis;
        about_line.rotation(ox_3dvector(), axes[axis], 0.7f);
        about_axis.rotation(axis, 0.7f);
        expect_near(about_line, about_axis, 1e-6f);
    }
}

TEST(OxMatrix, RotationAboutALineIsTheProductOfItsThreeSteps) {
    const ox_3dvector point(1.f, -2.f, 0.5f);
    const ox_3dvector axis(0.3f, 0.4f, 0.5f);
    ox_3dvector w = axis, u, v;
    w.build_axis(u, v);
    ox_matrix expected;
    ox_matrix turn;
    ox_matrix back;
    expected.inv_axis_transformation(point, u, v, w);
    turn.rotation(2, 0.9f);
    back.axis_transformation(point, u, v, w);
    expected *= turn;
    expected *= back;
    ox_matrix m;
    m.rotation(point, axis, 0.9f);
    EXPECT_TRUE(same_bits(m, expected));
}

TEST(OxMatrix, RotationAboutALineKeepsDistances) {
    sampler random(15);
    for (int i = 0; i < 1000; ++i) {
        ox_matrix m;
        const ox_3dvector point = random.vector(3.f);
        const ox_3dvector axis = random.direction();
        m.rotation(point, axis, random.number(-6.f, 6.f));
        const ox_3dvector p = random.vector(3.f);
        const ox_3dvector q = random.vector(3.f);
        EXPECT_NEAR(m.transform_point(p).distance_to(m.transform_point(q)), p.distance_to(q),
                    1e-4f);
    }
}

TEST(OxMatrix, AxisTransformationPutsTheAxesIntoRows) {
    ox_matrix m;
    m.axis_transformation(ox_3dvector(1.f, 0.f, 0.f), ox_3dvector(1.f, 2.f, 3.f),
                          ox_3dvector(4.f, 5.f, 6.f), ox_3dvector(7.f, 8.f, 9.f));
    const float expected[16] = {1.f, 4.f, 7.f, 0.f, 2.f,  5.f,  8.f,  0.f,
                                3.f, 6.f, 9.f, 0.f, -1.f, -4.f, -7.f, 1.f};
    EXPECT_TRUE(same_bits(m, ox_matrix(expected)));
}

TEST(OxMatrix, InverseAxisTransformationPutsTheAxesIntoColumns) {
    ox_matrix m;
    m.inv_axis_transformation(ox_3dvector(10.f, 11.f, 12.f), ox_3dvector(1.f, 2.f, 3.f),
                              ox_3dvector(4.f, 5.f, 6.f), ox_3dvector(7.f, 8.f, 9.f));
    const float expected[16] = {1.f, 2.f, 3.f, 0.f, 4.f,  5.f,  6.f,  0.f,
                                7.f, 8.f, 9.f, 0.f, 10.f, 11.f, 12.f, 1.f};
    EXPECT_TRUE(same_bits(m, ox_matrix(expected)));
}

TEST(OxMatrix, FrameAndBackReturnsThePoint) {
    sampler random(16);
    for (int i = 0; i < 1000; ++i) {
        const ox_3dvector o = random.vector(5.f);
        ox_3dvector z = random.direction(), x, y;
        z.build_axis(x, y);
        ox_matrix to_frame;
        ox_matrix to_world;
        to_frame.axis_transformation(o, x, y, z);
        to_world.inv_axis_transformation(o, x, y, z);
        const ox_3dvector p = random.vector(5.f);
        expect_near(to_world.transform_point(to_frame.transform_point(p)), p, 1e-5f);
        expect_near(to_frame.transform_point(o), ox_3dvector(), 1e-5f);
    }
}

TEST(OxMatrix, TransformIgnoresTheBottomRow) {
    ox_matrix m;
    m[3] = 5.f;
    m[7] = 6.f;
    m[11] = 7.f;
    m[15] = 8.f;
    const ox_3dvector p(1.f, 2.f, 3.f);
    EXPECT_EQ(m.transform_point(p), p);
    EXPECT_EQ(m.transform_vector(p), p);
}

TEST(OxMatrix, LogWritesOneLineForEachColumn) {
    const std::string path = ::testing::TempDir() + "ox_matrix_test_log.txt";
    std::remove(path.c_str());
    ox_set_log_file(path.c_str());
    const bool was_on = ox_log_get();
    ox_log_set(true);
    counting_matrix().log();
    ox_matrix huge;
    huge.scaling(-largest, not_a_number, infinity);
    huge.log();
    ox_log_set(was_on);
    ox_set_log_file(nullptr);

    std::ifstream file(path);
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    file.close();
    std::remove(path.c_str());
    const std::string expected = "\t1.000000 - 2.000000 - 3.000000\n"
                                 "\t5.000000 - 6.000000 - 7.000000\n"
                                 "\t9.000000 - 10.000000 - 11.000000\n"
                                 "\t13.000000 - 14.000000 - 15.000000\n";
    EXPECT_EQ(text.substr(0, expected.size()), expected);
    EXPECT_NE(text.find("-340282346638528859811704183484516925440.000000"), std::string::npos);
}

TEST(OxMatrix, HostileValuesTravelThroughEveryOperation) {
    for_each_hostile_vector([](const ox_3dvector& hostile) {
        ox_matrix m;
        m.rotation(hostile, hostile, hostile.x);
        m.rotate(0, hostile.y);
        m.scale(hostile.x, hostile.y, hostile.z);
        m.translate(hostile);
        m.axis_transform(hostile, hostile, hostile, hostile);
        m.inv_axis_transform(hostile, hostile, hostile, hostile);
        ox_matrix out;
        m.reverse(out);
        m.transform_point(hostile);
        m.transform_vector(hostile);
    });
}

TEST(OxMatrix, ProductWithAPointIsItsImage) {
    ox_matrix m;
    m.translate(ox_3dvector(1, 2, 3));
    m.rotate(2, half_pi);
    const ox_3dvector p(4, 5, 6);
    EXPECT_EQ(m * p, m.transform_point(p));
}

TEST(OxMatrix, ProductOfTwoAppliesTheRightOneFirst) {
    ox_matrix turn;
    turn.rotation(0, half_pi);
    const ox_matrix m = counting_matrix();
    ox_matrix expected = m;
    expected *= turn;
    EXPECT_TRUE(same_bits(m * turn, expected));
}
