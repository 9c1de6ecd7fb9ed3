// Lazy normalisation: the contours added since the last query are merged with the normalised ones
// into the even-odd union of all, in integer coordinates of the polygon's frame.
//
//  1. Without a plane, take the one of the first contour that fits the integer grid.
//  2. Exactly three pending vertices: they replace everything by one triangle.
//  3. Otherwise unite everything, and read the contours back from the tree of the union.

#include <algorithm>
#include <cmath>
#include <utility>

#include <ox/internal/vectors.h>
#include <ox/polygon/internal/contour_lists.h>
#include <ox/polygon/internal/integer_grid.h>
#include <ox/polygon/internal/monotone_contour.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/tolerances.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {
namespace {

constexpr int fewest_pending_vertices = 3;

// Newell's idea with a fixed fan of neighbours: the sum of the cross products of successive edges.
ox_3dvector sum_of_edge_crosses(const ox_3dvector* v, unsigned int n) {
    ox_3dvector sum;
    ox_3dvector incoming = v[1 % n] - v[0];
    for (unsigned int i = 1; i <= n; ++i) {
        const ox_3dvector outgoing = v[(i + 1) % n] - v[i % n];
        sum += ox_cross(incoming, outgoing);
        incoming = outgoing;
    }
    return sum;
}

enum class plane_source { good, flat, outside_grid };

// Gives `polygon` the plane of a contour: through its first vertex, with the normal on the side
// from which the contour runs counter-clockwise. `path` becomes the contour in that plane's frame.
// Unless the result is `good`, the plane of `polygon` is left in an unspecified state.
plane_source take_plane_of(ox_polygon_data& polygon, const ox_3dvector* contour, unsigned int size,
                           grid_path& path) {
    polygon.point = contour[0];
    polygon.normal = sum_of_edge_crosses(contour, size);
    const float length = polygon.normal.size();
    if (length < shortest_contour_normal) {
        return plane_source::flat;
    }
    if (!std::isfinite(length)) {
        return plane_source::outside_grid;
    }
    polygon.normal.normalize();
    polygon.normal.build_axis(polygon.dx, polygon.dy);
    if (!path.take(polygon, contour, size)) {
        return plane_source::outside_grid;
    }
    if (!path.is_counter_clockwise()) {
        polygon.normal = -polygon.normal;
        polygon.normal.build_axis(polygon.dx, polygon.dy);
        path.take(polygon, contour, size);
    }
    return plane_source::good;
}

// Takes the plane of the first pending contour that fits the grid. False when there is none, or
// when that contour is flat: the polygon then has a zero normal. `path` becomes that contour.
bool derive_plane(ox_polygon_data& polygon, grid_path& path) {
    const ox_3dvector point_before = polygon.point;
    const ox_3dvector* contour = polygon.pending_vertices.get_data();
    plane_source source = plane_source::outside_grid;
    for (const unsigned int size : polygon.pending_sizes) {
        source = take_plane_of(polygon, contour, size, path);
        if (source != plane_source::outside_grid) {
            break;
        }
        contour += size;
    }
    polygon.plane_defined = source == plane_source::good;
    if (source != plane_source::good) {
        polygon.normal = ox_3dvector();
    }
    if (source == plane_source::outside_grid) {
        polygon.point = point_before;
    }
    return polygon.plane_defined;
}

// The first contour is mostly the only one: its list gets no room to spare.
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

// The triangle stands as it was given: it is not projected on the plane.
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

// A lone contour is the most common of all, and mostly one that need not be merged with itself.
// `path` is that contour if it has points.
bool take_single_contour(ox_polygon_data& polygon, grid_path& path) {
    if (polygon.contour_sizes.size() != 0 || polygon.pending_sizes.size() != 1) {
        return false;
    }
    const bool is_on_grid =
        path.size() > 0 ||
        path.take(polygon, polygon.pending_vertices.get_data(), polygon.pending_sizes[0]);
    monotone_contour contour;
    if (!is_on_grid || !read_monotone_contour(path.data(), path.size(), contour)) {
        return false;
    }
    contour_lists made(contour.size, std::move(polygon.pending_vertices),
                       std::move(polygon.pending_sizes));
    made.append(polygon, contour, false, -1);
    made.move_to(polygon);
    return true;
}

void unite_with_pending(ox_polygon_data& polygon) {
    grid_contours contours;
    contours.append(polygon, polygon.contour_vertices, polygon.contour_sizes);
    contours.append(polygon, polygon.pending_vertices, polygon.pending_sizes);
    combine_on_grid(polygon, ClipperLib::ctUnion, contours, grid_contours());
}

void merge_pending(ox_polygon_data& polygon) {
    if (polygon.pending_vertices.size() < fewest_pending_vertices) {
        drop_pending(polygon);
        return;
    }
    polygon.bounding_box.clear();
    grid_path path;
    if (!polygon.plane_defined && !derive_plane(polygon, path)) {
        drop_pending(polygon);
        return;
    }
    if (polygon.pending_vertices.size() == fewest_pending_vertices) {
        replace_by_pending_triangle(polygon);
        return;
    }
    if (!take_single_contour(polygon, path)) {
        unite_with_pending(polygon);
    }
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

void ox_polygon_data::append_contour(const ox_3dvector* vertices, unsigned int size, bool outer,
                                     int parent) {
    append(contour_vertices, vertices, static_cast<int>(size));
    contour_orientations.push_right(outer);
    contour_parents.push_right(parent);
    contour_sizes.push_right(size); // last: no size without its vertices, even without memory
}

void ox_polygon_data::clear_contours() {
    contour_vertices.clear();
    contour_sizes.clear();
    contour_orientations.clear();
    contour_parents.clear();
}

void ox_polygon_data::forget_derived() {
    tesselation_computed = false;
    bounding_box.clear();
}

void ox_polygon_data::drop_region_unless_finite() {
    const bool finite_plane =
        is_finite(point) && is_finite(normal) && is_finite(dx) && is_finite(dy);
    if (finite_plane && std::all_of(contour_vertices.begin(), contour_vertices.end(), is_finite)) {
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
