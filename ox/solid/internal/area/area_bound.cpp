#include <ox/solid/internal/area/area_bound.h>

#include <algorithm>
#include <cmath>

#include <ox/core/ox_list.h>
#include <ox/internal/wide_vector.h>
#include <ox/solid/internal/area/facade.h>
#include <ox/solid/internal/area/kept_axes.h>
#include <ox/solid/internal/area/limits.h>
#include <ox/solid/internal/search/face_bounds.h>

namespace ox::internal {

namespace {

/// True if no other contour meets the bounds of the first one, or spoils the sum of the areas.
bool is_first_contour_alone(ox_polygon& polygon, const face_bounds& first) {
    const ox_list<unsigned int>& sizes = polygon.get_contour_sizes();
    const kept_axes axes(polygon.get_normal());
    const ox_3dvector* vertex = polygon.get_contour_vertices().get_data() + sizes[0];
    for (int i = 1; i < sizes.size(); ++i) {
        const face_bounds other(vertex, sizes[i]);
        if (!axes.are_apart(first, other, 0.0) || !(other.get_reach() < largest_heron_reach)) {
            return false;
        }
        vertex += sizes[i];
    }
    return true;
}

/// The length of the vector area of a contour, in double precision. Triangles that fill the contour
/// have the same vector area together, so their areas sum up to no less.
double measure_vector_area(const ox_3dvector* vertices, unsigned int size) {
    wide_vector sum;
    for (unsigned int i = 1; i + 1 < size; ++i) {
        const wide_vector a = to_wide(vertices[i]) - to_wide(vertices[0]);
        const wide_vector b = to_wide(vertices[i + 1]) - to_wide(vertices[0]);
        sum = sum + cross(a, b);
    }
    return 0.5 * length(sum);
}

/// True if the first contour alone has more area than that, as it has few vertices and no other
/// contour near it. Its triangles are then so few that one of them is too large to be flat: flat
/// triangles may lose all of their area in Heron's formula.
bool is_first_contour_above(ox_polygon& polygon, float area) {
    const ox_list<unsigned int>& sizes = polygon.get_contour_sizes();
    if (sizes[0] > largest_bounded_contour) {
        return false;
    }
    const unsigned int n = sizes[0];
    const ox_3dvector* const vertices = polygon.get_contour_vertices().get_data();
    const face_bounds bounds(vertices, n);
    const double reach = bounds.get_reach();
    const double square_diagonal = bounds.get_square_diagonal();
    // Where rounding lets the outline overlap itself, that much is filled evenly, so not at all.
    const double overlap = n * std::sqrt(square_diagonal) * overlap_rounding * reach;
    // A triangulation has fewer than two triangles per vertex; n sides cross fewer than
    // n (n - 3) / 2 times.
    const double triangles = static_cast<double>(n) * static_cast<double>(n);
    const double largest = (measure_vector_area(vertices, n) - overlap) / triangles;
    return reach < largest_heron_reach && largest > flat_triangle_share * square_diagonal &&
           largest > smallest_heron_share * static_cast<double>(area) &&
           is_first_contour_alone(polygon, bounds);
}

} // namespace

bool is_area_surely_above(ox_polygon& polygon, float area) {
    if (polygon.get_contour_sizes().size() == 0) {
        return false;
    }
    return is_first_contour_above(polygon, area) ||
           (area <= largest_facade_limit && is_facade_with_area(polygon));
}

} // namespace ox::internal
