#include <algorithm>
#include <cmath>
#include <vector>

#include <ox/internal/vectors.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/tolerances.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

namespace {

// A point where the section line crosses the outline.
struct sortable_sp {
    ox_3dvector point;
    bool flag; // alternates along the line where it enters and leaves the region
    float key; // position along the line
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

struct contour_view {
    const ox_3dvector* vertices;
    int size;
    bool outer;

    const ox_3dvector& operator[](int i) const { return vertices[i % size]; }
};

std::vector<int> sides_of(const contour_view& contour, const section_plane& plane) {
    std::vector<int> sides;
    for (int i = 0; i < contour.size; ++i) {
        sides.push_back(plane.side_of(contour[i]));
    }
    return sides;
}

// Records the crossings of one contour: where it passes through a vertex, and inside its edges.
void record_crossings(const contour_view& contour, const section_plane& plane,
                      std::vector<sortable_sp>& records) {
    const std::vector<int> sides = sides_of(contour, plane);
    const auto side = [&](int i) { return sides[static_cast<std::size_t>(i % contour.size)]; };
    const int reference = contour.outer ? -1 : 1;
    for (int k = 0; k < contour.size; ++k) {
        const int before = side(k);
        const int a = side(k + 1);
        const int b = side(k + 2);
        if (a == 0 && b != 0 && before != b) {
            const bool flag = before == 0 ? b != reference : before == reference;
            records.push_back({contour[k + 1], flag, 0.0f});
        } else if (a * b < 0) {
            records.push_back({plane.meet(contour[k + 1], contour[k + 2]), a == reference, 0.0f});
        }
    }
}

std::vector<sortable_sp> all_crossings(const ox_polygon_data& polygon, const section_plane& plane) {
    std::vector<sortable_sp> records;
    int first = 0;
    for (int i = 0; i < polygon.contour_sizes.size(); ++i) {
        const int size = static_cast<int>(polygon.contour_sizes[i]);
        record_crossings(
            {polygon.contour_vertices.get_data() + first, size, polygon.contour_orientations[i]},
            plane, records);
        first += size;
    }
    return records;
}

// Sorts the records along the line. Equal keys keep the order in which they were made. Returns
// false when a key is not a number.
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
