#include <examples/mesh_tool/obj_file.h>

#include <fstream>
#include <limits>
#include <locale>
#include <stdexcept>

namespace mesh_tool {

void write_obj(const std::string& path, const ox::ox_triangle_set& mesh) {
    std::ofstream file(path);
    file.imbue(std::locale::classic());
    file.precision(std::numeric_limits<float>::max_digits10);
    for (unsigned int i = 0; i < mesh.get_nb_vertices(); ++i) {
        const ox::ox_3dvector& v = mesh.get_vertices()[i];
        file << "v " << v.x << ' ' << v.y << ' ' << v.z << '\n';
    }
    const unsigned int* const indices = mesh.get_triangles();
    for (unsigned int i = 0; i < 3 * mesh.get_nb_triangles(); i += 3) {
        file << "f " << indices[i] + 1 << ' ' << indices[i + 1] + 1 << ' ' << indices[i + 2] + 1
             << '\n';
    }
    file.close();
    if (!file) {
        throw std::runtime_error(path + ": cannot be written");
    }
}

} // namespace mesh_tool
