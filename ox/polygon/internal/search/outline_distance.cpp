#include <ox/polygon/internal/search/outline_distance.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include <ox/internal/contour_view.h>
#include <ox/polygon/internal/tolerances.h>

namespace ox::internal {

namespace {

/// The distances are sums of a dozen roundings of lengths up to the diagonal of the bounds, each
/// by 2^-24 of its value at most: 26 such errors were counted, and 32 are allowed.
constexpr double relative_rounding_error = 32.0 / 16777216.0;

double diagonal_of(const ox_list<ox_2dvector>& vertices) {
    ox_2dvector low = vertices[0];
    ox_2dvector high = vertices[0];
    for (const ox_2dvector& vertex : vertices) {
        low = ox_2dvector(std::min(low.x, vertex.x), std::min(low.y, vertex.y));
        high = ox_2dvector(std::max(high.x, vertex.x), std::max(high.y, vertex.y));
    }
    return std::hypot(static_cast<double>(high.x) - low.x, static_cast<double>(high.y) - low.y);
}

} // namespace

outline_distance::outline_distance(const ox_list<ox_2dvector>& vertices,
                                   const ox_list<unsigned int>& sizes) {
    if (vertices.size() < 1) {
        return;
    }
    error = relative_rounding_error * diagonal_of(vertices);
    for (const contour_view contour : contour_views(sizes)) {
        for (int i = contour.first; i < contour.end; ++i) {
            sides.push_back(make_side(vertices[contour.before(i)], vertices[i]));
        }
    }
}

outline_distance::side_indices outline_distance::all_sides() const {
    side_indices all(sides.size());
    std::iota(all.begin(), all.end(), 0);
    return all;
}

float outline_distance::rounded(const ox_2dvector& q, const side_indices& among) const {
    float vertex_square = std::numeric_limits<float>::max();
    float perpendicular = std::numeric_limits<float>::max();
    for (const int i : among) {
        const side& s = sides[static_cast<std::size_t>(i)];
        const ox_2dvector from_end = q - s.end;
        vertex_square = std::min(vertex_square, ox_dot(from_end, from_end));
        const ox_2dvector from_start = q - s.start;
        const float foot = ox_dot(from_start, s.direction);
        if (s.counts && foot >= 0.0f && foot <= s.length) {
            const float offset = ox_dot(from_start, s.direction.normal());
            perpendicular = std::min(perpendicular, std::fabs(offset));
        }
    }
    const float vertex = static_cast<float>(std::sqrt(static_cast<double>(vertex_square)));
    return std::min(vertex, perpendicular);
}

double outline_distance::exact(const exact_point& q, const side_indices& among) const {
    double square = std::numeric_limits<double>::infinity();
    for (const int i : among) {
        square = std::min(square, exact_square(sides[static_cast<std::size_t>(i)], q));
    }
    return std::sqrt(square);
}

outline_distance::side_indices outline_distance::nearest_within(const exact_point& centre,
                                                                double radius, double distance,
                                                                const side_indices& among) const {
    const double reach = distance + 2.0 * radius + 4.0 * error;
    side_indices nearest;
    for (const int i : among) {
        if (exact_square(sides[static_cast<std::size_t>(i)], centre) <= reach * reach) {
            nearest.push_back(i);
        }
    }
    return nearest;
}

outline_distance::side outline_distance::make_side(const ox_2dvector& start,
                                                   const ox_2dvector& end) {
    side s;
    s.start = start;
    s.end = end;
    s.direction = end - start;
    s.length = s.direction.normalize();
    s.counts = s.length >= shortest_side_of_center_distance;
    return s;
}

double outline_distance::exact_square(const side& s, const exact_point& q) {
    const double end_u = q.u - s.end.x;
    const double end_v = q.v - s.end.y;
    if (!s.counts) {
        return end_u * end_u + end_v * end_v;
    }
    const double side_u = static_cast<double>(s.start.x) - s.end.x;
    const double side_v = static_cast<double>(s.start.y) - s.end.y;
    const double along = (end_u * side_u + end_v * side_v) / (side_u * side_u + side_v * side_v);
    const double t = std::clamp(along, 0.0, 1.0);
    const double u = end_u - t * side_u;
    const double v = end_v - t * side_v;
    return u * u + v * v;
}

} // namespace ox::internal
