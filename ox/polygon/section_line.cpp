#include <algorithm>
#include <cmath>
#include <vector>

#include <ox/internal/contour_view.h>
#include <ox/internal/vectors.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/tolerances.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

using namespace internal;

namespace {

/// A point where the section line crosses the outline.
struct sortable_sp {
    ox_3dvector point;
    bool flag; ///< alternates along the line where it enters and leaves the region
    float key; ///< position along the line
};

struct section_plane {
    ox_3dvector point;
    ox_3dvector normal;

    // The side of the plane a vertex lies on: -1, 0 or 1, without tolerance.
    int side_of(const ox_3dvector& vertex) const {
        const float distance = ox_dot(vertex - point, normal);
        return distance < 0.0f ? -1 : (distance > 0.0f ? 1 : 0);
    }

    ox_3dvector meet(const ox_3dvector& a, const ox_3dvector& b) const {
        const float t = ox_dot(point - a, normal) / ox_dot(b - a, normal);
        return a + t * (b - a);
    }
};

/// Records the crossings of one contour: where it passes through a vertex, and inside its edges.
void record_crossings(const ox_list<ox_3dvector>& vertices, const contour_view& contour, bool outer,
                      const section_plane& plane, std::vector<sortable_sp>& records) {
    const int reference = outer ? -1 : 1;
    int before = plane.side_of(vertices[contour.first]);
    int i = contour.after(contour.first);
    int a = plane.side_of(vertices[i]);
    for (int k = 0; k < contour.size(); ++k) {
        const int next = contour.after(i);
        const int b = plane.side_of(vertices[next]);
        if (a == 0 && b != 0 && before != b) {
            const bool flag = before == 0 ? b != reference : before == reference;
            records.push_back({vertices[i], flag, 0.0f});
        } else if (a * b < 0) {
            records.push_back({plane.meet(vertices[i], vertices[next]), a == reference, 0.0f});
        }
        before = a;
        a = b;
        i = next;
    }
}

std::vector<sortable_sp> all_crossings(const ox_polygon_data& polygon, const section_plane& plane) {
    std::vector<sortable_sp> records;
    for (const contour_view contour : contour_views(polygon.contour_sizes)) {
        record_crossings(polygon.contour_vertices, contour,
                         polygon.contour_orientations[contour.index], plane, records);
    }
    return records;
}

/// Sorts the records along the line. Equal keys keep the order in which they were made. Returns
/// false when a key is not a number.
bool sort_along(const ox_3dvector& direction, std::vector<sortable_sp>& records) {
    const ox_3dvector start = records.front().point;
    for (sortable_sp& record : records) {
        record.key = ox_dot(record.point - start, direction);
        if (std::isnan(record.key)) {
            return false;
        }
    }
    std::stable_sort(records.begin(), records.end(),
                     [](const sortable_sp& a, const sortable_sp& b) { return b.key > a.key; });
    return true;
}

bool alternate(const std::vector<sortable_sp>& records) {
    for (std::size_t i = 0; i + 1 < records.size(); i += 2) {
        if (records[i].flag == records[i + 1].flag) {
            return false;
        }
    }
    return true;
}

} // namespace

ox_list<ox_3dvector> ox_polygon::intersect_by_plane(const ox_3dvector& point,
                                                    const ox_3dvector& normal) {
    ox_list<ox_3dvector> points;
    data->compute_contours();
    const section_plane plane = {point, normal};
    const float cosine = ox_dot(normal, data->normal);
    if (!is_finite(point) || !is_finite(normal) || std::fabs(cosine) > parallel_section_cosine) {
        return points;
    }
    std::vector<sortable_sp> records = all_crossings(*data, plane);
    if (records.empty() || records.size() % 2 != 0) {
        return points;
    }
    ox_3dvector direction = ox_cross(normal, data->normal);
    direction.normalize();
    if (!sort_along(direction, records) || !alternate(records)) {
        return points;
    }
    for (const sortable_sp& record : records) {
        points.push_right(record.point);
    }
    return points;
}

} // namespace ox
