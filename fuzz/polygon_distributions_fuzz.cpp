// Strews points over a polygon: in a grid, at random, and as a raster.

#include <algorithm>

#include <fuzz/shapes.h>

namespace {

using fuzz::byte_reader;
using ox::ox_3dvector;
using ox::ox_polygon;

constexpr int most_cells = 16;

/// Any step, but none that would fill the memory with points.
float step_for(byte_reader& bytes, float extent) {
    const float step = bytes.coordinate();
    return step > 0.0f ? std::max(step, extent / 200.0f) : step;
}

void rasterise(byte_reader& bytes, ox_polygon& polygon) {
    bool grid[most_cells * most_cells] = {};
    const ox_3dvector origin = bytes.vector();
    const ox_3dvector dx = bytes.vector();
    const ox_3dvector dy = bytes.vector();
    const int nx = bytes.below(most_cells + 1);
    const int ny = bytes.below(most_cells + 1);
    const int filled = polygon.fill_regular_grid(grid, origin, dx, dy, nx, ny, bytes.coordinate());
    fuzz::require(filled == std::count(grid, grid + nx * ny, true));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_reader bytes(data, size);
    ox_polygon polygon = fuzz::polygon_of(bytes);
    rasterise(bytes, polygon);
    polygon.regular_distribution(step_for(bytes, polygon.get_bounding_box().size.size()));
    const int count = static_cast<int>(bytes.byte()) - 1;
    const int found = polygon.random_distribution(count, bytes.byte()).size();
    fuzz::require(found == 0 || found == count);
    return 0;
}
