// Lazy normalisation: the contours added since the last query are merged with the normalised ones
// into the even-odd union of all, in integer coordinates of the polygon's frame.
//
//  1. Without a plane, take the one of the first contour that fits the integer grid.
//  2. Exactly three pending vertices: they replace everything by one triangle.
//  3. Otherwise unite everything (`contour_combination`).

#include <algorithm>
#include <cmath>

#include <ox/internal/contour_view.h>
#include <ox/internal/vectors.h>
#include <ox/polygon/internal/clipping/contour_combination.h>
#include <ox/polygon/internal/clipping/integer_grid.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/tolerances.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

using namespace internal;
namespace {

constexpr int fewest_pending_vertices = 3;

ox_3dvector sum_of_edge_crosses(const ox_3dvector* v, int n) {
    ox_3dvector sum;
    ox_3dvector incoming = v[1 % n] - v[0];
    for (int i = 1; i <= n; ++i) {
        const ox_3dvector outgoing = v[(i + 1) % n] - v[i % n];
        sum += ox_cross(incoming, outgoing);
        incoming = outgoing;
    }
    return sum;
}

enum class plane_verdict { good, flat, outside_grid };

/// What a contour says about the plane through its first vertex, with the normal on the side from
/// which it runs counter-clockwise.
struct plane_decision {
    plane_verdict verdict = plane_verdict::outside_grid;
    plane_frame plane; ///< unless the verdict is good, with no normal
    grid_path path;    ///< the contour in that plane's frame
};

plane_decision decide_plane(const ox_3dvector* contour, int size) {
    plane_decision decision;
    decision.plane.point = contour[0];
    ox_3dvector normal = sum_of_edge_crosses(contour, size);
    const float length = normal.size();
    if (length < shortest_contour_normal) {
        decision.verdict = plane_verdict::flat;
        return decision;
    }
    if (!std::isfinite(length)) {
        return decision;
    }
    normal.normalize();
    plane_frame plane = decision.plane;
    plane.turn_to(normal);
    if (!decision.path.take(plane, contour, static_cast<std::size_t>(size))) {
        return decision;
    }
    if (!decision.path.is_counter_clockwise()) {
        plane.turn_to(-plane.normal);
        decision.path.take(plane, contour, static_cast<std::size_t>(size));
    }
    decision.verdict = plane_verdict::good;
    decision.plane = plane;
    return decision;
}

/// The decision of the first pending contour that fits the grid. A flat one decides that there is
/// no plane; where none fits, the plane's point stays.
plane_decision decide_plane(const ox_polygon_data& polygon) {
    for (const contour_view contour : contour_views(polygon.pending_sizes)) {
        plane_decision decision =
            decide_plane(polygon.pending_vertices.get_data() + contour.first, contour.size());
        if (decision.verdict != plane_verdict::outside_grid) {
            return decision;
        }
    }
    plane_decision none;
    none.plane.point = polygon.point;
    return none;
}

/// The first contour is mostly the only one: its list gets no room to spare.
void append(ox_list<ox_3dvector>& list, const ox_3dvector* vertices, int size) {
    const int before = list.size();
    const int needed = before + size;
    if (before > 0 && needed > list.get_capacity()) {
        list.set_size(std::max(needed, before + before / 2));
    }
    list.set_size(needed);
    std::copy(vertices, vertices + size, list.begin() + before);
}

void drop_pending(ox_polygon_data& polygon) {
    polygon.pending_vertices.clear();
    polygon.pending_sizes.clear();
}

/// The triangle stands as it was given: it is not projected on the plane.
void replace_by_pending_triangle(ox_polygon_data& polygon) {
    if (ox_polygon::is_clockwise(polygon.pending_vertices, polygon.normal) > 0) {
        std::reverse(polygon.pending_vertices.begin(), polygon.pending_vertices.end());
    }
    polygon.clear_contours();
    polygon.append_contour(polygon.pending_vertices.get_data(), 3, true, -1);
    drop_pending(polygon);
    polygon.tesselation_computed = false;
    polygon.drop_region_unless_finite();
}

/// `path` is the first pending contour if it has points.
void unite_with_pending(ox_polygon_data& polygon, grid_path& path) {
    if (polygon.contour_sizes.size() == 0 && polygon.pending_sizes.size() == 1 &&
        (path.size() > 0 ||
         path.take(polygon, polygon.pending_vertices.get_data(), polygon.pending_sizes[0]))) {
        unite_single_contour(polygon, path);
        return;
    }
    grid_contours contours;
    contours.append(polygon, polygon.contour_vertices, polygon.contour_sizes);
    contours.append(polygon, polygon.pending_vertices, polygon.pending_sizes);
    combine_contours(polygon, ClipperLib::ctUnion, contours, grid_contours());
}

void merge_pending(ox_polygon_data& polygon) {
    if (polygon.pending_vertices.size() < fewest_pending_vertices) {
        drop_pending(polygon);
        return;
    }
    polygon.bounding_box.clear();
    plane_decision decision;
    if (!polygon.plane_defined) {
        decision = decide_plane(polygon);
        static_cast<plane_frame&>(polygon) = decision.plane;
        polygon.plane_defined = decision.verdict == plane_verdict::good;
    }
    if (!polygon.plane_defined) {
        drop_pending(polygon);
        return;
    }
    if (polygon.pending_vertices.size() == fewest_pending_vertices) {
        replace_by_pending_triangle(polygon);
        return;
    }
    unite_with_pending(polygon, decision.path);
    drop_pending(polygon);
}

} // namespace

void ox_polygon_data::compute_contours() {
    if (contours_computed) {
        return;
    }
    best_center_computed = false;
    merge_pending(*this);
    contours_computed = true;
}

void ox_polygon_data::append_contour(const ox_3dvector* vertices, int size, bool outer,
                                     int parent) {
    append(contour_vertices, vertices, size);
    contour_orientations.push_right(outer);
    contour_parents.push_right(parent);
    contour_sizes.push_right(
        static_cast<unsigned int>(size)); // last: no size without its vertices, even without memory
}

void ox_polygon_data::clear_contours() {
    contour_vertices.clear();
    contour_sizes.clear();
    contour_orientations.clear();
    contour_parents.clear();
}

void ox_polygon_data::forget_derived() {
    tell_change();
    tesselation_computed = false;
    bounding_box.clear();
}

void ox_polygon_data::drop_region_unless_finite() {
    if (has_finite_numbers() &&
        std::all_of(contour_vertices.begin(), contour_vertices.end(), is_finite)) {
        return;
    }
    clear_contours();
    forget_derived();
}

const ox_list<ox_3dvector>& ox_polygon::get_contour_vertices() {
    data->compute_contours();
    return data->contour_vertices;
}

const ox_list<unsigned int>& ox_polygon::get_contour_sizes() {
    data->compute_contours();
    return data->contour_sizes;
}

const ox_list<bool>& ox_polygon::get_contour_orientations() {
    data->compute_contours();
    return data->contour_orientations;
}

const ox_list<int>& ox_polygon::get_contour_parents() {
    data->compute_contours();
    return data->contour_parents;
}

void ox_polygon::add_contour(const ox_list<ox_3dvector>& vertices) {
    if (vertices.size() <= 0) {
        return;
    }
    const int pending = data->pending_vertices.size();
    try {
        append(data->pending_vertices, vertices.get_data(), vertices.size());
        data->pending_sizes.push_right(static_cast<unsigned int>(vertices.size()));
    } catch (...) { // no memory: vertices without a size would go to the next contour
        data->pending_vertices.set_size(pending);
        throw;
    }
    data->contours_computed = false;
    data->forget_derived();
}

} // namespace ox
