#include <bench/peers/cgal.h>
#include <tests/solid/csg/shapes.h>

#include "parts.h"
#include "workloads.h"

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_solid;
using support::frame;

contest cut(const parts& pieces, double goal, double stretch) {
    contest rules;
    rules.ours = in_one_pass(pieces);
    rules.peers = {peers::cgal_joined_difference(mesh_of(pieces.body), meshes_of(pieces.removed))};
    rules.goal = goal;
    rules.stretch = stretch;
    return rules;
}

/// `faces` is about the number of triangles of each.
contest cut_sphere(long faces) {
    const int rows = static_cast<int>(std::lround(std::sqrt(static_cast<double>(faces) / 4.0)));
    return cut({csg_test::sphere(ox_3dvector(), rows, 10.0),
                {},
                {csg_test::sphere(ox_3dvector(6.13f, 4.37f, 2.71f), rows, 10.0)}},
               1.0, 0.55);
}

/// Two prisms whose axes cross at a right angle, one twice as thick.
contest cross_prisms(long sides) {
    const frame lying = {ox_3dvector(0.0f, 0.6f, 0.8f), ox_3dvector(0.0f, -0.8f, 0.6f),
                         ox_3dvector(1.0f, 0.0f, 0.0f)};
    const int count = static_cast<int>(sides);
    return cut({csg_test::column(frame(), ox_3dvector(), count, 2.0, 8.0),
                {},
                {csg_test::column(lying, ox_3dvector(0.0f, 0.13f, 0.29f), count, 1.0, 8.0)}},
               0.5, 0.25);
}

/// A square plate with `count` round holes of 16 sides.
contest drill_plate(long count) {
    const auto side = static_cast<long>(std::lround(std::sqrt(static_cast<double>(count))));
    const float extent = static_cast<float>(side + 1);
    parts plate = {
        csg_test::brick_in(frame(), ox_3dvector(), ox_3dvector(extent, extent, 0.2f)), {}, {}};
    for (long i = 0; i < side * side; ++i) {
        plate.removed.push_back(csg_test::column(
            frame(),
            ox_3dvector(static_cast<float>(1 + i % side), static_cast<float>(1 + i / side), 0.1f),
            16, 0.3, 0.4));
    }
    return cut(plate, 0.5, 0.25);
}

/// A hilly block of `side` x `side` cells, two triangles each, on a level base.
ox_solid terrain(int side) {
    csg_test::triangle_builder made;
    const auto add_layer = [&](auto height) {
        for (int x = 0; x <= side; ++x) {
            for (int y = 0; y <= side; ++y) {
                made.add_vertex(ox_3dvector(static_cast<float>(x), static_cast<float>(y),
                                            static_cast<float>(height(x, y))));
            }
        }
    };
    add_layer([](int x, int y) {
        return 3.0 + std::sin(0.37 * x) * std::cos(0.29 * y) + 0.3 * std::sin(1.7 * x + 0.9 * y);
    });
    add_layer([](int, int) { return 0.0; });
    const int row = side + 1;
    const auto top = [row](int x, int y) { return static_cast<unsigned int>(x * row + y); };
    const auto base = [row, top](int x, int y) {
        return static_cast<unsigned int>(row * row) + top(x, y);
    };
    for (int x = 0; x < side; ++x) {
        for (int y = 0; y < side; ++y) {
            made.add_triangle(top(x, y), top(x + 1, y), top(x + 1, y + 1));
            made.add_triangle(top(x, y), top(x + 1, y + 1), top(x, y + 1));
            made.add_triangle(base(x, y), base(x + 1, y + 1), base(x + 1, y));
            made.add_triangle(base(x, y), base(x, y + 1), base(x + 1, y + 1));
        }
    }
    const auto add_side = [&](int x0, int y0, int x1, int y1) {
        made.add_triangle(base(x0, y0), base(x1, y1), top(x1, y1));
        made.add_triangle(base(x0, y0), top(x1, y1), top(x0, y0));
    };
    for (int i = 0; i < side; ++i) {
        add_side(i, 0, i + 1, 0);
        add_side(side, i, side, i + 1);
        add_side(i + 1, side, i, side);
        add_side(0, i + 1, 0, i);
    }
    return made.build();
}

contest dig_terrain(long triangles) {
    const int side = static_cast<int>(std::lround(std::sqrt(static_cast<double>(triangles) / 4.0)));
    const double middle = 0.5 * side + 0.13;
    return cut(
        {terrain(side),
         {},
         {csg_test::column(frame(), csg_test::point_in(frame(), ox_3dvector(), middle, middle, 3.5),
                           24, 0.3 * side, 4.0)}},
        1.0, 0.55);
}

} // namespace

std::vector<workload> csg_shape_workloads() {
    return {
        workload{"sphere minus sphere, one pass",
                 "faces each",
                 {180, 980, 5120, 20000},
                 {180, 980, 5120},
                 cut_sphere}
            .growing_at_most(1.1),
        workload{
            "prisms that cross, one pass", "sides", {200, 400, 800, 1600}, {200, 400}, cross_prisms}
            .growing_at_most(1.1),
        workload{"drilled plate, one pass", "holes", {16, 64, 144}, {16, 144}, drill_plate}
            .growing_at_most(1.1),
        workload{"terrain minus prism, one pass",
                 "triangles",
                 {1000, 10000, 40000},
                 {1000, 10000},
                 dig_terrain}
            .growing_at_most(1.1),
    };
}

} // namespace bench
