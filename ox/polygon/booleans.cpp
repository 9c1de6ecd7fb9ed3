// Union, difference and intersection with another polygon, and the offset of the outline, on the
// integer grid of the polygon that changes.

#include <ox/polygon/internal/clipping/clipping_library.h>
#include <ox/polygon/internal/clipping/contour_combination.h>
#include <ox/polygon/internal/clipping/integer_grid.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/tolerances.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

using namespace internal;
namespace {

ClipperLib::ClipType clip_type(boolean_operation operation) {
    switch (operation) {
    case boolean_operation::subtract:
        return ClipperLib::ctDifference;
    case boolean_operation::intersect:
        return ClipperLib::ctIntersection;
    case boolean_operation::unite:
        break;
    }
    return ClipperLib::ctUnion;
}

ClipperLib::JoinType to_join(int join_type) {
    switch (join_type) {
    case ox_polygon::join_round:
        return ClipperLib::jtRound;
    case ox_polygon::join_miter:
        return ClipperLib::jtMiter;
    default:
        return ClipperLib::jtSquare;
    }
}

bool is_without_contours(const ox_polygon_data& polygon) {
    return polygon.contour_sizes.size() == 0;
}

} // namespace

void ox_polygon_data::combine(const ox_polygon_data& other, boolean_operation operation) {
    grid_contours subjects;
    subjects.append(*this, contour_vertices, contour_sizes);
    grid_contours clips;
    clips.append(*this, other.contour_vertices, other.contour_sizes);
    if (ox_dot(normal, other.normal) < 0.0f) {
        clips.reverse_each();
    }
    combine_contours(*this, clip_type(operation), subjects, clips);
}

void ox_polygon::unites(const ox_polygon& other) {
    data->compute_contours();
    other.data->compute_contours();
    if (is_without_contours(*other.data)) {
        return;
    }
    if (!data->plane_defined) {
        data->set_plane(other.data->point, other.data->normal);
    }
    data->combine(*other.data, boolean_operation::unite);
}

void ox_polygon::substracts(const ox_polygon& other) {
    data->compute_contours();
    other.data->compute_contours();
    if (is_without_contours(*data) || is_without_contours(*other.data)) {
        return;
    }
    data->combine(*other.data, boolean_operation::subtract);
}

void ox_polygon::intersects(const ox_polygon& other) {
    data->compute_contours();
    other.data->compute_contours();
    if (is_without_contours(*data)) {
        return;
    }
    if (is_without_contours(*other.data)) {
        data->clear();
        return;
    }
    data->combine(*other.data, boolean_operation::intersect);
}

void ox_polygon::offset(float distance, int join_type) {
    data->compute_contours();
    if (data->contour_sizes.size() == 0) {
        return;
    }
    grid_contours contours;
    contours.append(*data, data->contour_vertices, data->contour_sizes);
    const double delta = static_cast<double>(distance) / static_cast<double>(grid_unit);
    ClipperLib::PolyTree tree;
    if (offset_contours(contours, to_join(join_type), delta, tree) || distance < 0.0f) {
        rebuild_contours(*data, tree);
    }
}

} // namespace ox
