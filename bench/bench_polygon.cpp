// Polygons of growing size: merging overlapping contours, triangles of a slab with many openings,
// and the best centre of a slab, which a plain scan would take seconds for.

#include <benchmark/benchmark.h>

#include <ox/polygon/ox_polygon.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;

ox_list<ox_3dvector> rectangle(float x, float y, float width, float height) {
    ox_list<ox_3dvector> corners;
    corners.push_right(ox_3dvector(x, y, 0.0f));
    corners.push_right(ox_3dvector(x + width, y, 0.0f));
    corners.push_right(ox_3dvector(x + width, y + height, 0.0f));
    corners.push_right(ox_3dvector(x, y + height, 0.0f));
    return corners;
}

/// A slab of 100 x 60 with a grid of openings, as contours not merged yet.
ox_polygon slab(int openings) {
    ox_polygon polygon;
    polygon.add_contour(rectangle(0.0f, 0.0f, 100.0f, 60.0f));
    for (int i = 0; i < openings; ++i) {
        const float x = 3.0f + 16.0f * static_cast<float>(i % 6);
        const float y = 3.0f + 11.0f * static_cast<float>(i / 6 % 5);
        polygon.add_contour(rectangle(x, y, 4.0f, 2.5f));
    }
    return polygon;
}

void merge_overlapping_squares(benchmark::State& state) {
    const int squares = static_cast<int>(state.range(0));
    for (auto _ : state) {
        ox_polygon polygon;
        for (int i = 0; i < squares; ++i) {
            const float x = 0.7f * static_cast<float>(i % 32);
            const float y = 0.7f * static_cast<float>(i / 32);
            polygon.add_contour(rectangle(x, y, 1.0f, 1.0f));
        }
        benchmark::DoNotOptimize(polygon.get_contour_sizes().size());
    }
    state.SetComplexityN(squares);
}
BENCHMARK(merge_overlapping_squares)
    ->Arg(64)
    ->Arg(256)
    ->Arg(1024)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

void tessellate_slab(benchmark::State& state) {
    const ox_polygon merged = slab(30);
    for (auto _ : state) {
        ox_polygon polygon = merged;
        benchmark::DoNotOptimize(polygon.get_area());
    }
}
BENCHMARK(tessellate_slab)->Unit(benchmark::kMicrosecond);

void best_center_of_slab(benchmark::State& state) {
    const ox_polygon merged = slab(30);
    for (auto _ : state) {
        ox_polygon polygon = merged;
        benchmark::DoNotOptimize(polygon.get_best_center());
    }
}
BENCHMARK(best_center_of_slab)->Unit(benchmark::kMillisecond);

} // namespace
