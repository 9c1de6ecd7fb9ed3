// Meshes of growing size: reading against the plain fread of the same bytes, welding, subdivision
// and half-edges. Where the packages are installed, the vertex remapping of meshoptimizer and the
// half-edges of OpenMesh run beside them on the same input.
//
// "triangles/s" counts input triangles, "peak_MiB" is the most that the allocations of one call
// held at once.

#include "peak_meter.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <ox/core/ox_log.h>
#include <ox/mesh/ox_mesh.h>
#include <ox/mesh/ox_triangle_set.h>
#include <ox/mesh/ox_vertex_optimizer.h>

#ifdef OX_HAS_MESHOPTIMIZER
#include <meshoptimizer.h>
#endif
#ifdef OX_HAS_OPENMESH
#include <OpenMesh/Core/Mesh/TriMesh_ArrayKernelT.hh>
#endif

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_triangle_set;

void report(benchmark::State& state, double peak) {
    state.counters["triangles/s"] = benchmark::Counter(
        static_cast<double>(state.range(0)), benchmark::Counter::kIsIterationInvariantRate);
    state.counters["peak_MiB"] = peak;
}

/// A field of hills of about `nb_triangles` triangles that own their vertices, as read from STL.
ox_triangle_set triangle_soup(std::int64_t nb_triangles) {
    const unsigned int n =
        static_cast<unsigned int>(std::lround(std::sqrt(static_cast<double>(nb_triangles) / 2)));
    const auto hill = [](unsigned int i, unsigned int j) {
        return ox_3dvector(static_cast<float>(i), static_cast<float>(j),
                           static_cast<float>(4 * std::sin(0.05 * i) * std::cos(0.04 * j)));
    };
    ox_triangle_set soup(6 * n * n, 2 * n * n);
    ox_3dvector* vertex = soup.get_vertices();
    for (unsigned int j = 0; j < n; ++j) {
        for (unsigned int i = 0; i < n; ++i) {
            for (const unsigned int corner : {0u, 1u, 3u, 0u, 3u, 2u}) {
                *vertex++ = hill(i + (corner & 1u), j + (corner >> 1));
            }
        }
    }
    for (unsigned int i = 0; i < 6 * n * n; ++i) {
        soup.get_triangles()[i] = i;
    }
    return soup;
}

/// Another set with the same contents and arrays of its own.
ox_triangle_set clone(const ox_triangle_set& set) {
    ox_triangle_set copy(set.get_nb_vertices(), set.get_nb_triangles());
    std::copy(set.get_vertices(), set.get_vertices() + set.get_nb_vertices(), copy.get_vertices());
    std::copy(set.get_triangles(), set.get_triangles() + 3 * set.get_nb_triangles(),
              copy.get_triangles());
    return copy;
}

ox_triangle_set welded_field(std::int64_t nb_triangles) {
    ox_triangle_set field = triangle_soup(nb_triangles);
    field.optimize(1e-4f, 10.f);
    return field;
}

ox_list<ox_3dvector> vertex_list(const ox_triangle_set& set) {
    ox_list<ox_3dvector> list(static_cast<int>(set.get_nb_vertices()));
    std::copy(set.get_vertices(), set.get_vertices() + set.get_nb_vertices(), list.get_data());
    return list;
}

ox_list<unsigned int> index_list(const ox_triangle_set& set) {
    ox_list<unsigned int> list(static_cast<int>(3 * set.get_nb_triangles()));
    std::copy(set.get_triangles(), set.get_triangles() + list.size(), list.get_data());
    return list;
}

/// A binary STL file, removed with the object; its pages stay in the system's cache.
class stl_file {
public:
    explicit stl_file(const ox_triangle_set& set)
        : path((std::filesystem::temp_directory_path() / "ox_bench_mesh.stl").string()),
          bytes(84 + 50 * std::size_t{set.get_nb_triangles()}) {
        std::vector<char> content(bytes);
        const unsigned int count = set.get_nb_triangles();
        std::memcpy(&content[80], &count, 4);
        for (std::size_t i = 0; i < count; ++i) {
            std::memcpy(&content[84 + 50 * i + 12], set.get_vertices() + 3 * i, 36);
        }
        std::FILE* const file = std::fopen(path.c_str(), "wb");
        std::fwrite(content.data(), 1, bytes, file);
        std::fclose(file);
    }
    ~stl_file() { std::filesystem::remove(path); }
    stl_file(const stl_file&) = delete;
    stl_file& operator=(const stl_file&) = delete;

    const std::string path;
    const std::size_t bytes;
};

void sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(100000)->Arg(1000000)->Arg(4000000)->Unit(benchmark::kMillisecond);
}

/// The measure of reading: the same bytes into fresh memory of that size.
void read_stl_plain_fread(benchmark::State& state) {
    const stl_file stl(triangle_soup(state.range(0)));
    double peak = 0;
    for (auto _ : state) {
        const peak_meter meter;
        std::unique_ptr<char[]> memory(new char[stl.bytes]);
        std::FILE* const file = std::fopen(stl.path.c_str(), "rb");
        benchmark::DoNotOptimize(std::fread(memory.get(), 1, stl.bytes, file));
        std::fclose(file);
        peak = meter.mebibytes();
    }
    report(state, peak);
}
BENCHMARK(read_stl_plain_fread)->Apply(sizes);

void read_stl(benchmark::State& state) {
    ox_log_set(false);
    const stl_file stl(triangle_soup(state.range(0)));
    double peak = 0;
    for (auto _ : state) {
        const peak_meter meter;
        ox_triangle_set set;
        benchmark::DoNotOptimize(set.read_binary_stl(stl.path.c_str()));
        peak = meter.mebibytes();
    }
    report(state, peak);
}
BENCHMARK(read_stl)->Apply(sizes);

void weld_set(benchmark::State& state) {
    const ox_triangle_set soup = triangle_soup(state.range(0));
    double peak = 0;
    for (auto _ : state) {
        state.PauseTiming();
        ox_triangle_set set = clone(soup);
        state.ResumeTiming();
        const peak_meter meter;
        set.optimize(1e-4f, 10.f);
        peak = meter.mebibytes();
        benchmark::DoNotOptimize(set.get_nb_vertices());
    }
    report(state, peak);
}
BENCHMARK(weld_set)->Apply(sizes);

/// The field where a building's coordinates often are: all of it in one cell of the octree.
void weld_set_far_from_origin(benchmark::State& state) {
    const ox_triangle_set soup = triangle_soup(state.range(0));
    for (unsigned int i = 0; i < soup.get_nb_vertices(); ++i) {
        soup.get_vertices()[i] += ox_3dvector(6856000.f, 6856000.f, 0.f);
    }
    for (auto _ : state) {
        state.PauseTiming();
        ox_triangle_set set = clone(soup);
        state.ResumeTiming();
        set.optimize(1e-4f, 10.f);
    }
    report(state, 0);
}
BENCHMARK(weld_set_far_from_origin)->Apply(sizes);

void weld_stream(benchmark::State& state) {
    const ox_list<ox_3dvector> vertices = vertex_list(triangle_soup(state.range(0)));
    double peak = 0;
    for (auto _ : state) {
        const peak_meter meter;
        ox::ox_vertex_optimizer optimizer(1e-4f, 10.f);
        optimizer.add_vertices(vertices);
        peak = meter.mebibytes();
        benchmark::DoNotOptimize(optimizer.get_mapping().size());
    }
    report(state, peak);
}
BENCHMARK(weld_stream)->Apply(sizes);

#ifdef OX_HAS_MESHOPTIMIZER
/// Welds equal positions only: no tolerance, no normals.
void weld_meshoptimizer_exact(benchmark::State& state) {
    const ox_triangle_set soup = triangle_soup(state.range(0));
    const std::size_t count = soup.get_nb_vertices();
    double peak = 0;
    for (auto _ : state) {
        const peak_meter meter;
        std::vector<unsigned int> remap(count), indices(count);
        const std::size_t unique = meshopt_generateVertexRemap(
            remap.data(), nullptr, count, soup.get_vertices(), count, sizeof(ox_3dvector));
        std::vector<ox_3dvector> vertices(unique);
        meshopt_remapVertexBuffer(vertices.data(), soup.get_vertices(), count, sizeof(ox_3dvector),
                                  remap.data());
        meshopt_remapIndexBuffer(indices.data(), nullptr, count, remap.data());
        peak = meter.mebibytes();
        benchmark::DoNotOptimize(indices.data());
    }
    report(state, peak);
}
BENCHMARK(weld_meshoptimizer_exact)->Apply(sizes);
#endif

void subdivide(benchmark::State& state) {
    const ox_triangle_set field = welded_field(state.range(0));
    double peak = 0;
    for (auto _ : state) {
        ox_triangle_set set = field;
        const peak_meter meter;
        set.subdivide();
        peak = meter.mebibytes();
        benchmark::DoNotOptimize(set.get_nb_vertices());
    }
    report(state, peak);
}
BENCHMARK(subdivide)->Apply(sizes);

void build_half_edges(benchmark::State& state) {
    const ox_triangle_set field = welded_field(state.range(0));
    const ox_list<ox_3dvector> vertices = vertex_list(field);
    const ox_list<unsigned int> triangles = index_list(field);
    double peak = 0;
    for (auto _ : state) {
        const peak_meter meter;
        ox::ox_mesh mesh;
        mesh.set_vertices(vertices);
        mesh.set_triangles(triangles);
        mesh.build_half_edges();
        peak = meter.mebibytes();
        benchmark::DoNotOptimize(mesh.is_closed());
    }
    report(state, peak);
}
BENCHMARK(build_half_edges)->Apply(sizes);

#ifdef OX_HAS_OPENMESH
void build_half_edges_openmesh(benchmark::State& state) {
    using peer_mesh = OpenMesh::TriMesh_ArrayKernelT<>;
    const ox_triangle_set field = welded_field(state.range(0));
    const unsigned int* const indices = field.get_triangles();
    double peak = 0;
    for (auto _ : state) {
        const peak_meter meter;
        peer_mesh mesh;
        for (unsigned int i = 0; i < field.get_nb_vertices(); ++i) {
            const ox_3dvector& v = field.get_vertices()[i];
            mesh.add_vertex(peer_mesh::Point(v.x, v.y, v.z));
        }
        for (unsigned int i = 0; i < 3 * field.get_nb_triangles(); i += 3) {
            mesh.add_face(mesh.vertex_handle(indices[i]), mesh.vertex_handle(indices[i + 1]),
                          mesh.vertex_handle(indices[i + 2]));
        }
        peak = meter.mebibytes();
        benchmark::DoNotOptimize(mesh.n_halfedges());
    }
    report(state, peak);
}
BENCHMARK(build_half_edges_openmesh)->Apply(sizes);
#endif

} // namespace
