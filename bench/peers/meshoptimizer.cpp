#include <bench/peers/meshoptimizer.h>

namespace {

constexpr char meshoptimizer_name[] = "meshoptimizer, exact remap";

} // namespace

#ifdef OX_BENCH_HAS_MESHOPTIMIZER

#include <meshoptimizer.h>

namespace peers {
namespace {

struct buffers {
    std::unique_ptr<ox::ox_3dvector[]> vertices;
    std::unique_ptr<unsigned int[]> indices;
    std::size_t nb_vertices = 0;
};

void weld(const ox::ox_triangle_set& soup, buffers& made) {
    constexpr std::size_t stride = sizeof(ox::ox_3dvector);
    const ox::ox_3dvector* const given = soup.get_vertices();
    const std::size_t count = soup.get_nb_vertices();
    const std::unique_ptr<unsigned int[]> remap(new unsigned int[count]);
    made.nb_vertices =
        meshopt_generateVertexRemap(remap.get(), nullptr, count, given, count, stride);
    made.vertices.reset(new ox::ox_3dvector[made.nb_vertices]);
    made.indices.reset(new unsigned int[count]);
    meshopt_remapVertexBuffer(made.vertices.get(), given, count, stride, remap.get());
    meshopt_remapIndexBuffer(made.indices.get(), nullptr, count, remap.get());
}

} // namespace

bench::contestant meshoptimizer_weld(const ox::ox_triangle_set& soup) {
    return bench::make_contestant(
        meshoptimizer_name, [] { return buffers(); }, [=](buffers& b) { weld(soup, b); },
        [](const buffers& b) {
            return std::vector<bench::fact>{{"vertices", static_cast<double>(b.nb_vertices), 0.0}};
        });
}

} // namespace peers

#else

namespace peers {

bench::contestant meshoptimizer_weld(const ox::ox_triangle_set&) {
    return bench::absent(meshoptimizer_name);
}

} // namespace peers

#endif
