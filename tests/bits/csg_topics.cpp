// Combinations by ox_csg: of random solids, of bricks that coincide in places, of round and curved
// shapes, and of results. Every case draws from a seed of its own, so that it has the same bits on
// whatever thread it runs.

#include <thread>
#include <vector>

#include <ox/solid/ox_csg.h>
#include <tests/bits/result_digest.h>
#include <tests/solid/csg/shapes.h>
#include <tests/support/generator.h>
#include <tests/support/random_shapes.h>

namespace bits {
namespace {

using csg_test::brick_in;
using ox::ox_3dvector;
using ox::ox_csg;
using ox::ox_list;
using ox::ox_solid;
using support::frame;
using support::generator;

constexpr int case_count = 400;
constexpr int thread_count = 8;

void apply(ox_csg& csg, int operation, const ox_solid& solid) {
    if (operation == 0) {
        csg.unites(solid);
    } else if (operation == 1) {
        csg.substracts(solid);
    } else {
        csg.intersects(solid);
    }
}

ox_solid general_solid(generator& random) {
    const frame axes = support::random_frame(random);
    const ox_3dvector centre = support::random_point(random, 2.0);
    return random.one_in(2) ? support::random_brick(random, centre, axes)
                            : support::random_prism(random, centre, axes);
}

/// A brick between grid points of a frame: corners, edges and faces of two such often coincide.
ox_solid whole_brick(generator& random, const frame& axes) {
    int low[3];
    int size[3];
    for (int axis = 0; axis < 3; ++axis) {
        low[axis] = random.between(0, 2);
        size[axis] = random.between(1, 2);
    }
    const ox_3dvector corner(static_cast<float>(low[0]), static_cast<float>(low[1]),
                             static_cast<float>(low[2]));
    return brick_in(axes, corner,
                    corner + ox_3dvector(static_cast<float>(size[0]), static_cast<float>(size[1]),
                                         static_cast<float>(size[2])));
}

/// A point of the unit circle that no sine is needed for, by four times the part of the turn.
void round_place(double quarters, double& x, double& y) {
    const int quarter = static_cast<int>(quarters);
    const double t = quarters - quarter;
    x = (1.0 - t * t) / (1.0 + t * t);
    y = 2.0 * t / (1.0 + t * t);
    for (int i = 0; i < quarter; ++i) {
        const double turned = x;
        x = -y;
        y = turned;
    }
}

/// A ball with its poles along z: `rows` rows of triangles.
ox_solid ball(const ox_3dvector& centre, int rows, double radius) {
    csg_test::triangle_builder made;
    const int columns = 2 * rows;
    for (int row = 0; row <= rows; ++row) {
        double height = 0.0;
        double across = 0.0;
        round_place(2.0 * row / rows, height, across);
        const bool is_pole = row == 0 || row == rows;
        for (int column = 0; column < (is_pole ? 1 : columns); ++column) {
            double x = 0.0;
            double y = 0.0;
            round_place(4.0 * column / columns, x, y);
            made.add_vertex(csg_test::point_in(frame(), centre, radius * across * x,
                                               radius * across * y, radius * height));
        }
    }
    const auto at = [&](int row, int column) {
        return static_cast<unsigned int>(
            row == 0 ? 0 : 1 + (row - 1) * columns + (row == rows ? 0 : column % columns));
    };
    for (int c = 0; c < columns; ++c) {
        made.add_triangle(at(0, c), at(1, c), at(1, c + 1));
        made.add_triangle(at(rows, c), at(rows - 1, c + 1), at(rows - 1, c));
        for (int row = 1; row + 1 < rows; ++row) {
            made.add_triangle(at(row, c), at(row + 1, c), at(row + 1, c + 1));
            made.add_triangle(at(row, c), at(row + 1, c + 1), at(row, c + 1));
        }
    }
    return made.build();
}

ox_solid round_column(const frame& axes, const ox_3dvector& centre, int sides, double radius) {
    ox_list<ox_3dvector> base;
    for (int i = 0; i < sides; ++i) {
        double x = 0.0;
        double y = 0.0;
        round_place(4.0 * i / sides, x, y);
        base.push_right(csg_test::point_in(axes, centre, radius * x, radius * y, -2.0));
    }
    ox::ox_polygon polygon;
    polygon.add_contour(base);
    ox_solid solid;
    solid.extrusion(polygon, axes.z * 4.0f);
    return solid;
}

void add_general(ox_csg& csg, generator& random) {
    for (int i = random.between(2, 4); i > 0; --i) {
        const ox_solid solid = general_solid(random);
        apply(csg, random.between(0, 2), solid);
    }
    if (random.one_in(3)) {
        const ox_3dvector normal = support::random_frame(random).z;
        csg.clips(support::random_point(random, 1.0), normal);
    }
}

void add_whole_bricks(ox_csg& csg, generator& random) {
    const frame axes = random.one_in(2) ? frame() : support::random_frame(random);
    csg.unites(whole_brick(random, axes));
    for (int i = random.between(1, 5); i > 0; --i) {
        const ox_solid brick = whole_brick(random, axes);
        apply(csg, random.between(0, 2), brick);
    }
}

void add_round(ox_csg& csg, generator& random) {
    const ox_3dvector centre = support::random_point(random, 1.0);
    csg.unites(random.one_in(2) ? ball(ox_3dvector(), 10, 1.5)
                                : round_column(frame(), ox_3dvector(), 40, 1.0));
    csg.substracts(random.one_in(2)
                       ? ball(centre, 8, 1.25)
                       : round_column(support::random_frame(random), centre, 24, 0.75));
}

/// Storeys with a slab each, as they touch in a building, and an opening through all of them.
void add_storeys(ox_csg& csg, generator& random) {
    const frame axes = random.one_in(2) ? frame() : support::random_frame(random);
    const int count = random.between(3, 8);
    for (int i = 0; i < count; ++i) {
        const float floor = 3.0f * static_cast<float>(i);
        csg.unites(brick_in(axes, ox_3dvector(0, 0, floor), ox_3dvector(4, 4, floor + 2.8f)));
        csg.unites(brick_in(axes, ox_3dvector(-0.5f, -0.5f, floor + 2.8f),
                            ox_3dvector(4.5f, 4.5f, floor + 3.0f)));
    }
    csg.substracts(brick_in(axes, ox_3dvector(1, 1, 1),
                            ox_3dvector(2, 2, 3.0f * static_cast<float>(count) - 1.0f)));
}

/// A result that is an operand again.
void add_result(ox_csg& csg, generator& random) {
    ox_csg first;
    add_general(first, random);
    first.compute();
    csg.unites(first.get_solid());
    const ox_solid solid = general_solid(random);
    apply(csg, random.between(0, 2), solid);
    csg.unites(first.get_solid());
}

void add_case(ox_csg& csg, int number) {
    generator random(7000 + static_cast<std::uint64_t>(number));
    void (*const kinds[])(ox_csg&, generator&) = {add_general, add_whole_bricks, add_general,
                                                  add_whole_bricks, add_result};
    if (number % 20 == 0) {
        add_storeys(csg, random);
    } else if (number % 10 == 0) {
        add_round(csg, random);
    } else {
        kinds[number % 5](csg, random);
    }
}

std::uint64_t hash_of_case(int number) {
    ox_csg csg;
    add_case(csg, number);
    result_digest digest;
    digest.add(csg.compute());
    const ox_solid solid = csg.get_solid();
    digest.add(solid.get_vertices());
    digest.add(solid.get_contours());
    digest.add(solid.get_contour_sizes());
    digest.add(csg.get_origins());
    const ox::ox_triangle_set mesh = csg.get_triangles();
    for (std::size_t i = 0; i < 3 * std::size_t{mesh.get_nb_triangles()}; ++i) {
        digest.add(mesh.get_triangles()[i]);
    }
    return digest.value();
}

void run_on_threads(int count, result_digest& digest) {
    std::vector<std::uint64_t> hashes(case_count);
    std::vector<std::thread> threads;
    for (int first = 0; first < count; ++first) {
        threads.emplace_back([&hashes, first, count] {
            for (int number = first; number < case_count; number += count) {
                hashes[static_cast<std::size_t>(number)] = hash_of_case(number);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const std::uint64_t hash : hashes) {
        digest.add(static_cast<std::uint32_t>(hash));
        digest.add(static_cast<std::uint32_t>(hash >> 32));
    }
}

void run_csg(result_digest& digest) {
    run_on_threads(1, digest);
}

void run_csg_on_threads(result_digest& digest) {
    run_on_threads(thread_count, digest);
}

} // namespace

const topic csg_topics[2] = {
    {"csg", run_csg},
    {"csg_on_eight_threads", run_csg_on_threads},
};

} // namespace bits
