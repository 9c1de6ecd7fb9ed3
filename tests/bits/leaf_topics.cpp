#include <memory>

#include <ox/geometry/ox_bezier.h>
#include <ox/geometry/ox_bspline.h>
#include <ox/geometry/ox_cubic_spline.h>
#include <ox/ox_functions.h>
#include <ox/structure/ox_loadshare.h>
#include <tests/bits/result_digest.h>
#include <tests/support/generator.h>
#include <tests/support/random_shapes.h>

namespace bits {
namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using support::generator;

/// Tangles, every other one turned and away from the origin.
ox_polygon random_region(generator& random) {
    support::frame axes;
    ox_3dvector origin;
    if (random.one_in(2)) {
        axes = support::random_frame(random);
        origin = support::random_point(random, 50.0);
    }
    ox_polygon polygon;
    for (int i = random.between(1, 3); i > 0; --i) {
        const int count = random.between(4, 9);
        ox_list<ox_3dvector> contour;
        for (const ox_3dvector& p : support::random_tangle(random, count, 4)) {
            contour.push_right(origin + axes.x * p.x + axes.y * p.y);
        }
        polygon.add_contour(contour);
    }
    return polygon;
}

void simplification(result_digest& digest) {
    generator random(1401);
    for (int round = 0; round < 500; ++round) {
        ox_polygon polygon = random_region(random);
        polygon.optimize_contours(random.grid(0, 1));
        digest.add_contours(polygon);
    }
}

void distributions(result_digest& digest) {
    generator random(1402);
    for (int round = 0; round < 300; ++round) {
        ox_polygon polygon = random_region(random);
        digest.add(polygon.regular_distribution(random.grid(0, 1) + 0.1f));
        digest.add(polygon.random_distribution(50, round));
    }
}

void regular_grids(result_digest& digest) {
    generator random(1403);
    constexpr int columns = 24;
    constexpr int rows = 16;
    const std::unique_ptr<bool[]> grid(new bool[columns * rows]);
    for (int round = 0; round < 300; ++round) {
        ox_polygon polygon = random_region(random);
        const ox_3dvector origin = polygon.get_point() + support::random_point(random, 4.0);
        const ox_3dvector dx = support::random_point(random, 0.5);
        const ox_3dvector dy = support::random_point(random, 0.5);
        const float margin = random.grid(0, 1) - 0.5f;
        digest.add(polygon.fill_regular_grid(grid.get(), origin, dx, dy, columns, rows, margin));
        for (int i = 0; i < columns * rows; ++i) {
            digest.add(grid[static_cast<std::size_t>(i)]);
        }
    }
}

void loads(result_digest& digest) {
    generator random(1404);
    for (int round = 0; round < 300; ++round) {
        ox::ox_loadshare slab;
        const ox_3dvector normal = support::random_point(random, 1.0);
        slab.set_slab_geometry(normal, support::random_point(random, 1.0));
        for (int i = random.between(1, 3); i > 0; --i) {
            slab.add_slab_contour(support::random_tangle(random, random.between(3, 9), 5));
        }
        const int beams = random.between(1, 9);
        for (int k = 0; k < beams; ++k) {
            const ox_3dvector start = support::random_point(random, 6.0);
            slab.add_beam(start, support::random_point(random, 6.0));
        }
        slab.compute_weights(random.grid(0, 1) + 0.01f);
        for (int k = 0; k < beams; ++k) {
            digest.add(slab.get_weight(k));
        }
    }
}

void curves(result_digest& digest) {
    generator random(1405);
    for (int round = 0; round < 300; ++round) {
        const int n = random.between(2, 18);
        ox_list<ox::ox_2dvector> points;
        float x = 0.0f;
        for (int i = 0; i < n; ++i) {
            x += random.grid(0, 2) + 0.125f;
            points.push_right(ox::ox_2dvector(x, random.grid(-4, 4)));
        }
        ox::ox_cubic_spline spline(points);
        ox::ox_bezier bezier(n);
        ox::ox_bspline bspline(2, n + 2);
        for (int i = 0; i < 20; ++i) {
            const float t = random.grid(0, 1);
            digest.add(spline.compute(t * x));
            const float* const bernstein = bezier.compute(t);
            const float* const basis = bspline.compute(t);
            for (int k = 0; k < n; ++k) {
                digest.add(bernstein[k]);
                digest.add(basis[k]);
            }
        }
    }
}

void linear_systems(result_digest& digest) {
    generator random(1406);
    for (int round = 0; round < 500; ++round) {
        const int n = random.between(1, 10);
        ox_list<float> a(n * n);
        ox_list<float> b(n);
        for (float& element : a) {
            element = random.one_in(4) ? 0.0f : random.grid(-2, 2);
        }
        for (float& element : b) {
            element = random.grid(-2, 2);
        }
        digest.add(ox_solve_system(a, b));
        digest.add(ox_reverse_matrix(a));
    }
}

} // namespace

const topic leaf_topics[6] = {{"simplification", simplification},
                              {"distributions", distributions},
                              {"regular_grids", regular_grids},
                              {"loads", loads},
                              {"curves", curves},
                              {"linear_systems", linear_systems}};

} // namespace bits
