// Measures of the region, and where things lie in it.

#include <ox/polygon/ox_polygon.h>

#include <algorithm>
#include <cmath>

#include <ox/internal/contour_view.h>
#include <ox/internal/wide_vector.h>
#include <ox/polygon/internal/answer_counts.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/plane_coordinates.h>
#include <ox/polygon/internal/search/center_search.h>
#include <ox/polygon/internal/search/crossing_count.h>
#include <ox/polygon/internal/tolerances.h>

namespace ox {

using namespace internal;

namespace {

/// True unless the two stretches of an axis are farther apart than the tolerance.
bool stretches_meet(float origin, float size, float other_origin, float other_size) {
    return !(origin > other_origin + other_size + box_contact_tolerance) &&
           !(other_origin - box_contact_tolerance > origin + size);
}

} // namespace

int ox_polygon::count_outer_contours() {
    data->compute_contours();
    const ox_list<bool>& outer = data->contour_orientations;
    return static_cast<int>(std::count(outer.begin(), outer.end(), true));
}

const ox_box& ox_polygon::get_bounding_box() {
    data->compute_contours();
    if (data->bounding_box.is_empty()) {
        for (const ox_3dvector& v : data->contour_vertices) {
            data->bounding_box.enlarge(v);
        }
    }
    return data->bounding_box;
}

float ox_polygon::get_perimeter() {
    data->compute_contours();
    float perimeter = 0.0f;
    const ox_list<ox_3dvector>& vertices = data->contour_vertices;
    for (const contour_view contour : contour_views(data->contour_sizes)) {
        for (int i = contour.first; i < contour.end; ++i) {
            perimeter += vertices[i].distance_to(vertices[contour.after(i)]);
        }
    }
    return perimeter;
}

const ox_3dvector& ox_polygon::get_best_center() {
    data->compute_contours();
    if (data->best_center_computed) {
        return data->best_center;
    }
    if (data->contour_vertices.size() < 1) {
        data->best_center = data->point;
    } else {
        // Without a candidate inside, the previous centre stays.
        find_best_center(*data, data->best_center);
    }
    data->best_center_computed = true;
    return data->best_center;
}

bool ox_polygon_data::contains(const ox_3dvector& p) const {
    const ox_2dvector q = plane_coordinates(*this, p);
    const auto vertex = [this](int i) { return plane_coordinates(*this, contour_vertices[i]); };
    return contours_contain(contour_sizes, vertex, q.x, q.y);
}

bool ox_polygon::contains(const ox_3dvector& p) {
    data->compute_contours();
    const containment_index* index = data->containment.find(*data);
    if (index == nullptr) {
        return data->contains(p);
    }
    ++answers_of(answered_by::containment_index);
    return index->contains(plane_coordinates(*data, p));
}

bool ox_polygon::intersect_by_ray(const ox_3dvector& start, const ox_3dvector& direction,
                                  ox_3dvector& hit, float& distance) {
    data->compute_contours();
    const wide_vector normal = to_wide(data->normal);
    const wide_vector way = to_wide(direction);
    const double steps = dot(to_wide(data->point) - to_wide(start), normal) / dot(way, normal);
    if (!std::isfinite(steps) || steps < 0.0) {
        return false;
    }
    const wide_vector place =
        to_wide(start) + wide_vector{steps * way.x, steps * way.y, steps * way.z};
    const ox_3dvector candidate(static_cast<float>(place.x), static_cast<float>(place.y),
                                static_cast<float>(place.z));
    if (!contains(candidate)) {
        return false;
    }
    hit = candidate;
    distance = static_cast<float>(steps);
    return true;
}

bool ox_polygon::may_intersect(const ox_box& box) {
    const ox_box& own = get_bounding_box();
    return stretches_meet(own.origin.x, own.size.x, box.origin.x, box.size.x) &&
           stretches_meet(own.origin.y, own.size.y, box.origin.y, box.size.y) &&
           stretches_meet(own.origin.z, own.size.z, box.origin.z, box.size.z);
}

} // namespace ox
