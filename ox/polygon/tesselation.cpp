// Triangles of the region and their area: triangles that run clockwise about the normal are turned
// over, and their areas are added in their order.

#include <cmath>
#include <utility>

#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/triangles/triangulation.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

using namespace internal;

namespace {

bool runs_clockwise(const ox_3dvector& a, const ox_3dvector& b, const ox_3dvector& c,
                    const ox_3dvector& normal) {
    return ox_dot(ox_cross(a, b) + ox_cross(b, c) + ox_cross(c, a), normal) < 0.0f;
}

void sum_area_and_mend_winding(ox_polygon_data& polygon) {
    ox_list<unsigned int>& triangles = polygon.tesselation_triangles;
    for (int i = 0; i + 2 < triangles.size(); i += 3) {
        const ox_3dvector& a = polygon.tesselation_vertices[static_cast<int>(triangles[i])];
        const ox_3dvector& b = polygon.tesselation_vertices[static_cast<int>(triangles[i + 1])];
        const ox_3dvector& c = polygon.tesselation_vertices[static_cast<int>(triangles[i + 2])];
        polygon.area += ox_polygon::compute_triangle_area(a, b, c);
        if (runs_clockwise(a, b, c, polygon.normal)) {
            std::swap(triangles[i + 1], triangles[i + 2]);
        }
    }
}

} // namespace

void ox_polygon_data::compute_tesselation() {
    compute_contours();
    if (tesselation_computed) {
        return;
    }
    triangulate(*this);
    area = 0.0f;
    sum_area_and_mend_winding(*this);
    tesselation_computed = true;
}

const ox_list<ox_3dvector>& ox_polygon::get_tesselation_vertices() {
    data->compute_tesselation();
    return data->tesselation_vertices;
}

const ox_list<unsigned int>& ox_polygon::get_tesselation_triangles() {
    data->compute_tesselation();
    return data->tesselation_triangles;
}

float ox_polygon::get_area() {
    data->compute_tesselation();
    return data->area;
}

float ox_polygon::compute_triangle_area(const ox_3dvector& a, const ox_3dvector& b,
                                        const ox_3dvector& c) {
    const float ab = a.distance_to(b);
    const float bc = b.distance_to(c);
    const float ca = c.distance_to(a);
    const float s = (ab + bc + ca) * 0.5f;
    if (!(s > ab && s > bc && s > ca)) {
        return 0.0f;
    }
    const float square = s * (s - ab) * (s - bc) * (s - ca);
    return static_cast<float>(std::sqrt(static_cast<double>(square)));
}

} // namespace ox
