#include <examples/mesh_tool/measures.h>

#include <ox/mesh/ox_mesh.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace mesh_tool {

namespace {

template <typename T>
ox::ox_list<T> list_of(const T* values, unsigned int count) {
    ox::ox_list<T> list(static_cast<int>(count));
    std::copy(values, values + count, list.get_data());
    return list;
}

double triangle_area(const ox::ox_3dvector& a, const ox::ox_3dvector& b, const ox::ox_3dvector& c) {
    const double ux = double{b.x} - a.x, uy = double{b.y} - a.y, uz = double{b.z} - a.z;
    const double vx = double{c.x} - a.x, vy = double{c.y} - a.y, vz = double{c.z} - a.z;
    const double nx = uy * vz - uz * vy, ny = uz * vx - ux * vz, nz = ux * vy - uy * vx;
    return std::sqrt(nx * nx + ny * ny + nz * nz) / 2;
}

} // namespace

void require_sound(const ox::ox_triangle_set& mesh) {
    const ox::ox_3dvector* const vertices = mesh.get_vertices();
    for (unsigned int i = 0; i < mesh.get_nb_vertices(); ++i) {
        if (!std::isfinite(vertices[i].x + vertices[i].y + vertices[i].z)) {
            throw std::runtime_error("a vertex is not finite");
        }
    }
    const unsigned int* const indices = mesh.get_triangles();
    const bool all_exist =
        std::all_of(indices, indices + 3 * mesh.get_nb_triangles(),
                    [&](unsigned int index) { return index < mesh.get_nb_vertices(); });
    if (!all_exist) {
        throw std::runtime_error("a triangle names a vertex that is not there");
    }
}

ox::ox_box bounding_box(const ox::ox_triangle_set& mesh) {
    ox::ox_box box;
    for (unsigned int i = 0; i < mesh.get_nb_vertices(); ++i) {
        box.enlarge(mesh.get_vertices()[i]);
    }
    return box;
}

double surface_area(const ox::ox_triangle_set& mesh) {
    const ox::ox_3dvector* const vertices = mesh.get_vertices();
    const unsigned int* const indices = mesh.get_triangles();
    double area = 0;
    for (unsigned int i = 0; i < 3 * mesh.get_nb_triangles(); i += 3) {
        area +=
            triangle_area(vertices[indices[i]], vertices[indices[i + 1]], vertices[indices[i + 2]]);
    }
    return area;
}

bool is_closed(const ox::ox_triangle_set& mesh) {
    ox::ox_mesh sides;
    sides.set_vertices(list_of(mesh.get_vertices(), mesh.get_nb_vertices()));
    sides.set_triangles(list_of(mesh.get_triangles(), 3 * mesh.get_nb_triangles()));
    sides.build_half_edges();
    return sides.is_closed();
}

} // namespace mesh_tool
