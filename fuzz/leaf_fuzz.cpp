// Drives points scattered over a polygon, its projection, a slab's loads, curves and small systems
// with whatever numbers the bytes give.

#include <algorithm>
#include <fuzz/byte_reader.h>
#include <ox/geometry/ox_bezier.h>
#include <ox/geometry/ox_bspline.h>
#include <ox/geometry/ox_cubic_spline.h>
#include <ox/ox_functions.h>
#include <ox/polygon/ox_polygon.h>
#include <ox/polygon/ox_polygon_projection.h>
#include <ox/structure/ox_loadshare.h>

namespace {

using fuzz::byte_reader;
using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;

/// Any step, but none that would fill the memory with points or the time with lines.
float step_for(byte_reader& bytes, float extent) {
    const float step = bytes.coordinate();
    return step > 0.0f ? std::max(step, extent / 300.0f) : step;
}

void scatter(byte_reader& bytes, ox_polygon& polygon) {
    polygon.regular_distribution(step_for(bytes, polygon.get_bounding_box().size.size()));
    polygon.random_distribution(static_cast<int>(bytes.byte()) - 1, bytes.byte());
}

void rasterise(byte_reader& bytes, ox_polygon& polygon) {
    bool grid[16 * 16];
    const ox_3dvector origin = bytes.vector();
    const ox_3dvector dx = bytes.vector();
    const ox_3dvector dy = bytes.vector();
    const int nx = bytes.byte() % 17;
    const int ny = bytes.byte() % 17;
    polygon.fill_regular_grid(grid, origin, dx, dy, nx, ny, bytes.coordinate());
}

void simplify(byte_reader& bytes, ox_polygon& polygon) {
    ox_list<ox_3dvector> contour = bytes.contour();
    ox_polygon::optimize_contour(contour, bytes.coordinate());
    ox_polygon::optimize_contour(contour, bytes.vector(), bytes.coordinate());
    polygon.optimize_contours(bytes.coordinate());
}

void project(byte_reader& bytes, ox_polygon& polygon) {
    const ox::ox_polygon_projection frame(&polygon, bytes.coordinate());
    const ox_3dvector ray = bytes.vector();
    const ox::ox_2dvector start(ray.x, ray.y);
    const ox::ox_2dvector direction(ray.z, bytes.coordinate());
    ox::ox_2dvector hit;
    ox::ox_2dvector edge;
    float distance = 0.0f;
    frame.contains(start);
    frame.raytrace(start, direction, hit, edge, distance);
}

void share_load(byte_reader& bytes) {
    ox::ox_loadshare slab;
    if (bytes.byte() % 4 == 0) {
        const ox_3dvector normal = bytes.vector();
        slab.set_slab_geometry(normal, bytes.vector());
    }
    ox::ox_box bounds;
    for (int contours = bytes.byte() % 4; contours > 0; --contours) {
        const ox_list<ox_3dvector> contour = bytes.contour();
        for (const ox_3dvector& p : contour) {
            bounds.enlarge(p);
        }
        slab.add_slab_contour(contour);
    }
    for (int beams = bytes.byte() % 8; beams > 0; --beams) {
        const ox_3dvector start = bytes.vector();
        slab.add_beam(start, bytes.vector());
    }
    const float step = std::max(step_for(bytes, bounds.size.size()), 0.01f);
    if (bounds.size.size() < 1e6f * step) {
        slab.set_image_log(bounds.size.size() < 1e3f * step);
        slab.compute_weights(step);
    }
    slab.get_weight(static_cast<int>(bytes.byte()) - 1);
}

void bend(byte_reader& bytes) {
    ox_list<ox::ox_2dvector> points;
    for (const ox_3dvector& p : bytes.contour()) {
        points.push_right(ox::ox_2dvector(p.x, p.y));
    }
    ox::ox_cubic_spline(points).compute(bytes.coordinate());
    ox::ox_bezier(static_cast<int>(bytes.byte()) - 1).compute(bytes.coordinate());
    const int degree = static_cast<int>(bytes.byte() % 8) - 1;
    ox::ox_bspline(degree, static_cast<int>(bytes.byte()) - 1).compute(bytes.coordinate());
}

void solve(byte_reader& bytes) {
    const int order = bytes.byte() % 6;
    ox_list<float> a;
    ox_list<float> b;
    for (int i = 0; i < order * order; ++i) {
        a.push_right(bytes.coordinate());
    }
    for (int i = 0; i < order; ++i) {
        b.push_right(bytes.coordinate());
    }
    ox_solve_system(a, b);
    ox_reverse_matrix(a);
}

void apply_next(byte_reader& bytes, ox_polygon& polygon) {
    switch (bytes.byte() % 10) {
    case 0:
        scatter(bytes, polygon);
        break;
    case 1:
        rasterise(bytes, polygon);
        break;
    case 2:
        simplify(bytes, polygon);
        break;
    case 3:
        project(bytes, polygon);
        break;
    case 4:
        share_load(bytes);
        break;
    case 5:
        bend(bytes);
        break;
    case 6:
        solve(bytes);
        break;
    case 7:
        polygon.set_normal(bytes.vector());
        break;
    default:
        polygon.add_contour(bytes.contour());
        break;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_reader bytes(data, size);
    ox_polygon polygon;
    for (int step = 0; step < 20 && bytes.has_more(); ++step) {
        apply_next(bytes, polygon);
    }
    return 0;
}
