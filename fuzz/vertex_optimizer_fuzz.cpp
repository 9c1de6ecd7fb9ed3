// Welds a stream of vertices. Each of them lies at its welded vertex, within the tolerance.

#include <cmath>

#include <fuzz/byte_reader.h>
#include <fuzz/require.h>
#include <ox/mesh/ox_vertex_optimizer.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;

bool is_near(float a, float b, float tolerance) {
    return !(std::fabs(a - b) > tolerance) || !std::isfinite(a - b);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::byte_reader bytes(data, size);
    const float position_tolerance = bytes.coordinate();
    const float normal_tolerance = bytes.coordinate();
    ox::ox_vertex_optimizer optimizer(position_tolerance, normal_tolerance);
    ox_list<ox_3dvector> given;
    while (bytes.has_more()) {
        const ox_list<ox_3dvector> some = bytes.contour();
        optimizer.add_vertices(some, bytes.vector());
        for (const ox_3dvector& vertex : some) {
            given.push_right(vertex);
        }
    }
    const ox_list<ox_3dvector>& welded = optimizer.get_optimized_vertices();
    fuzz::require(optimizer.get_mapping().size() == given.size());
    fuzz::require(optimizer.get_optimized_normals().size() == welded.size());
    for (int i = 0; i < given.size(); ++i) {
        const unsigned int index = optimizer.get_mapping()[i];
        fuzz::require(index < static_cast<unsigned int>(welded.size()));
        const ox_3dvector& vertex = welded[static_cast<int>(index)];
        const float tolerance = position_tolerance > 0.0f ? position_tolerance : 0.0f;
        fuzz::require(is_near(vertex.x, given[i].x, tolerance));
        fuzz::require(is_near(vertex.y, given[i].y, tolerance));
        fuzz::require(is_near(vertex.z, given[i].z, tolerance));
    }
    optimizer.add_vertices(optimizer.get_optimized_vertices());
    return 0;
}
