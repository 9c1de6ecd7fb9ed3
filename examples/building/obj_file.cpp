#include <examples/building/obj_file.h>

#include <fstream>
#include <limits>
#include <locale>
#include <stdexcept>

namespace building {

namespace {

/// Writes one element; its vertices are numbered from `first` on. Returns the next free number.
unsigned int write_element(std::ostream& file, element& e, unsigned int first) {
    const ox::ox_list<ox::ox_3dvector>& vertices = e.solid.get_tesselation_vertices();
    const ox::ox_list<unsigned int>& triangles = e.solid.get_tesselation_triangles();
    file << "g " << e.name << '\n';
    for (const ox::ox_3dvector& v : vertices) {
        file << "v " << v.x << ' ' << v.y << ' ' << v.z << '\n';
    }
    for (int i = 0; i + 2 < triangles.size(); i += 3) {
        file << "f " << first + triangles[i] << ' ' << first + triangles[i + 1] << ' '
             << first + triangles[i + 2] << '\n';
    }
    return first + static_cast<unsigned int>(vertices.size());
}

} // namespace

void write_obj(const std::string& path, std::vector<element>& elements) {
    std::ofstream file(path);
    file.imbue(std::locale::classic());
    file.precision(std::numeric_limits<float>::max_digits10);
    unsigned int next = 1;
    for (element& e : elements) {
        next = write_element(file, e, next);
    }
    file.close();
    if (!file) {
        throw std::runtime_error(path + ": cannot be written");
    }
}

} // namespace building
