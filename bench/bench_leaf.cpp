// Points scattered over a region, the sharing of a slab's load, and small linear systems, each
// beside its plain version or a peer.

#include <cmath>
#include <vector>

#include <benchmark/benchmark.h>

#include <ox/core/ox_random.h>
#include <ox/ox_functions.h>
#include <ox/polygon/ox_polygon.h>
#include <ox/structure/ox_loadshare.h>
#include <tests/reference/distributions.h>
#include <tests/reference/load_sweep.h>

#ifdef OX_HAS_EIGEN
#include <Eigen/Dense>
#endif

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;

/// A closed outline of n corners between two radii about the origin: the nearer they are, the
/// smoother it is.
ox_list<ox_3dvector> outline(int n, double inner, double outer) {
    ox::ox_random random(11);
    ox_list<ox_3dvector> corners;
    for (int i = 0; i < n; ++i) {
        const double turn = 6.283185307179586 * i / n;
        const double radius = inner + (outer - inner) * static_cast<double>(random.dice_0_1());
        corners.push_right(ox_3dvector(static_cast<float>(radius * std::cos(turn)),
                                       static_cast<float>(radius * std::sin(turn)), 0.0f));
    }
    return corners;
}

ox_polygon region(double inner) {
    ox_polygon polygon;
    polygon.add_contour(outline(1000, inner, 10.0));
    return polygon;
}

/// The step that gives about `count` points.
float step_for(ox_polygon& polygon, double count) {
    return static_cast<float>(std::sqrt(static_cast<double>(polygon.get_area()) / count));
}

// The argument is the inner radius of an outline of 1,000 corners in a tenth of the outer one.

void regular_distribution_of_a_million(benchmark::State& state) {
    ox_polygon polygon = region(static_cast<double>(state.range(0)));
    const float step = step_for(polygon, 1e6);
    int points = 0;
    for (auto _ : state) {
        points = polygon.regular_distribution(step).size();
    }
    state.counters["points"] = points;
}
BENCHMARK(regular_distribution_of_a_million)->Arg(9)->Arg(3)->Unit(benchmark::kMillisecond);

void plain_regular_distribution_of_10000(benchmark::State& state) {
    ox_polygon polygon = region(static_cast<double>(state.range(0)));
    const float step = step_for(polygon, 1e4);
    std::size_t points = 0;
    for (auto _ : state) {
        points = reference::regular_distribution(polygon, step).size();
    }
    state.counters["points"] = static_cast<double>(points);
}
BENCHMARK(plain_regular_distribution_of_10000)->Arg(9)->Arg(3)->Unit(benchmark::kMillisecond);

void random_distribution_of_a_million(benchmark::State& state) {
    ox_polygon polygon = region(static_cast<double>(state.range(0)));
    polygon.get_area();
    for (auto _ : state) {
        benchmark::DoNotOptimize(polygon.random_distribution(1000000, 7).size());
    }
}
BENCHMARK(random_distribution_of_a_million)->Arg(9)->Arg(3)->Unit(benchmark::kMillisecond);

void plain_random_distribution_of_10000(benchmark::State& state) {
    ox_polygon polygon = region(static_cast<double>(state.range(0)));
    polygon.get_area();
    for (auto _ : state) {
        benchmark::DoNotOptimize(reference::random_distribution(polygon, 10000, 7).size());
    }
}
BENCHMARK(plain_random_distribution_of_10000)->Arg(9)->Arg(3)->Unit(benchmark::kMillisecond);

// A slab of 10,000 points with 200 beams, swept by 20,000 lines. The argument tells whether every
// beam reaches over the whole slab (1) or over a tenth of it (0).

struct beam_ends {
    ox_3dvector start;
    ox_3dvector end;
};

std::vector<beam_ends> beams_over(bool whole_slab) {
    ox::ox_random random(12);
    std::vector<beam_ends> beams;
    for (int k = 0; k < 200; ++k) {
        const float x = 20.0f * random.dice_0_1() - 10.0f;
        const float lean = random.dice_0_1() - 0.5f;
        const float y = whole_slab ? -11.0f : 20.0f * random.dice_0_1() - 11.0f;
        const float length = whole_slab ? 22.0f : 2.0f;
        beams.push_back({ox_3dvector(x, y, 0.0f), ox_3dvector(x + lean, y + length, 0.0f)});
    }
    return beams;
}

constexpr float sweep_step = 20.0f / 20000.0f;

void load_sweep_of_20000_lines(benchmark::State& state) {
    ox::ox_loadshare slab;
    slab.add_slab_contour(outline(10000, 9.9, 10.0));
    for (const beam_ends& beam : beams_over(state.range(0) != 0)) {
        slab.add_beam(beam.start, beam.end);
    }
    for (auto _ : state) {
        slab.compute_weights(sweep_step);
        benchmark::DoNotOptimize(slab.get_weight(0));
    }
}
BENCHMARK(load_sweep_of_20000_lines)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void plain_load_sweep_of_20000_lines(benchmark::State& state) {
    reference::load_sweep slab;
    slab.contours.emplace_back();
    for (const ox_3dvector& p : outline(10000, 9.9, 10.0)) {
        slab.contours.back().push_back(ox::ox_2dvector(p.x, p.y));
    }
    for (const beam_ends& beam : beams_over(state.range(0) != 0)) {
        slab.beams.emplace_back();
        slab.beams.back().start = ox::ox_2dvector(beam.start.x, beam.start.y);
        slab.beams.back().end = ox::ox_2dvector(beam.end.x, beam.end.y);
    }
    for (auto _ : state) {
        slab.compute_weights(sweep_step);
        benchmark::DoNotOptimize(slab.beams[0].weight);
    }
}
BENCHMARK(plain_load_sweep_of_20000_lines)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// 100,000 systems of 8 equations.

constexpr int order = 8;
constexpr int systems = 100000;

ox_list<float> random_numbers(int count) {
    ox::ox_random random(13);
    ox_list<float> numbers;
    for (int i = 0; i < count; ++i) {
        numbers.push_right(random.dice_0_1());
    }
    return numbers;
}

void solve_100000_systems(benchmark::State& state) {
    ox_list<float> matrix = random_numbers(order * order);
    const ox_list<float> right_side = random_numbers(order);
    for (auto _ : state) {
        for (int i = 0; i < systems; ++i) {
            matrix[i % (order * order)] += 0.001f; // a system of its own each time
            benchmark::DoNotOptimize(ox::ox_solve_system(matrix, right_side)[0]);
        }
    }
}
BENCHMARK(solve_100000_systems)->Unit(benchmark::kMillisecond);

#ifdef OX_HAS_EIGEN
void solve_100000_systems_eigen(benchmark::State& state) {
    const ox_list<float> numbers = random_numbers(order * order);
    const int n = order + static_cast<int>(state.range(0)); // a size known at run time only
    Eigen::MatrixXf matrix(n, n);
    Eigen::VectorXf right_side(n);
    for (int i = 0; i < n * n; ++i) {
        matrix(i / n, i % n) = numbers[i];
    }
    for (int i = 0; i < n; ++i) {
        right_side(i) = numbers[i];
    }
    for (auto _ : state) {
        for (int i = 0; i < systems; ++i) {
            const int element = i % (n * n);
            matrix(element / n, element % n) += 0.001f;
            const Eigen::VectorXf x = matrix.partialPivLu().solve(right_side);
            benchmark::DoNotOptimize(x(0));
        }
    }
}
BENCHMARK(solve_100000_systems_eigen)->Arg(0)->Unit(benchmark::kMillisecond);
#endif

} // namespace
