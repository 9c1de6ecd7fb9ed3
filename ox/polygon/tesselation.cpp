// Triangles of the region, made by the GLU tessellator with the odd winding rule, and their area.
//
//  1. One contour of three vertices is its own triangle.
//  2. Small contours whose triangles are known take them.
//  3. Otherwise the tessellator emits triangles, strips and fans; each primitive brings its own
//     vertices.
//  4. Areas are added, and triangles that run clockwise about the normal are turned over.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/tessellator.h>
#include <ox/polygon/internal/triangle_pattern.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {
namespace {

std::vector<double> widened(const ox_list<ox_3dvector>& vertices) {
    std::vector<double> coordinates;
    coordinates.reserve(static_cast<std::size_t>(vertices.size()) * 3);
    for (const ox_3dvector& v : vertices) {
        coordinates.insert(coordinates.end(), {static_cast<double>(v.x), static_cast<double>(v.y),
                                               static_cast<double>(v.z)});
    }
    return coordinates;
}

ox_3dvector narrowed(const double* v) {
    return ox_3dvector(static_cast<float>(v[0]), static_cast<float>(v[1]),
                       static_cast<float>(v[2]));
}

void take_answer(const tessellator_answer& answer, ox_polygon_data& polygon) {
    polygon.tesselation_vertices.set_size(static_cast<int>(answer.vertices.size()));
    std::transform(answer.vertices.begin(), answer.vertices.end(),
                   polygon.tesselation_vertices.begin(), narrowed);
    polygon.tesselation_triangles.set_size(static_cast<int>(answer.triangles.size()));
    std::copy(answer.triangles.begin(), answer.triangles.end(),
              polygon.tesselation_triangles.begin());
}

using optional_key = std::optional<triangle_pattern_key>;

void ask_tessellator(ox_polygon_data& polygon, const optional_key& key) {
    std::vector<double> coordinates = widened(polygon.contour_vertices);
    tessellator_answer answer;
    run_tessellator(coordinates, polygon.contour_sizes, polygon.normal, answer);
    take_answer(answer, polygon);
    if (key && answer.made.empty()) {
        keep_triangle_pattern(*key, triangle_pattern(answer, coordinates.data()));
    }
}

void tessellate(ox_polygon_data& polygon) {
    const ox_3dvector* vertices = polygon.contour_vertices.get_data();
    const ox_list<unsigned int>& sizes = polygon.contour_sizes;
    const fan_kind fan =
        sizes.size() == 1 ? find_fan(vertices, sizes[0], polygon.normal) : fan_kind::mixed;
    if (fan == fan_kind::forward || fan == fan_kind::backward) {
        take_fan(vertices, sizes[0], fan, polygon.tesselation_vertices,
                 polygon.tesselation_triangles);
        return;
    }
    const optional_key key = fan == fan_kind::doubtful
                                 ? std::nullopt
                                 : find_triangle_pattern_key(vertices, sizes, polygon.normal);
    const triangle_pattern* known = key ? find_triangle_pattern(*key) : nullptr;
    if (known != nullptr) {
        known->apply(vertices, polygon.tesselation_vertices, polygon.tesselation_triangles);
    } else {
        ask_tessellator(polygon, key);
    }
}

void take_single_triangle(ox_polygon_data& polygon) {
    polygon.tesselation_vertices = polygon.contour_vertices;
    for (unsigned int i = 0; i < 3; ++i) {
        polygon.tesselation_triangles.push_right(i);
    }
}

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
    tesselation_vertices.clear();
    tesselation_triangles.clear();
    area = 0.0f;
    if (contour_sizes.size() == 1 && contour_sizes[0] == 3) {
        take_single_triangle(*this);
    } else if (contour_sizes.size() > 0) {
        tessellate(*this);
    }
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
