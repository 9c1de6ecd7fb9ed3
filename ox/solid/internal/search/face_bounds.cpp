#include <ox/solid/internal/search/face_bounds.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include <ox/internal/vectors.h>
#include <ox/solid/internal/search/roundings.h>

namespace ox::internal {

namespace {

constexpr float highest = (std::numeric_limits<float>::max)();

double largest_magnitude(double a, double b) {
    return std::max(std::fabs(a), std::fabs(b));
}

} // namespace

face_bounds::face_bounds() : low(highest, highest, highest), high(-highest, -highest, -highest) {}

face_bounds::face_bounds(ox_polygon& face)
    : face_bounds(face.get_contour_vertices().get_data(),
                  static_cast<unsigned int>(face.get_contour_vertices().size())) {}

face_bounds::face_bounds(const ox_3dvector* points, unsigned int count) : face_bounds() {
    for (unsigned int i = 0; i < count; ++i) {
        const ox_3dvector& v = points[i];
        if (!is_finite(v)) {
            low = ox_3dvector(-highest, -highest, -highest);
            high = ox_3dvector(highest, highest, highest);
            return;
        }
        low = ox_3dvector(std::min(low.x, v.x), std::min(low.y, v.y), std::min(low.z, v.z));
        high = ox_3dvector(std::max(high.x, v.x), std::max(high.y, v.y), std::max(high.z, v.z));
    }
}

void face_bounds::enlarge(const face_bounds& other) {
    for (unsigned int axis = 0; axis < 3; ++axis) {
        low[axis] = std::min(low.at(axis), other.low.at(axis));
        high[axis] = std::max(high.at(axis), other.high.at(axis));
    }
}

double face_bounds::get_reach() const {
    double reach = 0.0;
    for (unsigned int axis = 0; axis < 3; ++axis) {
        reach = std::max(reach, largest_magnitude(static_cast<double>(low.at(axis)),
                                                  static_cast<double>(high.at(axis))));
    }
    return reach;
}

double face_bounds::get_square_diagonal() const {
    double square = 0.0;
    for (unsigned int axis = 0; axis < 3; ++axis) {
        square += get_extent(axis) * get_extent(axis);
    }
    return square;
}

bool face_bounds::surely_apart_from(const ox_box& box, int vertex_count) const {
    if (is_empty()) {
        return false;
    }
    // An ox_box may lose a rounding of its far side with every vertex that it grows by.
    const double roundings = static_cast<double>(vertex_count) + spare_roundings;
    for (unsigned int axis = 0; axis < 3; ++axis) {
        const double start = static_cast<double>(low.at(axis));
        const double end = static_cast<double>(high.at(axis));
        const double box_start = static_cast<double>(box.origin.at(axis));
        const double box_end = box_start + static_cast<double>(box.size.at(axis));
        const double magnitude = largest_magnitude(start, end) + std::fabs(box_start) +
                                 std::fabs(static_cast<double>(box.size.at(axis)));
        const double margin = box_rejection_margin + roundings * rounding_allowance * magnitude;
        if (magnitude < largest_safe_magnitude &&
            (start > box_end + margin || box_start > end + margin)) {
            return true;
        }
    }
    return false;
}

bool face_bounds::surely_uncrossed_by(const ox_3dvector& point, const ox_3dvector& normal,
                                      float tolerance) const {
    double lowest = 0.0;
    double highest_distance = 0.0;
    double magnitude = 0.0;
    double spread = 0.0;
    for (unsigned int axis = 0; axis < 3; ++axis) {
        const double from = static_cast<double>(low.at(axis)) - static_cast<double>(point.at(axis));
        const double to = static_cast<double>(high.at(axis)) - static_cast<double>(point.at(axis));
        const double slope = static_cast<double>(normal.at(axis));
        lowest += slope > 0.0 ? from * slope : to * slope;
        highest_distance += slope > 0.0 ? to * slope : from * slope;
        magnitude += largest_magnitude(from, to) * std::fabs(slope);
        spread += largest_magnitude(from, to);
    }
    if (!(magnitude < largest_safe_magnitude && spread < largest_safe_magnitude)) {
        return false;
    }
    const double margin = spare_roundings * rounding_allowance * magnitude + smallest_margin;
    const double border = -static_cast<double>(tolerance);
    return highest_distance + margin < border || lowest - margin >= border;
}

} // namespace ox::internal
