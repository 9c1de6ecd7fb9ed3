#include "shape_facts.h"

#include <cmath>

namespace bench {
namespace {

// Single precision would lose the areas of long slivers, of which a wall's faces consist.
struct position {
    explicit position(const ox::ox_3dvector& v)
        : x(static_cast<double>(v.x)), y(static_cast<double>(v.y)), z(static_cast<double>(v.z)) {}
    position(double x_, double y_, double z_) : x(x_), y(y_), z(z_) {}

    double x, y, z;
};

position cross(const position& a, const position& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double dot(const position& a, const position& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

position minus(const position& a, const position& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

// Calls `visit` with the corners of every triangle of a polygon or solid.
template <class shape, class visitor>
void visit_triangles(shape& visited, const visitor& visit) {
    const ox::ox_list<ox::ox_3dvector>& vertices = visited.get_tesselation_vertices();
    const ox::ox_list<unsigned int>& triangles = visited.get_tesselation_triangles();
    const auto corner = [&](int i) { return position(vertices[static_cast<int>(triangles[i])]); };
    for (int i = 0; i + 2 < triangles.size(); i += 3) {
        visit(corner(i), corner(i + 1), corner(i + 2));
    }
}

} // namespace

double volume_of(ox::ox_solid& solid) {
    double sum = 0.0;
    visit_triangles(solid, [&](const position& a, const position& b, const position& c) {
        sum += dot(a, cross(b, c));
    });
    return sum / 6.0;
}

double area_of(ox::ox_polygon& polygon) {
    double sum = 0.0;
    visit_triangles(polygon, [&](const position& a, const position& b, const position& c) {
        const position twice = cross(minus(b, a), minus(c, a));
        sum += 0.5 * std::sqrt(dot(twice, twice));
    });
    return sum;
}

double area_across(ox::ox_solid& solid, const ox::ox_3dvector& axis) {
    constexpr float nearly_parallel = 0.999f;
    double sum = 0.0;
    for (ox::ox_polygon* face : solid.get_faces()) {
        if (std::abs(ox::ox_dot(face->get_normal(), axis)) > nearly_parallel) {
            sum += area_of(*face);
        }
    }
    return sum;
}

} // namespace bench
