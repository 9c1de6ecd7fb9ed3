#ifndef TESTS_RELIABILITY_FAILURES_SHAPES_H
#define TESTS_RELIABILITY_FAILURES_SHAPES_H

#include <ox/polygon/ox_polygon.h>
#include <ox/solid/ox_solid.h>
#include <tests/support/random_shapes.h>

namespace failures {

/// A square of 4 with a square hole of 2.
inline ox::ox_polygon frame() {
    ox::ox_polygon polygon = support::rectangle_polygon(0, 0, 4, 4);
    polygon.add_contour(support::rectangle(1, 1, 3, 3));
    return polygon;
}

/// An L of 4 by 4 whose legs are 1 wide.
inline ox::ox_polygon angle() {
    ox::ox_polygon polygon;
    polygon.add_contour(support::contour({ox::ox_3dvector(0, 0, 0), ox::ox_3dvector(4, 0, 0),
                                          ox::ox_3dvector(4, 1, 0), ox::ox_3dvector(1, 1, 0),
                                          ox::ox_3dvector(1, 4, 0), ox::ox_3dvector(0, 4, 0)}));
    return polygon;
}

/// A brick of 4 x 1 x 3.
inline ox::ox_solid wall() {
    ox::ox_solid solid;
    solid.brick(ox::ox_3dvector(0, 0, 0), 4.0f, 1.0f, 3.0f);
    return solid;
}

/// A brick that reaches through the wall.
inline ox::ox_solid opening() {
    ox::ox_solid solid;
    solid.brick(ox::ox_3dvector(1, -1, 1), 1.0f, 3.0f, 1.0f);
    return solid;
}

} // namespace failures

#endif
