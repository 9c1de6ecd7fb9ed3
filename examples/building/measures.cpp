#include <examples/building/measures.h>

#include <examples/support/double_vector.h>

#include <cmath>

namespace building {

namespace {

using ox_examples::cross;
using ox_examples::difference;
using ox_examples::dot;
using ox_examples::double_vector;

} // namespace

measures measure(ox::ox_solid& solid) {
    const ox::ox_list<ox::ox_3dvector>& vertices = solid.get_tesselation_vertices();
    const ox::ox_list<unsigned int>& triangles = solid.get_tesselation_triangles();
    const auto corner = [&](int i) { return vertices[static_cast<int>(triangles[i])]; };

    measures m;
    m.faces = solid.get_faces().size();
    m.triangles = triangles.size() / 3;
    double_vector sum = {0, 0, 0};
    for (int i = 0; i + 2 < triangles.size(); i += 3) {
        const ox::ox_3dvector a = corner(i);
        const double_vector twice_area =
            cross(difference(corner(i + 1), a), difference(corner(i + 2), a));
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
