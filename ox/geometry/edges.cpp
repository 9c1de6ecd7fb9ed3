#include <ox/geometry/ox_3dvector.h>

#include <ox/geometry/internal/tolerances.h>

namespace ox {

using namespace internal;

namespace {

bool is_near_end(const ox_3dvector& p, const ox_3dvector& end, float tolerance) {
    return p.manhattan_distance_to(end) < edge_end_manhattan_factor * tolerance &&
           p.distance_to(end) < tolerance;
}

/// True if p lies on the edge from a to b and, if so, gives the point of the edge that
/// stands for it: an end, or the foot on the line. `on_edge` is written only then.
bool find_on_edge(const ox_3dvector& p, const ox_3dvector& a, const ox_3dvector& b, float tolerance,
                  ox_3dvector& on_edge) {
    if (is_near_end(p, a, tolerance)) {
        on_edge = a;
        return true;
    }
    if (is_near_end(p, b, tolerance)) {
        on_edge = b;
        return true;
    }

    ox_3dvector direction = b - a;
    const float length = direction.normalize();
    if (length < shortest_edge_factor * tolerance) {
        return false;
    }
    const ox_3dvector from_a = p - a;
    const float s = ox_dot(from_a, direction);
    if (s < -tolerance || s > length + tolerance) {
        return false;
    }
    if (!(ox_cross(from_a, direction).size() <= tolerance)) {
        return false;
    }
    on_edge = a + direction * s;
    return true;
}

} // namespace

bool ox_3dvector::is_on_edge(const ox_3dvector& a, const ox_3dvector& b, float tolerance) const {
    ox_3dvector on_edge;
    return find_on_edge(*this, a, b, tolerance, on_edge);
}

bool ox_3dvector::project_on_edge(const ox_3dvector& a, const ox_3dvector& b, float tolerance) {
    ox_3dvector on_edge;
    const bool found = find_on_edge(*this, a, b, tolerance, on_edge);
    if (found) {
        *this = on_edge;
    }
    return found;
}

} // namespace ox
