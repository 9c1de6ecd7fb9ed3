#include <examples/curves/diagram.h>

#include <gtest/gtest.h>

namespace {

using namespace curves;

void expect_marks(double first, double last, double step, const scale_marks& marks) {
    EXPECT_DOUBLE_EQ(first, marks.first);
    EXPECT_DOUBLE_EQ(last, marks.last);
    EXPECT_DOUBLE_EQ(step, marks.step);
}

TEST(CurvesDiagram, ScalesAreMultiplesOfOneTwoOrFive) {
    expect_marks(0, 10, 1, marks_for(0, 10, 10));
    expect_marks(0, 10, 2, marks_for(0.5, 9.5, 6));
    expect_marks(-500, 1000, 500, marks_for(-300, 900, 3));
    expect_marks(0.3, 0.45, 0.05, marks_for(0.31, 0.44, 3));
}

TEST(CurvesDiagram, ScaleOfEqualValuesHasALength) {
    const scale_marks marks = marks_for(5, 5, 8);
    EXPECT_LE(marks.first, 5);
    EXPECT_LT(marks.first, marks.last);
    EXPECT_GE(marks.count(), 2);
}

TEST(CurvesDiagram, PlacesLowValuesLowAndLeft) {
    const diagram axes({{0, 0}, {10, 5}}, {100, 50}, 800, 600);
    const ox_examples::pixel_point low = axes.place(plan_point{0, 0});
    const ox_examples::pixel_point high = axes.place(plan_point{10, 5});
    EXPECT_LT(low.x, high.x);
    EXPECT_GT(low.y, high.y);
    EXPECT_GT(low.x, 100);
    EXPECT_LT(high.x, 900);
    EXPECT_LT(low.y, 650);
    EXPECT_GT(high.y, 50);
}

} // namespace
