// How a region gets its triangles:
//
//  1. One contour of three vertices is its own triangle.
//  2. A contour that is seen whole from its first vertex is one fan.
//  3. Small contours that lie as others did before get their triangles.
//  4. The tessellator is asked, and its answer to the third kind is remembered.

#include <ox/polygon/internal/triangles/triangulation.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

#include <ox/polygon/internal/answer_counts.h>
#include <ox/polygon/internal/triangles/tessellator.h>
#include <ox/polygon/internal/triangles/triangle_pattern.h>

namespace ox::internal {
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

void triangulate_contours(ox_polygon_data& polygon) {
    const ox_3dvector* vertices = polygon.contour_vertices.get_data();
    const ox_list<unsigned int>& sizes = polygon.contour_sizes;
    const fan_kind fan =
        sizes.size() == 1 ? find_fan(vertices, sizes[0], polygon.normal) : fan_kind::mixed;
    if (fan == fan_kind::forward || fan == fan_kind::backward) {
        take_fan(vertices, sizes[0], fan, polygon.tesselation_vertices,
                 polygon.tesselation_triangles);
        ++answers_of(answered_by::fan);
        return;
    }
    const optional_key key = fan == fan_kind::doubtful
                                 ? std::nullopt
                                 : find_triangle_pattern_key(vertices, sizes, polygon.normal);
    const triangle_pattern* known = key ? find_triangle_pattern(*key) : nullptr;
    if (known != nullptr) {
        known->apply(vertices, polygon.tesselation_vertices, polygon.tesselation_triangles);
        ++answers_of(answered_by::known_triangles);
    } else {
        ask_tessellator(polygon, key);
        ++answers_of(answered_by::tessellator);
    }
}

void take_single_triangle(ox_polygon_data& polygon) {
    polygon.tesselation_vertices = polygon.contour_vertices;
    for (unsigned int i = 0; i < 3; ++i) {
        polygon.tesselation_triangles.push_right(i);
    }
}

} // namespace

void triangulate(ox_polygon_data& polygon) {
    polygon.tesselation_vertices.clear();
    polygon.tesselation_triangles.clear();
    if (polygon.contour_sizes.size() == 1 && polygon.contour_sizes[0] == 3) {
        take_single_triangle(polygon);
    } else if (polygon.contour_sizes.size() > 0) {
        triangulate_contours(polygon);
    }
}

} // namespace ox::internal
