#include <examples/view/picking.h>

#include <examples/support/double_vector.h>

namespace view {

namespace {

/// Metres by which a point may lie below the surface that it was found on.
constexpr double surface_tolerance = 0.005;

using ox_examples::cross;
using ox_examples::difference;
using ox_examples::dot;
using ox_examples::double_vector;

/// The distance at which a ray meets a triangle (Moeller and Trumbore), in double precision: a hit
/// must not slip through between two triangles.
std::optional<double> meet(const ox::ox_3dvector& eye, const double_vector& direction,
                           const ox::ox_3dvector& a, const ox::ox_3dvector& b,
                           const ox::ox_3dvector& c) {
    const double_vector ab = difference(b, a);
    const double_vector ac = difference(c, a);
    const double_vector p = cross(direction, ac);
    const double determinant = dot(ab, p);
    if (determinant == 0) {
        return std::nullopt; // seen edge-on
    }
    const double_vector from_a = difference(eye, a);
    const double_vector q = cross(from_a, ab);
    const double u = dot(from_a, p) / determinant;
    const double v = dot(direction, q) / determinant;
    const double distance = dot(ac, q) / determinant;
    if (u < 0 || v < 0 || u + v > 1 || distance <= 0) {
        return std::nullopt;
    }
    return distance;
}

} // namespace

std::optional<hit> first_hit(std::vector<element>& elements, const ox::ox_3dvector& eye,
                             const ox::ox_3dvector& direction) {
    const double_vector ray = difference(direction, ox::ox_3dvector());
    std::optional<hit> nearest;
    for (element& e : elements) {
        const ox::ox_list<ox::ox_3dvector>& vertices = e.solid.get_tesselation_vertices();
        const ox::ox_list<unsigned int>& triangles = e.solid.get_tesselation_triangles();
        const auto corner = [&](int i) { return vertices[static_cast<int>(triangles[i])]; };
        for (int i = 0; i + 2 < triangles.size(); i += 3) {
            const auto distance = meet(eye, ray, corner(i), corner(i + 1), corner(i + 2));
            if (distance && (!nearest || *distance < nearest->distance)) {
                nearest = hit{eye + direction * static_cast<float>(*distance), *distance, e.name};
            }
        }
    }
    return nearest;
}

bool is_visible(std::vector<element>& elements, const ox::ox_3dvector& eye,
                const ox::ox_3dvector& point) {
    ox::ox_3dvector direction = point - eye;
    const double distance = double{direction.size()};
    direction.normalize();
    const std::optional<hit> obstacle = first_hit(elements, eye, direction);
    return !obstacle || obstacle->distance >= distance - surface_tolerance;
}

} // namespace view
