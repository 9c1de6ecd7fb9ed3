// The plane of a polygon: setting and turning it, transformations, and the side from which a
// contour is looked at.

#include <algorithm>
#include <utility>

#include <ox/internal/contour_view.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/tolerances.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

using namespace internal;
namespace {

void reverse_each_contour(ox_polygon_data& polygon) {
    ox_3dvector* const vertices = polygon.contour_vertices.get_data();
    for (const contour_view contour : contour_views(polygon.contour_sizes)) {
        std::reverse(vertices + contour.first, vertices + contour.end);
    }
}

void rewind_triangles(ox_list<unsigned int>& triangles) {
    for (int i = 0; i + 2 < triangles.size(); i += 3) {
        std::swap(triangles[i + 1], triangles[i + 2]);
    }
}

void project_on_plane(const ox_polygon_data& plane, ox_list<ox_3dvector>& vertices) {
    for (ox_3dvector& v : vertices) {
        v = v - plane.normal * ox_dot(v - plane.point, plane.normal);
    }
}

/// Brings contours and triangles along to a plane that was just set.
void follow_plane(ox_polygon_data& polygon, bool flip) {
    if (flip) {
        reverse_each_contour(polygon);
    }
    project_on_plane(polygon, polygon.contour_vertices);
    polygon.bounding_box.clear();
    if (polygon.tesselation_computed) {
        if (flip) {
            rewind_triangles(polygon.tesselation_triangles);
        }
        project_on_plane(polygon, polygon.tesselation_vertices);
    }
}

/// Sets normal and frame. False when the normal is too short, or is the one the polygon has:
/// nothing is to follow then.
bool turn_plane(ox_polygon_data& polygon, ox_3dvector normal, bool& flip) {
    if (normal.size() < shortest_plane_normal) {
        return false;
    }
    normal.normalize();
    if (polygon.plane_defined && normal == polygon.normal) {
        return false;
    }
    flip = ox_dot(normal, polygon.normal) < 0.0f;
    polygon.turn_to(normal);
    polygon.plane_defined = true;
    return true;
}

/// The next vertex after `from` that differs from `origin`, or `end` when the walk comes back
/// there first.
int next_different(const ox_list<ox_3dvector>& contour, int from, const ox_3dvector& origin,
                   int end) {
    const int n = contour.size();
    int j = (from + 1) % n;
    while (j != end && contour[j] == origin) {
        j = (j + 1) % n;
    }
    return j;
}

} // namespace

void ox_polygon_data::set_plane(const ox_3dvector& new_point, ox_3dvector new_normal) {
    tell_change();
    point = new_point;
    bool flip = false;
    if (turn_plane(*this, new_normal, flip)) {
        follow_plane(*this, flip);
    }
    drop_region_unless_finite();
}

const ox_3dvector& ox_polygon::get_normal() const {
    data->compute_contours();
    return data->normal;
}

const ox_3dvector& ox_polygon::get_point() const {
    data->compute_contours();
    return data->point;
}

void ox_polygon::set_normal(const ox_3dvector& normal) {
    if (normal.size() < shortest_given_normal) {
        return;
    }
    data->set_plane(data->point, normal);
}

void ox_polygon::set_point(const ox_3dvector& point) {
    if (data->plane_defined) {
        data->set_plane(point, data->normal);
    } else {
        data->tell_change();
        data->point = point;
    }
}

void ox_polygon::reverse() {
    data->compute_contours();
    data->tell_change();
    data->normal = -data->normal;
    data->dy = -data->dy;
    reverse_each_contour(*data);
    rewind_triangles(data->tesselation_triangles);
}

void ox_polygon::matrix_transform(ox_matrix& m) {
    data->compute_contours();
    data->tell_change();
    data->point = m.transform_point(data->point);
    for (ox_3dvector& v : data->contour_vertices) {
        v = m.transform_point(v);
    }
    data->normal = m.transform_vector(data->normal);
    data->dx = m.transform_vector(data->dx);
    data->dy = m.transform_vector(data->dy);
    data->forget_derived();
    data->drop_region_unless_finite();
}

int ox_polygon::is_clockwise(const ox_list<ox_3dvector>& contour, const ox_3dvector& normal) {
    ox_3dvector sum;
    const int n = contour.size();
    int i = 0;
    for (int steps = 0; steps < n;) {
        const int j = next_different(contour, i, contour[i], i);
        const int k = j == i ? i : next_different(contour, j, contour[j], i);
        if (k == i) {
            return 0;
        }
        sum += ox_cross(contour[k] - contour[j], contour[j] - contour[i]);
        steps += j > i ? j - i : j - i + n;
        i = j;
    }
    return ox_dot(sum, normal) > 0.0f ? 1 : -1;
}

} // namespace ox
