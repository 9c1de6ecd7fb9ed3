#include <ox/display/ox_snap.h>

#include <cmath>

namespace ox {

namespace {

/// Sine of the angle between two planes below which they are too parallel to snap to their line.
constexpr float parallel_planes_sine = 0.01f;

/// Cosine of the angle between a line and a plane's normal below which the line is too parallel to
/// the plane to snap to their common point.
constexpr float parallel_line_cosine = 0.01f;

} // namespace

ox_snap::ox_snap(const ox_3dvector& point, float snap_tolerance, int degrees_of_freedom,
                 const ox_3dvector& constraint)
    : position(point), freedom(degrees_of_freedom), direction(constraint), reference(point),
      tolerance(snap_tolerance) {}

ox_snap::ox_snap(const ox_snap& other) = default;

ox_snap& ox_snap::operator=(const ox_snap& other) = default;

ox_snap::~ox_snap() = default;

bool ox_snap::check_plane(const ox_3dvector& point, const ox_3dvector& normal) {
    const ox_3dvector p = point; // both may be fields of this snap
    const ox_3dvector n = normal;
    switch (freedom) {
    case 1:
        return snap_to_point(p, n);
    case 2:
        return snap_to_line(p, n);
    default:
        return freedom >= 3 && snap_to_plane(p, n);
    }
}

bool ox_snap::is_within_reach(const ox_3dvector& candidate) const {
    return candidate.distance_to(reference) <= tolerance;
}

bool ox_snap::snap_to_plane(const ox_3dvector& point, const ox_3dvector& normal) {
    const ox_3dvector foot = position - normal * ox_dot(position - point, normal);
    if (!is_within_reach(foot)) {
        return false;
    }
    position = foot;
    freedom = 2;
    direction = normal;
    return true;
}

/// Moves within the first plane, square to the line in which both planes meet.
bool ox_snap::snap_to_line(const ox_3dvector& point, const ox_3dvector& normal) {
    ox_3dvector across = normal - direction * ox_dot(normal, direction);
    if (!(across.normalize() >= parallel_planes_sine)) {
        return false;
    }
    const float distance = ox_dot(point - position, normal) / ox_dot(normal, across);
    const ox_3dvector candidate = position + across * distance;
    if (!is_within_reach(candidate)) {
        return false;
    }
    position = candidate;
    freedom = 1;
    direction = ox_cross(normal, direction);
    direction.normalize();
    return true;
}

bool ox_snap::snap_to_point(const ox_3dvector& point, const ox_3dvector& normal) {
    const float cosine = ox_dot(normal, direction);
    if (!(std::fabs(cosine) >= parallel_line_cosine)) {
        return false;
    }
    const ox_3dvector candidate =
        position + direction * (ox_dot(point - position, normal) / cosine);
    if (!is_within_reach(candidate)) {
        return false;
    }
    position = candidate;
    freedom = 0;
    return true;
}

} // namespace ox
