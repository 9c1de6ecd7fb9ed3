#include "mesh_support.h"

#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include <ox/core/ox_log.h>

namespace mesh_support {

namespace {

/// A path that no other test process and no other call gets.
std::string new_path() {
    static const std::filesystem::path folder = [] {
        std::random_device random;
        const std::string name =
            "ox_mesh_" + std::to_string(random()) + "_" + std::to_string(random());
        std::filesystem::path made = std::filesystem::temp_directory_path() / name;
        std::filesystem::create_directory(made);
        return made;
    }();
    static const struct remover {
        ~remover() { std::filesystem::remove_all(folder); }
    } at_end;
    static int count = 0;
    return (folder / std::to_string(count++)).string();
}

} // namespace

std::string bytes_of(unsigned int number) {
    std::string bytes(4, '\0');
    std::memcpy(bytes.data(), &number, 4);
    return bytes;
}

std::string bytes_of(const ox_3dvector& v) {
    std::string bytes(12, '\0');
    std::memcpy(bytes.data(), &v, 12);
    return bytes;
}

std::string stl_bytes(const plain_mesh& mesh, unsigned int count) {
    std::string bytes = std::string(80, 'h') + bytes_of(count);
    for (std::size_t i = 0; i + 2 < mesh.triangles.size(); i += 3) {
        bytes += bytes_of(ox_3dvector(9.f, 9.f, 9.f));
        for (std::size_t corner = i; corner < i + 3; ++corner) {
            bytes += bytes_of(mesh.vertices[mesh.triangles[corner]]);
        }
        bytes += "at";
    }
    return bytes;
}

std::string stl_bytes(const plain_mesh& mesh) {
    return stl_bytes(mesh, static_cast<unsigned int>(mesh.triangles.size() / 3));
}

std::string raw_bytes(const plain_mesh& mesh, unsigned int nb_vertices, unsigned int nb_triangles) {
    std::string bytes = "binaryra" + bytes_of(nb_vertices) + bytes_of(nb_triangles);
    for (const ox_3dvector& vertex : mesh.vertices) {
        bytes += bytes_of(vertex);
    }
    for (const unsigned int index : mesh.triangles) {
        bytes += bytes_of(index);
    }
    return bytes;
}

std::string raw_bytes(const plain_mesh& mesh) {
    return raw_bytes(mesh, static_cast<unsigned int>(mesh.vertices.size()),
                     static_cast<unsigned int>(mesh.triangles.size() / 3));
}

void write_file(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string read_file(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

temporary_file::temporary_file(const std::string& bytes) : path(new_path()) {
    write_file(path, bytes);
}

temporary_file::~temporary_file() {
    std::filesystem::remove(path);
}

log_capture::log_capture() : path(new_path()) {
    ox_set_log_file(path.c_str());
}

log_capture::~log_capture() {
    ox_set_log_file(nullptr);
    std::filesystem::remove(path);
}

std::vector<std::string> log_capture::lines() const {
    std::ifstream file(path);
    std::vector<std::string> found;
    for (std::string line; std::getline(file, line);) {
        found.push_back(line);
    }
    return found;
}

plain_mesh cube() {
    plain_mesh mesh;
    for (unsigned int i = 0; i < 8; ++i) {
        mesh.vertices.push_back(ox_3dvector(static_cast<float>(i & 1u),
                                            static_cast<float>(i >> 1 & 1u),
                                            static_cast<float>(i >> 2)));
    }
    mesh.triangles = {0, 2, 3, 0, 3, 1, 4, 5, 7, 4, 7, 6, 0, 1, 5, 0, 5, 4,
                      2, 6, 7, 2, 7, 3, 0, 4, 6, 0, 6, 2, 1, 3, 7, 1, 7, 5};
    return mesh;
}

plain_mesh height_field(unsigned int n) {
    plain_mesh mesh;
    for (unsigned int j = 0; j <= n; ++j) {
        for (unsigned int i = 0; i <= n; ++i) {
            const double height = 2.0 * std::sin(0.3 * i) * std::cos(0.2 * j);
            mesh.vertices.push_back(ox_3dvector(static_cast<float>(i), static_cast<float>(j),
                                                static_cast<float>(height)));
        }
    }
    for (unsigned int j = 0; j < n; ++j) {
        for (unsigned int i = 0; i < n; ++i) {
            const unsigned int a = j * (n + 1) + i;
            const unsigned int corners[] = {a, a + 1, a + n + 2, a, a + n + 2, a + n + 1};
            mesh.triangles.insert(mesh.triangles.end(), std::begin(corners), std::end(corners));
        }
    }
    return mesh;
}

ox::ox_triangle_set set_of(const plain_mesh& mesh) {
    ox::ox_triangle_set set(static_cast<unsigned int>(mesh.vertices.size()),
                            static_cast<unsigned int>(mesh.triangles.size() / 3));
    std::copy(mesh.vertices.begin(), mesh.vertices.end(), set.get_vertices());
    std::copy(mesh.triangles.begin(), mesh.triangles.end(), set.get_triangles());
    return set;
}

plain_mesh contents_of(const ox::ox_triangle_set& set) {
    plain_mesh mesh;
    mesh.vertices.assign(set.get_vertices(), set.get_vertices() + set.get_nb_vertices());
    mesh.triangles.assign(set.get_triangles(),
                          set.get_triangles() + std::size_t{3} * set.get_nb_triangles());
    return mesh;
}

bool same_bits(const std::vector<ox_3dvector>& a, const std::vector<ox_3dvector>& b) {
    return a.size() == b.size() && (a.empty() || std::memcmp(static_cast<const void*>(a.data()),
                                                             static_cast<const void*>(b.data()),
                                                             a.size() * sizeof(ox_3dvector)) == 0);
}

} // namespace mesh_support
