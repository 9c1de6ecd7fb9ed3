#ifndef OX_TESTS_SOLID_LIMITS_BLOCKS_H
#define OX_TESTS_SOLID_LIMITS_BLOCKS_H

#include <tests/solid/csg/block_model.h>
#include <tests/solid/csg/judged_results.h>

namespace limits {

/// What an operation with a box does to a model of unit cubes.
inline void apply(csg_test::block_model& model, csg_test::operation with,
                  const csg_test::whole_box& box) {
    switch (with) {
    case csg_test::operation::unites:
        model.unites(box);
        break;
    case csg_test::operation::substracts:
        model.substracts(box);
        break;
    case csg_test::operation::intersects:
        model.intersects(box);
        break;
    }
}

/// The surface of a box.
inline double area_of(const csg_test::whole_box& box) {
    const int x = box.high[0] - box.low[0];
    const int y = box.high[1] - box.low[1];
    const int z = box.high[2] - box.low[2];
    return 2.0 * (x * y + y * z + z * x);
}

} // namespace limits

#endif
