#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <ox/core/ox_random.h>
#include <random>
#include <tests/reference/plain_dice.h>

namespace {

using ox::ox_3dvector;
using ox::ox_random;

constexpr int smallest = (std::numeric_limits<int>::min)();
constexpr int largest = (std::numeric_limits<int>::max)();

TEST(OxRandom, SameSeedGivesTheSameSequence) {
    ox_random one(7);
    ox_random two(7);
    ox_random other(8);
    bool differs = false;
    for (int i = 0; i < 1000; ++i) {
        const int drawn = one.dice(0, 1000000);
        ASSERT_EQ(drawn, two.dice(0, 1000000));
        differs = differs || drawn != other.dice(0, 1000000);
    }
    EXPECT_TRUE(differs);
}

TEST(OxRandom, DefaultSeedIs54873) {
    ox_random one;
    ox_random two(54873);
    for (int i = 0; i < 100; ++i) {
        ASSERT_EQ(one.dice(smallest, largest), two.dice(smallest, largest));
    }
}

TEST(OxRandom, WholeRangeShowsTheRawOutputOfTheMersenneTwister) {
    ox_random random(5489); // its 10000th output is published with the generator
    for (int i = 1; i < 10000; ++i) {
        random.dice(smallest, largest);
    }
    const unsigned int raw = static_cast<unsigned int>(random.dice(smallest, largest)) -
                             static_cast<unsigned int>(smallest);
    EXPECT_EQ(raw, 4123659995u);
}

TEST(OxRandom, RangeOfOneNumberReturnsItAndConsumesNothing) {
    ox_random drawn(3);
    ox_random untouched(3);
    EXPECT_EQ(drawn.dice(5, 5), 5);
    EXPECT_EQ(drawn.dice(smallest, smallest), smallest);
    EXPECT_EQ(drawn.dice(largest, largest), largest);
    EXPECT_EQ(drawn.dice(0, 1000000), untouched.dice(0, 1000000));
}

TEST(OxRandom, DiceReachesBothBoundsAndNothingElse) {
    ox_random random(11);
    std::array<int, 6> drawn{};
    for (int i = 0; i < 6000; ++i) {
        ++drawn.at(static_cast<std::size_t>(random.dice(-2, 3) + 2));
    }
    for (int count : drawn) {
        EXPECT_NEAR(count, 1000, 150); // five standard deviations of a fair die
    }
}

TEST(OxRandom, DiceAgreesWithPlainRejectionForEveryKindOfRange) {
    const int bounds[] = {smallest, smallest + 1, -1000000,    -1,     0, 1,
                          5,        1 << 30,      largest - 1, largest};
    ox_random random(42);
    std::mt19937 engine(42);
    for (int round = 0; round < 50; ++round) {
        for (int a : bounds) {
            for (int b : bounds) { // reversed ones included
                ASSERT_EQ(random.dice(a, b), reference::plain_dice(engine, a, b)) << a << ' ' << b;
            }
        }
    }
}

TEST(OxRandom, NegativeSeedIsAccepted) {
    ox_random random(-1);
    std::mt19937 engine(0xFFFFFFFFu);
    EXPECT_EQ(random.dice(0, 999), reference::plain_dice(engine, 0, 999));
}

TEST(OxRandom, UnitDrawIsAMultipleOfAMillionth) {
    ox_random random(9);
    std::mt19937 engine(9);
    for (int i = 0; i < 10000; ++i) {
        const float expected =
            static_cast<float>(reference::plain_dice(engine, 0, 1000000) / 1000000.0);
        ASSERT_EQ(random.dice_0_1(), expected);
    }
}

TEST(OxRandom, UnitDrawReachesBothEnds) {
    ox_random random(1);
    bool zero = false;
    bool one = false;
    for (int i = 0; i < 20000000 && !(zero && one); ++i) {
        const float drawn = random.dice_0_1();
        ASSERT_TRUE(drawn >= 0.f && drawn <= 1.f);
        zero = zero || drawn == 0.f;
        one = one || drawn == 1.f;
    }
    EXPECT_TRUE(zero);
    EXPECT_TRUE(one);
}

TEST(OxRandom, DrawnVectorHasLengthOneUpToFloatRounding) {
    ox_random random(5);
    for (int i = 0; i < 20000; ++i) {
        const ox_3dvector v = random.dice_vector();
        const double length = std::sqrt(double{v.x} * v.x + double{v.y} * v.y + double{v.z} * v.z);
        ASSERT_NEAR(length, 1.0, 4.0 * std::numeric_limits<float>::epsilon());
    }
}

TEST(OxRandom, DrawnVectorComesFromThreeUnitDrawsInOrder) {
    ox_random random(54873);
    ox_random draws(54873);
    for (int i = 0; i < 1000; ++i) {
        const ox_3dvector drawn = random.dice_vector();
        ox_3dvector expected;
        float squared = 0.f;
        do {
            expected.x = 2.f * draws.dice_0_1() - 1.f;
            expected.y = 2.f * draws.dice_0_1() - 1.f;
            expected.z = 2.f * draws.dice_0_1() - 1.f;
            squared = expected.x * expected.x + expected.y * expected.y + expected.z * expected.z;
        } while (!(squared > 0.001f && squared < 1.f));
        expected.normalize();
        ASSERT_EQ(drawn, expected);
    }
}

TEST(OxRandom, DrawnVectorsPointEverywhereAlike) {
    ox_random random(6);
    constexpr int draws = 30000;
    double sum[3] = {0.0, 0.0, 0.0};
    for (int i = 0; i < draws; ++i) {
        const ox_3dvector v = random.dice_vector();
        sum[0] += v.x;
        sum[1] += v.y;
        sum[2] += v.z;
    }
    // A coordinate of a uniform direction has variance 1/3.
    const double five_deviations = 5.0 * std::sqrt(draws / 3.0);
    for (double total : sum) {
        EXPECT_NEAR(total, 0.0, five_deviations);
    }
}

TEST(OxRandom, MovedSourceGoesOnElsewhere) {
    ox_random source(5);
    ox_random expected(5);
    ox_random taken(std::move(source));
    EXPECT_EQ(taken.dice(0, 1000), expected.dice(0, 1000));
    ox_random other(9);
    swap(taken, other);
    EXPECT_EQ(other.dice(0, 1000), expected.dice(0, 1000));
    taken = std::move(other);
    EXPECT_EQ(taken.dice(0, 1000), expected.dice(0, 1000));
}

TEST(OxRandom, CopyGoesOnIndependentlyWithTheSameNumbers) {
    ox_random random(4);
    random.dice(0, 99);
    ox_random copy(random);
    ox_random assigned(99);
    assigned = random;
    for (int i = 0; i < 1000; ++i) { // past a renewal of the engine's state
        const int drawn = random.dice(0, 1000000);
        ASSERT_EQ(copy.dice(0, 1000000), drawn);
        ASSERT_EQ(assigned.dice(0, 1000000), drawn);
    }
}

TEST(OxRandom, HoldsOnePointer) {
    EXPECT_EQ(sizeof(ox_random), sizeof(void*));
}

} // namespace
