#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <ox/structure/ox_loadshare.h>
#include <string>
#include <tests/core/fresh_process.h>
#include <tests/support/generator.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_loadshare;

constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

ox_list<ox_3dvector> contour(std::initializer_list<ox_3dvector> points) {
    ox_list<ox_3dvector> result;
    for (const ox_3dvector& point : points) {
        result.push_right(point);
    }
    return result;
}

ox_list<ox_3dvector> rectangle(float x0, float y0, float x1, float y1) {
    return contour({{x0, y0, 0}, {x1, y0, 0}, {x1, y1, 0}, {x0, y1, 0}});
}

ox_loadshare flat_slab() {
    ox_loadshare slab;
    slab.set_slab_geometry(ox_3dvector(0, 0, 1), ox_3dvector(1, 0, 0));
    return slab;
}

ox_loadshare slab_of(const ox_list<ox_3dvector>& outline) {
    ox_loadshare slab = flat_slab();
    slab.add_slab_contour(outline);
    return slab;
}

int vertical_beam(ox_loadshare& slab, float x, float y0, float y1) {
    return slab.add_beam(ox_3dvector(x, y0, 0), ox_3dvector(x, y1, 0));
}

TEST(OxLoadshare, TwoBeamsOfARectangleTakeHalfEachAndAParallelOneNothing) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 10, 4));
    EXPECT_EQ(vertical_beam(slab, 2, 0, 4), 0);
    EXPECT_EQ(vertical_beam(slab, 8, 0, 4), 1);
    EXPECT_EQ(slab.add_beam(ox_3dvector(0, 2, 0), ox_3dvector(10, 2, 0)), 2);
    slab.set_slab_weight(3);
    slab.compute_weights(0.01f);
    EXPECT_NEAR(slab.get_weight(0), 60, 0.3);
    EXPECT_NEAR(slab.get_weight(1), 60, 0.3);
    EXPECT_EQ(slab.get_weight(2), 0);
}

TEST(OxLoadshare, IndexOutOfRangeWeighsMinus1) {
    ox_loadshare slab = flat_slab();
    EXPECT_EQ(slab.get_weight(0), -1);
    EXPECT_EQ(slab.get_weight(-1), -1);
    vertical_beam(slab, 0, 0, 1);
    EXPECT_EQ(slab.get_weight(0), 0);
    EXPECT_EQ(slab.get_weight(1), -1);
}

TEST(OxLoadshare, LineWithoutABeamLosesItsLoad) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 10, 4));
    vertical_beam(slab, 5, 0, 2);
    slab.compute_weights(0.01f);
    EXPECT_NEAR(slab.get_weight(0), 20, 0.3);
}

TEST(OxLoadshare, HoleCarriesNoLoad) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 10, 4));
    slab.add_slab_contour(rectangle(4, 1, 6, 3));
    vertical_beam(slab, 2, -1, 5);
    vertical_beam(slab, 8, -1, 5);
    slab.compute_weights(0.01f);
    EXPECT_NEAR(slab.get_weight(0) + slab.get_weight(1), 36, 0.3);
}

TEST(OxLoadshare, StepsOf0AndBelowAndNotANumberAreTreatedAsAThousandth) {
    for (const float step : {0.0f, -1.0f, nan, 1e-30f, -infinity}) {
        ox_loadshare slab = slab_of(rectangle(0, 0, 1, 1));
        vertical_beam(slab, 0.5f, 0, 1);
        slab.compute_weights(0.001f);
        const float expected = slab.get_weight(0);
        slab.compute_weights(step);
        EXPECT_EQ(slab.get_weight(0), expected);
        EXPECT_NEAR(expected, 1, 0.002);
    }
}

TEST(OxLoadshare, StepTooSmallForTheCoordinatesIsRaisedToTheirSpacing) {
    ox_loadshare slab = slab_of(rectangle(0, 1e6f, 10, 1e6f + 100));
    vertical_beam(slab, 5, 1e6f, 1e6f + 100);
    slab.compute_weights(1e-30f);
    EXPECT_NEAR(slab.get_weight(0), 1000, 2);
}

TEST(OxLoadshare, StepOfHalfTheSpacingOfTheCoordinatesIsRaisedToTheSpacing) {
    struct {
        float low;
        float high;
        float half_spacing;
    } const slabs[] = {{6860000.0f, 6860012.5f, 0.25f},
                       {16777216.0f, 16777218.0f, 1.0f},
                       {65536.0f, 65536.0078125f, 0.00390625f},
                       {-6860012.5f, -6860000.0f, 0.25f}};
    for (const auto& [low, high, half_spacing] : slabs) {
        ox_loadshare slab = slab_of(rectangle(0, low, 10, high));
        vertical_beam(slab, 5, low - 10, high + 10);
        slab.compute_weights(half_spacing);
        EXPECT_NEAR(slab.get_weight(0), 10 * (high - low), 10 * 4 * half_spacing);
    }
}

TEST(OxLoadshare, InfiniteStepIsAnswered) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 10, 4));
    vertical_beam(slab, 5, -1, 5);
    slab.set_image_log(true);
    slab.compute_weights(infinity);
    slab.get_weight(0);
}

TEST(OxLoadshare, ImageOfAUnitSquareInTenthsIs11By11) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 1, 1));
    vertical_beam(slab, 0.5f, -1, 2);
    slab.set_image_log(true);
    slab.compute_weights(0.1f);
    int width = 0;
    int height = 0;
    const unsigned int* const image = slab.get_image_log(width, height);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(width, 11);
    EXPECT_EQ(height, 11);
    EXPECT_EQ(image[5 * 11 + 5], 0u);
    EXPECT_EQ(image[5 * 11 + 0], 0xFF0000FFu);
    EXPECT_EQ(image[5 * 11 + 10], 0xFF0000FFu);
}

TEST(OxLoadshare, PixelsWithoutABeamAreWhite) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 1, 1));
    slab.set_image_log(true);
    slab.compute_weights(0.25f);
    int width = 0;
    int height = 0;
    const unsigned int* const image = slab.get_image_log(width, height);
    for (int i = 0; i < width * height; ++i) {
        EXPECT_EQ(image[i], 0xFFFFFFFFu);
    }
}

TEST(OxLoadshare, ThirteenthPaintedBeamHasTheFirstColourAndTheTenthThatOfTheNinth) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 13, 1));
    for (int i = 0; i < 13; ++i) {
        vertical_beam(slab, static_cast<float>(i) + 0.5f, -1, 2);
    }
    slab.set_image_log(true);
    slab.compute_weights(0.125f);
    int width = 0;
    int height = 0;
    const unsigned int* const image = slab.get_image_log(width, height);
    const auto color = [image, width](int beam) { return image[4 * width + beam * 8 + 2]; };
    EXPECT_EQ(color(0), 0xFF0000FFu);
    EXPECT_EQ(color(12), color(0));
    EXPECT_EQ(color(8), color(9));
    EXPECT_EQ(color(11), 0xFFFF6464u);
}

TEST(OxLoadshare, ImageTooLargeForMemoryIsNotMadeButWeightsAre) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 3e8f, 4));
    vertical_beam(slab, 1, -1, 5);
    slab.set_image_log(true);
    for (const float step : {0.01f, 0.5f}) {
        slab.compute_weights(step);
        int width = 7;
        int height = 7;
        EXPECT_EQ(slab.get_image_log(width, height), nullptr);
        EXPECT_EQ(width, 0);
        EXPECT_EQ(height, 0);
        EXPECT_NEAR(slab.get_weight(0) / 1.2e9f, 1, 0.15);
    }
}

TEST(OxLoadshare, WithoutASlabOrWithContoursOfOneAndTwoPointsThereIsNoLoad) {
    ox_loadshare slab = flat_slab();
    vertical_beam(slab, 0.5f, -1, 2);
    slab.compute_weights(0.1f);
    EXPECT_EQ(slab.get_weight(0), 0);
    slab.add_slab_contour(contour({}));
    slab.add_slab_contour(contour({{0, 0, 0}}));
    slab.compute_weights(0.1f);
    EXPECT_EQ(slab.get_weight(0), 0);
    slab.add_slab_contour(contour({{0, 0, 0}, {1, 1, 0}}));
    slab.compute_weights(0.1f);
    EXPECT_NEAR(slab.get_weight(0), 0, 1e-6);
}

TEST(OxLoadshare, BeamsOfNoLengthOrNotFiniteCarryNothing) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 1, 1));
    slab.add_beam(ox_3dvector(0.5f, 0.5f, 0), ox_3dvector(0.5f, 0.5f, 0));
    slab.add_beam(ox_3dvector(nan, 0, 0), ox_3dvector(nan, 1, 0));
    slab.add_beam(ox_3dvector(0, -infinity, 0), ox_3dvector(0, infinity, 0));
    slab.compute_weights(0.1f);
    for (int beam = 0; beam < 3; ++beam) {
        EXPECT_EQ(slab.get_weight(beam), 0);
    }
}

TEST(OxLoadshare, ContourWithAPointThatIsNotFiniteIsDropped) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 1, 1));
    slab.add_slab_contour(contour({{0, 0, 0}, {nan, 1, 0}, {2, 2, 0}}));
    slab.add_slab_contour(contour({{0, 0, 0}, {infinity, 1, 0}, {2, 2, 0}}));
    vertical_beam(slab, 0.5f, -1, 2);
    slab.compute_weights(0.001f);
    EXPECT_NEAR(slab.get_weight(0), 1, 0.003);
}

TEST(OxLoadshare, WithoutTheImageLogTheNextComputationLeavesNoImage) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 1, 1));
    int width = 7;
    int height = 7;
    EXPECT_EQ(slab.get_image_log(width, height), nullptr);
    slab.set_image_log(true);
    slab.compute_weights(0.1f);
    EXPECT_NE(slab.get_image_log(width, height), nullptr);
    slab.set_image_log(false);
    slab.compute_weights(0.1f);
    EXPECT_EQ(slab.get_image_log(width, height), nullptr);
    EXPECT_EQ(width, 0);
}

TEST(OxLoadshare, WeightPerAreaMayBeSetAfterTheSweep) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 10, 4));
    vertical_beam(slab, 5, -1, 5);
    slab.compute_weights(0.5f);
    const float area = slab.get_weight(0);
    slab.set_slab_weight(2.5f);
    EXPECT_EQ(slab.get_weight(0), area * 2.5f);
}

TEST(OxLoadshare, ClearedContoursLeaveNoBoundsBehind) {
    ox_loadshare slab = slab_of(rectangle(-100, -100, -90, -90));
    slab.clear_slab_contours();
    slab.add_slab_contour(rectangle(0, 0, 1, 1));
    slab.set_image_log(true);
    slab.compute_weights(0.5f);
    int width = 0;
    int height = 0;
    slab.get_image_log(width, height);
    EXPECT_EQ(width, 3);
    EXPECT_EQ(height, 3);
}

TEST(OxLoadshare, ClearedBeamsStartAgainAtIndex0) {
    ox_loadshare slab = flat_slab();
    vertical_beam(slab, 0, 0, 1);
    slab.clear_beams();
    EXPECT_EQ(slab.get_weight(0), -1);
    EXPECT_EQ(vertical_beam(slab, 0, 0, 1), 0);
}

TEST(OxLoadshare, FrameHasTheDirectionMadeSquareToTheNormalAsItsXAxis) {
    ox_loadshare slab;
    slab.set_slab_geometry(ox_3dvector(0, 5, 0), ox_3dvector(2, 9, 0)); // a wall seen from +y
    slab.add_slab_contour(contour({{0, 3, 0}, {10, 3, 0}, {10, 3, 4}, {0, 3, 4}}));
    slab.add_beam(ox_3dvector(5, 3, 0), ox_3dvector(5, 3, 4));
    slab.add_beam(ox_3dvector(0, 3, 2), ox_3dvector(10, 3, 2));
    slab.compute_weights(0.01f);
    EXPECT_NEAR(slab.get_weight(0), 40, 0.3);
    EXPECT_EQ(slab.get_weight(1), 0);
}

TEST(OxLoadshare, DegenerateFrameCarriesNothing) {
    ox_loadshare slab;
    slab.set_slab_geometry(ox_3dvector(0, 0, 1), ox_3dvector(0, 0, 1));
    slab.add_slab_contour(rectangle(0, 0, 1, 1));
    vertical_beam(slab, 0.5f, -1, 2);
    slab.compute_weights(0.1f);
    EXPECT_EQ(slab.get_weight(0), 0);
}

TEST(OxLoadshare, LogHasEveryLineWithItsStretchesAndShares) {
    fresh_process::run([] {
        ox_loadshare slab = slab_of(rectangle(0, 0, 10, 2));
        vertical_beam(slab, 2, -1, 5);
        vertical_beam(slab, 8, 0, 5);
        slab.produce_log(true);
        slab.compute_weights(1);
        std::ifstream file("ox_log.txt");
        const std::string text(std::istreambuf_iterator<char>(file), {});
        const std::string line_at_1 = "### y = 1.000000\n"
                                      "slab : 0.000000 -> 10.000000\n"
                                      "beam 0 : 2.000000\n"
                                      "beam 1 : 8.000000\n"
                                      "beam contrib 0 : 0.000000 -> 5.000000 : 5.000000\n"
                                      "beam contrib 1 : 5.000000 -> 10.000000 : 5.000000\n";
        EXPECT_EQ(text.substr(0, 17), "### y = 0.000000\n");
        EXPECT_EQ(text.substr(text.size() - line_at_1.size()), line_at_1);
    });
}

TEST(OxLoadshare, MovedSlabKeepsItsLoadsElsewhere) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 10, 4));
    vertical_beam(slab, 5, -1, 5);
    slab.compute_weights(0.5f);
    const float weight = slab.get_weight(0);
    EXPECT_GT(weight, 0);
    ox_loadshare taken(std::move(slab));
    EXPECT_EQ(taken.get_weight(0), weight);
    ox_loadshare other;
    swap(taken, other);
    EXPECT_EQ(taken.get_weight(0), -1);
    taken = std::move(other);
    EXPECT_EQ(taken.get_weight(0), weight);
}

TEST(OxLoadshare, CopiesAreDeep) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 1, 1));
    ox_loadshare copy(slab);
    vertical_beam(copy, 0.5f, -1, 2);
    EXPECT_EQ(slab.get_weight(0), -1);
    slab = copy;
    copy.clear_beams();
    EXPECT_EQ(slab.get_weight(0), 0);
}

/// A slab whose left side lies in [0, 4] and whose right side in [6, 10], and its area.
double random_slab(support::generator& random, ox_list<ox_3dvector>& outline) {
    float y = random.grid(-5, 5);
    double area = 0;
    float left = 0;
    float right = 0;
    ox_list<ox_3dvector> left_side;
    const int rows = random.between(2, 7);
    for (int row = 0; row < rows; ++row) {
        const float rise = row == 0 ? 0 : random.grid(0, 3) + 0.25f;
        const float next_left = random.grid(0, 4);
        const float next_right = random.grid(6, 10);
        area += static_cast<double>((right - left + next_right - next_left) / 2 * rise);
        y += rise;
        left = next_left;
        right = next_right;
        outline.push_right(ox_3dvector(right, y, 0));
        left_side.push_left(ox_3dvector(left, y, 0));
    }
    for (const ox_3dvector& point : left_side) {
        outline.push_right(point);
    }
    return area;
}

TEST(OxLoadshare, LoadsOfRandomSlabsSumToTheirAreaTimesTheWeight) {
    support::generator random(9);
    constexpr float step = 0.01f;
    for (int round = 0; round < 1000; ++round) {
        ox_list<ox_3dvector> outline;
        const double area = random_slab(random, outline);
        ox_loadshare slab = slab_of(outline);
        const int beams = random.between(1, 6);
        for (int beam = 0; beam < beams; ++beam) {
            const float bottom = random.grid(4, 6); // between the sides, so every line has beams
            const float top = random.grid(4, 6);
            slab.add_beam(ox_3dvector(bottom, -10, 0), ox_3dvector(top, 40, 0));
        }
        slab.set_slab_weight(2);
        slab.compute_weights(step);
        double sum = 0;
        for (int beam = 0; beam < beams; ++beam) {
            sum += static_cast<double>(slab.get_weight(beam));
        }
        // one line more or less, 10 wide, and the rounding of thousands of float sums
        ASSERT_NEAR(sum, 2 * area, 2 * (10 * 1.5 * static_cast<double>(step) + 0.002 * area));
    }
}

TEST(OxLoadshare, StretchesAndLinesWithoutABeamAreTheLoadThatNoBeamCarries) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 10, 4));
    slab.add_slab_contour(rectangle(20, 0, 22, 4)); // beside, without a beam
    vertical_beam(slab, 5, 0, 1);
    slab.set_slab_weight(3);
    EXPECT_EQ(slab.get_uncarried_weight(), 0.0f);
    slab.compute_weights(0.01f);
    EXPECT_NEAR(slab.get_weight(0), 3 * 10, 0.4);
    EXPECT_NEAR(slab.get_uncarried_weight(), 3 * (2 * 4 + 10 * 3), 0.8);
}

TEST(OxLoadshare, NothingIsUncarriedWhereABeamCrossesEveryStretch) {
    ox_loadshare slab = slab_of(rectangle(0, 0, 10, 4));
    vertical_beam(slab, 2, -1, 5);
    vertical_beam(slab, 8, -1, 5);
    slab.compute_weights(0.01f);
    EXPECT_EQ(slab.get_uncarried_weight(), 0.0f);
    slab.clear_beams();
    slab.compute_weights(0.01f);
    EXPECT_NEAR(slab.get_uncarried_weight(), 40, 0.2);
    slab.clear_slab_contours();
    slab.compute_weights(0.01f);
    EXPECT_EQ(slab.get_uncarried_weight(), 0.0f);
}

TEST(OxLoadshare, CarriedAndUncarriedLoadsMakeTheWeightOfRandomSlabs) {
    support::generator random(10);
    constexpr float step = 0.01f;
    for (int round = 0; round < 200; ++round) {
        ox_list<ox_3dvector> outline;
        const double area = random_slab(random, outline);
        ox_loadshare slab = slab_of(outline);
        const int beams = random.between(0, 6);
        for (int beam = 0; beam < beams; ++beam) {
            slab.add_beam(ox_3dvector(random.grid(0, 10), random.grid(-5, 5), 0),
                          ox_3dvector(random.grid(0, 10), random.grid(6, 20), 0));
        }
        slab.compute_weights(step);
        double sum = static_cast<double>(slab.get_uncarried_weight());
        for (int beam = 0; beam < beams; ++beam) {
            sum += static_cast<double>(slab.get_weight(beam));
        }
        ASSERT_NEAR(sum, area, 10 * 1.5 * static_cast<double>(step) + 0.002 * area);
    }
}

} // namespace
