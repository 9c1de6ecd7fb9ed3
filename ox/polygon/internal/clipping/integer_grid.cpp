#include <ox/polygon/internal/clipping/integer_grid.h>

#include <algorithm>

#include <ox/internal/contour_view.h>
#include <ox/polygon/internal/tolerances.h>

namespace ox::internal {
namespace {

/// Rounds half away from zero. False when the value is not a number or outside the grid: the
/// conversion to an integer would then be undefined.
bool to_grid_unit(float coordinate, ClipperLib::cInt& unit) {
    const float scaled = coordinate / grid_unit;
    const float shifted = scaled > 0.0f ? scaled + 0.5f : scaled - 0.5f;
    if (!(shifted > -grid_end && shifted < grid_end)) {
        return false;
    }
    unit = static_cast<ClipperLib::cInt>(shifted);
    return true;
}

/// Converts the `size` vertices of one contour into the frame of `plane`; the distance from the
/// plane is dropped. False, with unspecified points, when a coordinate is not a number or lies
/// outside the grid.
bool contour_to_grid(const plane_frame& plane, const ox_3dvector* vertices, std::size_t size,
                     ClipperLib::IntPoint* points) {
    for (std::size_t i = 0; i < size; ++i) {
        const ox_3dvector offset = vertices[i] - plane.point;
        if (!to_grid_unit(ox_dot(offset, plane.dx), points[i].X) ||
            !to_grid_unit(ox_dot(offset, plane.dy), points[i].Y)) {
            return false;
        }
    }
    return true;
}

bool runs_counter_clockwise(const ClipperLib::IntPoint* points, std::size_t count) {
    double area = 0.0;
    for (std::size_t i = 0, before = count - 1; i < count; before = i++) {
        const ClipperLib::IntPoint& a = points[before];
        const ClipperLib::IntPoint& b = points[i];
        area += (static_cast<double>(a.X) + static_cast<double>(b.X)) *
                (static_cast<double>(a.Y) - static_cast<double>(b.Y));
    }
    return count < 3 || -area * 0.5 >= 0.0;
}

} // namespace

void grid_contours::append(const plane_frame& plane, const ox_list<ox_3dvector>& vertices,
                           const ox_list<unsigned int>& sizes) {
    std::size_t end = points.size();
    points.resize(end + static_cast<std::size_t>(std::max(vertices.size(), 0)));
    ends.reserve(ends.size() + static_cast<std::size_t>(std::max(sizes.size(), 0)));
    for (const contour_view contour : contour_views(sizes)) {
        const std::size_t size = static_cast<std::size_t>(contour.size());
        if (contour_to_grid(plane, vertices.get_data() + contour.first, size,
                            points.data() + end)) {
            end += size;
            ends.push_back(end);
        }
    }
    points.resize(end);
}

void grid_contours::append(const grid_path& path) {
    points.insert(points.end(), path.data(), path.data() + path.size());
    ends.push_back(points.size());
}

void grid_contours::reverse_each() {
    for (std::size_t i = 0; i < count(); ++i) {
        std::reverse(begin(i), begin(i) + size(i));
    }
}

bool grid_path::take(const plane_frame& plane, const ox_3dvector* vertices, std::size_t size) {
    if (size > few.size()) {
        many.resize(size);
    }
    count = size;
    if (!contour_to_grid(plane, vertices, size, data())) {
        count = 0;
    }
    return count > 0;
}

bool grid_contours::is_counter_clockwise(std::size_t contour) const {
    return runs_counter_clockwise(begin(contour), size(contour));
}

bool grid_path::is_counter_clockwise() const {
    return runs_counter_clockwise(data(), count);
}

} // namespace ox::internal
