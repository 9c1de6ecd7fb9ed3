#include <examples/building/measures.h>

#include <array>
#include <cmath>

namespace building {

namespace {

using vector = std::array<double, 3>;

vector difference(const ox::ox_3dvector& a, const ox::ox_3dvector& b) {
    return {double(a.x) - b.x, double(a.y) - b.y, double(a.z) - b.z};
}

vector cross(const vector& a, const vector& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double dot(const vector& a, const vector& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

} // namespace

measures measure(ox::ox_solid& solid) {
    const ox::ox_list<ox::ox_3dvector>& vertices = solid.get_tesselation_vertices();
    const ox::ox_list<unsigned int>& triangles = solid.get_tesselation_triangles();
    const auto corner = [&](int i) { return vertices[static_cast<int>(triangles[i])]; };

    measures m;
    m.faces = solid.get_faces().size();
    m.triangles = triangles.size() / 3;
    vector sum = {0, 0, 0};
    for (int i = 0; i + 2 < triangles.size(); i += 3) {
        const ox::ox_3dvector a = corner(i);
        const vector twice_area = cross(difference(corner(i + 1), a), difference(corner(i + 2), a));
        m.area += std::sqrt(dot(twice_area, twice_area)) / 2;
        m.volume += dot(difference(a, vertices[0]), twice_area) / 6;
        for (std::size_t k = 0; k < 3; ++k) {
            sum[k] += twice_area[k] / 2;
        }
    }
    m.gap = std::sqrt(dot(sum, sum));
    return m;
}

measures& operator+=(measures& sum, const measures& part) {
    sum.faces += part.faces;
    sum.triangles += part.triangles;
    sum.area += part.area;
    sum.volume += part.volume;
    sum.gap += part.gap;
    return sum;
}

bool is_sound(const measures& m, double expected_volume) {
    // A gap in the surface shifts the volume by the gap times the distance it is seen from, a metre
    // here: the two errors are comparable.
    const double tolerance = surface_tolerance * m.area;
    return m.triangles > 0 && m.gap <= tolerance &&
           std::abs(m.volume - expected_volume) <= tolerance;
}

} // namespace building
