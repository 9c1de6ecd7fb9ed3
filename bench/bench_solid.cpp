// Solids of growing size: a wall whose openings are cut one after another or at once, a row of
// overlapping cubes, and the section of the finished wall. Each reports how its cost grows with n.

#include <benchmark/benchmark.h>

#include <ox/solid/ox_solid.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;

constexpr float opening_pitch = 1.5f;

/// A wall with room for `openings` openings: 0.3 thick and 3 high.
ox_solid wall(int openings) {
    ox_solid solid;
    solid.brick(ox_3dvector(), opening_pitch * static_cast<float>(openings), 0.3f, 3.0f);
    return solid;
}

/// The tool that cuts opening `i`: 1 x 1, and thicker than the wall.
ox_solid opening(int i) {
    ox_solid solid;
    const float x = opening_pitch * static_cast<float>(i) + 0.25f;
    solid.brick(ox_3dvector(x, -0.05f, 1.0f), 1.0f, 0.4f, 1.0f);
    return solid;
}

ox_solid wall_with_openings(int openings) {
    ox_solid solid = wall(openings);
    for (int i = 0; i < openings; ++i) {
        ox_solid tool = opening(i);
        solid.substracts(tool);
    }
    return solid;
}

void wall_cut_one_after_another(benchmark::State& state) {
    const int openings = static_cast<int>(state.range(0));
    for (auto _ : state) {
        ox_solid solid = wall_with_openings(openings);
        benchmark::DoNotOptimize(solid.get_vertices().size());
    }
    state.SetComplexityN(openings);
}
BENCHMARK(wall_cut_one_after_another)
    ->Arg(10)
    ->Arg(50)
    ->Arg(100)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

void wall_cut_at_once(benchmark::State& state) {
    const int openings = static_cast<int>(state.range(0));
    for (auto _ : state) {
        ox_solid tools;
        for (int i = 0; i < openings; ++i) {
            ox_solid tool = opening(i);
            tools.unites(tool);
        }
        ox_solid solid = wall(openings);
        solid.substracts(tools);
        benchmark::DoNotOptimize(solid.get_vertices().size());
    }
    state.SetComplexityN(openings);
}
BENCHMARK(wall_cut_at_once)
    ->Arg(10)
    ->Arg(50)
    ->Arg(100)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

void row_of_cubes_united(benchmark::State& state) {
    const int cubes = static_cast<int>(state.range(0));
    for (auto _ : state) {
        ox_solid row;
        for (int i = 0; i < cubes; ++i) {
            ox_solid cube;
            cube.brick(ox_3dvector(0.75f * static_cast<float>(i), 0.0f, 0.0f), 1.0f, 1.0f, 1.0f);
            row.unites(cube);
        }
        benchmark::DoNotOptimize(row.get_vertices().size());
    }
    state.SetComplexityN(cubes);
}
BENCHMARK(row_of_cubes_united)
    ->Arg(10)
    ->Arg(100)
    ->Arg(400)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

void horizontal_section(benchmark::State& state) {
    const int openings = static_cast<int>(state.range(0));
    ox_solid solid = wall_with_openings(openings);
    for (auto _ : state) {
        const ox_list<ox_polygon*> pieces =
            solid.intersect_by_plane(ox_3dvector(0.0f, 0.0f, 1.5f), ox_3dvector(0.0f, 0.0f, 1.0f));
        for (ox_polygon* piece : pieces) {
            delete piece;
        }
    }
    state.SetComplexityN(openings);
}
BENCHMARK(horizontal_section)
    ->Arg(10)
    ->Arg(50)
    ->Arg(100)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();

} // namespace
