#include <examples/mesh_tool/source.h>
#include <examples/support/input_file.h>

#include <cmath>
#include <filesystem>

namespace mesh_tool {

namespace {

/// A point of the hills: two waves, and a ridge that rises to the north-east.
ox::ox_3dvector hill(int i, int j, int n) {
    const double u = 6.283185307179586 * i / n;
    const double v = 6.283185307179586 * j / n;
    const double waves = 0.04 * std::sin(3 * u) * std::cos(2 * v) + 0.015 * std::sin(7 * (u + v));
    const double ridge = 0.10 * std::exp(-0.6 * (u - v) * (u - v)) * (u + v) / 12.6;
    return {static_cast<float>(i), static_cast<float>(j), static_cast<float>(n * (waves + ridge))};
}

} // namespace

ox::ox_triangle_set read_mesh(const std::string& path) {
    ox_examples::require_readable(path);
    ox::ox_triangle_set mesh;
    const bool raw = std::filesystem::path(path).extension() == ".raw";
    if (!(raw ? mesh.read_binary_raw(path.c_str()) : mesh.read_binary_stl(path.c_str()))) {
        throw ox_examples::input_error(path + ": no sound " + (raw ? "raw" : "binary STL") +
                                       " file");
    }
    return mesh;
}

ox::ox_triangle_set height_field(int n) {
    const unsigned int nb_triangles =
        2 * static_cast<unsigned int>(n) * static_cast<unsigned int>(n);
    ox::ox_triangle_set mesh(3 * nb_triangles, nb_triangles);
    ox::ox_3dvector* vertex = mesh.get_vertices();
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < n; ++i) {
            const ox::ox_3dvector corners[] = {hill(i, j, n), hill(i + 1, j, n),
                                               hill(i + 1, j + 1, n), hill(i, j + 1, n)};
            for (const int corner : {0, 1, 2, 0, 2, 3}) {
                *vertex++ = corners[corner];
            }
        }
    }
    for (unsigned int i = 0; i < 3 * nb_triangles; ++i) {
        mesh.get_triangles()[i] = i;
    }
    return mesh;
}

} // namespace mesh_tool
