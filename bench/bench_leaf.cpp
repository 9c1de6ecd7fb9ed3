// Points scattered over a region, the sharing of a slab's load, and small linear systems, each
// beside its plain version or a peer.

#include <cmath>
#include <vector>

#include <benchmark/benchmark.h>

#include <ox/core/ox_random.h>
#include <ox/ox_functions.h>
#include <ox/polygon/ox_polygon.h>
#include <tests/reference/distributions.h>

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

} // namespace
