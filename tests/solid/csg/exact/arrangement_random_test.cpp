#include <gtest/gtest.h>

#include <tests/solid/csg/exact/arrangement_laws.h>
#include <tests/solid/csg/exact/arrangement_shapes.h>

namespace {

using namespace arrangement_laws;
using namespace arrangement_shapes;

operation random_operation(std::mt19937& engine) {
    return static_cast<operation>(reference::plain_dice(engine, 0, 2));
}

/// Operands on a grid of so few values that every kind of coincidence occurs.
arrangement_input random_input(std::mt19937& engine, int size, std::int64_t unit,
                               int operand_count) {
    input_builder builder;
    builder.add(operation::unite, random_shape(engine, size, unit));
    for (int i = 1; i < operand_count; ++i) {
        const operation applied = random_operation(engine);
        builder.add(applied, random_shape(engine, size, unit));
    }
    return builder.input();
}

void expect_right(const arrangement_input& input, std::mt19937& engine) {
    const arrangement_result result = arranged(input);
    EXPECT_TRUE(is_closed(result)) << described(input);
    EXPECT_EQ(misplaced_points(input, result, engine, 30), 0) << described(input);
}

TEST(CsgArrangementRandom, TwoOperandsOnAGridOfFourValuesGiveTheExactResult) {
    for (unsigned int seed = 0; seed < 3000; ++seed) {
        std::mt19937 engine(seed);
        expect_right(random_input(engine, 4, 64, 2), engine);
    }
}

TEST(CsgArrangementRandom, ChainsOfUpToEightOperandsGiveTheExactResult) {
    for (unsigned int seed = 0; seed < 400; ++seed) {
        std::mt19937 engine(seed);
        expect_right(random_input(engine, 6, 64, reference::plain_dice(engine, 3, 8)), engine);
    }
}

TEST(CsgArrangementRandom, OperandsAtTheEndsOfTheGridGiveTheExactResult) {
    for (unsigned int seed = 0; seed < 400; ++seed) {
        std::mt19937 engine(seed);
        arrangement_input input = random_input(engine, 5, std::int64_t(1) << 36, 3);
        for (auto& point : input.points) {
            point = {point.x - (std::int64_t(1) << 37), point.y - (std::int64_t(1) << 37),
                     point.z - (std::int64_t(1) << 37)};
        }
        expect_right(input, engine);
    }
}

TEST(CsgArrangementRandom, TheOrderOfTheTrianglesDoesNotChangeTheResult) {
    for (unsigned int seed = 0; seed < 300; ++seed) {
        std::mt19937 engine(seed);
        arrangement_input input = random_input(engine, 5, 64, 3);
        const arrangement_result result = arranged(input);
        for (std::size_t i = input.triangles.size(); i-- > 1;) {
            std::swap(input.triangles[i],
                      input.triangles[static_cast<std::size_t>(
                          reference::plain_dice(engine, 0, static_cast<int>(i)))]);
        }
        const arrangement_result shuffled = arranged(input);
        EXPECT_TRUE(is_closed(shuffled));
        EXPECT_EQ(shuffled.pieces.size(), result.pieces.size());
        EXPECT_EQ(shuffled.edges.size(), result.edges.size());
        EXPECT_NEAR(volume(shuffled), volume(result), 1e-6);
    }
}

} // namespace
