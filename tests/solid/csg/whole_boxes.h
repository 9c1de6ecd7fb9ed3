#ifndef OX_TESTS_SOLID_CSG_WHOLE_BOXES_H
#define OX_TESTS_SOLID_CSG_WHOLE_BOXES_H

#include <array>
#include <cstddef>
#include <vector>

#include <tests/solid/csg/block_model.h>
#include <tests/solid/csg/judged_results.h>
#include <tests/support/generator.h>

namespace csg_test {

/// Every box between the coordinates from 0 to `side`.
inline std::vector<whole_box> all_boxes(int side) {
    std::vector<std::array<int, 2>> spans;
    for (int low = 0; low < side; ++low) {
        for (int high = low + 1; high <= side; ++high) {
            spans.push_back({low, high});
        }
    }
    std::vector<whole_box> boxes;
    for (const auto& x : spans) {
        for (const auto& y : spans) {
            for (const auto& z : spans) {
                boxes.push_back({{x[0], y[0], z[0]}, {x[1], y[1], z[1]}});
            }
        }
    }
    return boxes;
}

/// Any box between the coordinates from 0 to `side`.
inline whole_box random_box(support::generator& random, int side) {
    whole_box box{};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        box.low[axis] = random.between(0, side - 1);
        box.high[axis] = random.between(box.low[axis] + 1, side);
    }
    return box;
}

/// What an operation with a box does to a model of unit cubes.
inline void apply(block_model& model, operation with, const whole_box& box) {
    switch (with) {
    case operation::unites:
        model.unites(box);
        break;
    case operation::substracts:
        model.substracts(box);
        break;
    case operation::intersects:
        model.intersects(box);
        break;
    }
}

/// The surface of a box.
inline double area_of(const whole_box& box) {
    const int x = box.high[0] - box.low[0];
    const int y = box.high[1] - box.low[1];
    const int z = box.high[2] - box.low[2];
    return 2.0 * (x * y + y * z + z * x);
}

} // namespace csg_test

#endif
