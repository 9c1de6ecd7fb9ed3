#include <gtest/gtest.h>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>
#include <type_traits>

#include <ox/ox_utilities.h>

namespace {

template <typename value>
std::string printed(const value& v) {
    std::ostringstream text;
    text << v;
    return text.str();
}

TEST(Printing, VectorsPolarCoordinatesAndColoursAreTheirComponentsInParentheses) {
    EXPECT_EQ(printed(ox::ox_2dvector(1, -2.5f)), "(1, -2.5)");
    EXPECT_EQ(printed(ox::ox_3dvector(1, 2, 3)), "(1, 2, 3)");
    EXPECT_EQ(printed(ox::ox_polar(5, 0.5f, 0)), "(5, 0.5, 0)");
    EXPECT_EQ(printed(ox::ox_color(1, 0, 0.5f)), "(1, 0, 0.5, 1)");
}

TEST(Printing, BoxesAreTheirOriginAndSize) {
    EXPECT_EQ(printed(ox::ox_box()), "[(0, 0, 0) + (-1, 0, 0)]");
}

TEST(Printing, MatricesAreTheirRows) {
    ox::ox_matrix placement;
    placement.translate(ox::ox_3dvector(5, 6, 7));
    EXPECT_EQ(printed(placement), "[1 0 0 5; 0 1 0 6; 0 0 1 7; 0 0 0 1]");
}

TEST(Printing, StreamSettingsApply) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(2) << ox::ox_2dvector(1, 2);
    EXPECT_EQ(text.str(), "(1.00, 2.00)");
}

TEST(Equality, OfPlainValuesIsThatOfTheirComponents) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(ox::ox_polar(1, 2, 3), ox::ox_polar(1, 2, 3));
    EXPECT_NE(ox::ox_polar(1, 2, 3), ox::ox_polar(1, 2, 4));
    EXPECT_EQ(ox::ox_color(1, 2, 3), ox::ox_color(1, 2, 3, 1));
    EXPECT_NE(ox::ox_color(1, 2, 3), ox::ox_color(1, 2, 3, 0));
    EXPECT_EQ(ox::ox_box(), ox::ox_box());
    ox::ox_box box;
    box.enlarge(ox::ox_3dvector(1, 2, 3));
    EXPECT_NE(box, ox::ox_box());
    EXPECT_EQ(ox::ox_matrix(), ox::ox_matrix());
    ox::ox_matrix odd;
    odd[5] = nan;
    EXPECT_NE(odd, odd);
}

TEST(Vectors, AreConstantExpressions) {
    constexpr ox::ox_3dvector up = ox::ox_cross(ox::ox_3dvector(1, 0, 0), ox::ox_3dvector(0, 1, 0));
    static_assert(up == ox::ox_3dvector(0, 0, 1));
    static_assert(ox::ox_dot(up * 2.0f, up) == 2.0f);
    static_assert((-ox::ox_2dvector(1, 2)).at(1) == -2.0f);
    static_assert(ox::ox_box().is_empty());
    static_assert(std::is_nothrow_copy_assignable_v<ox::ox_3dvector>);
    SUCCEED();
}

/// A plain 0 is no vector: it would be a null pointer to three floats.
TEST(Vectors, AreNotMadeFromAnInteger) {
    static_assert(!std::is_convertible_v<int, ox::ox_2dvector>);
    static_assert(!std::is_convertible_v<int, ox::ox_3dvector>);
    static_assert(!std::is_convertible_v<int, ox::ox_polar>);
    static_assert(std::is_convertible_v<float*, ox::ox_3dvector>);
    SUCCEED();
}

} // namespace
