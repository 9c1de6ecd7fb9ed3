// Points scattered over a region: on a grid, and at random with uniform density.

#include <cstdint>
#include <limits>
#include <new>
#include <vector>

#include <ox/core/ox_random.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/plane_coordinates.h>
#include <ox/polygon/internal/search/region_rows.h>
#include <ox/polygon/internal/search/weighted_choice.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

using namespace internal;
namespace {

/// The bounds of the contours in the polygon's frame, half a step wider on every side.
ox_box grid_bounds(const ox_polygon_data& polygon, float step) {
    ox_box box;
    for (const ox_2dvector& v : plane_coordinates(polygon)) {
        box.enlarge(ox_3dvector(v.x, v.y, 0.0f));
    }
    box.origin -= ox_3dvector(step / 2.0f, step / 2.0f, 0.0f);
    box.size += ox_3dvector(step, step, 0.0f);
    return box;
}

/// The coordinates from `first` on in increments of `step`, below `end`. A step too small to
/// advance a coordinate ends them with it, so there are less than 2^27 for any step.
std::vector<float> grid_coordinates(float first, float end, float step) {
    std::vector<float> coordinates;
    float next = first;
    while (next < end && (coordinates.empty() || next > coordinates.back())) {
        coordinates.push_back(next);
        next = next + step;
    }
    return coordinates;
}

struct row_range {
    float row;
    column_range columns;
};

/// Collects what lies inside; an allocation failure when it is more than a list can hold.
std::vector<row_range> find_inside(region_rows& region, const std::vector<float>& rows,
                                   int& count) {
    std::int64_t found = 0;
    std::vector<row_range> ranges;
    for (const float row : rows) {
        for (const column_range& range : region.find_inside(row)) {
            ranges.push_back({row, range});
            found += range.last - range.first;
        }
        if (found > std::numeric_limits<int>::max()) {
            throw std::bad_array_new_length();
        }
    }
    count = static_cast<int>(found);
    return ranges;
}

/// A triangle by a corner and the two sides that start there.
struct spanned_triangle {
    ox_3dvector corner;
    ox_3dvector first_side;
    ox_3dvector second_side;
};

std::vector<spanned_triangle> weigh_triangles(const ox_polygon_data& polygon,
                                              weighted_choice& by_area) {
    std::vector<spanned_triangle> spanned;
    const ox_list<unsigned int>& triangles = polygon.tesselation_triangles;
    for (int i = 0; i + 2 < triangles.size(); i += 3) {
        const ox_3dvector& a = polygon.tesselation_vertices[static_cast<int>(triangles[i])];
        const ox_3dvector& b = polygon.tesselation_vertices[static_cast<int>(triangles[i + 1])];
        const ox_3dvector& c = polygon.tesselation_vertices[static_cast<int>(triangles[i + 2])];
        by_area.add(ox_polygon::compute_triangle_area(a, b, c));
        spanned.push_back({a, b - a, c - a});
    }
    by_area.make_guide();
    return spanned;
}

} // namespace

ox_list<ox_3dvector> ox_polygon::regular_distribution(float step) {
    data->compute_contours();
    ox_list<ox_3dvector> points;
    if (data->contour_vertices.size() < 1 || !(step > 0.0f)) {
        return points;
    }
    const ox_box bounds = grid_bounds(*data, step);
    const ox_3dvector end = bounds.origin + bounds.size;
    const std::vector<float> columns = grid_coordinates(bounds.origin.x, end.x, step);
    const std::vector<float> rows = grid_coordinates(bounds.origin.y, end.y, step);
    if (columns.empty() || rows.empty()) {
        return points;
    }
    region_rows region(*data, columns, rows);
    if (!region.can_be_found()) {
        return points;
    }
    int count = 0;
    const std::vector<row_range> inside = find_inside(region, rows, count);
    points.set_size(count);
    ox_3dvector* point = points.get_data();
    for (const row_range& range : inside) {
        for (int c = range.columns.first; c < range.columns.last; ++c) {
            *point++ = region.at(columns[static_cast<std::size_t>(c)], range.row);
        }
    }
    return points;
}

ox_list<ox_3dvector> ox_polygon::random_distribution(int count, int seed) {
    data->compute_tesselation();
    ox_list<ox_3dvector> points;
    if (data->tesselation_triangles.size() < 3 || count < 1) {
        return points;
    }
    weighted_choice by_area;
    const std::vector<spanned_triangle> triangles = weigh_triangles(*data, by_area);
    const float total = by_area.total();
    ox_random random(seed);
    points.set_size(count);
    for (ox_3dvector& point : points) {
        const spanned_triangle& t = triangles[by_area.find(random.dice_0_1() * total)];
        const float a = random.dice_0_1();
        const float b = random.dice_0_1();
        const bool beyond = a + b > 1.0f; // in the other half of the parallelogram
        point = t.corner + (beyond ? 1.0f - a : a) * t.first_side +
                (beyond ? 1.0f - b : b) * t.second_side;
    }
    return points;
}

} // namespace ox
