#ifndef OX_TESTS_MESH_MESH_SUPPORT_H
#define OX_TESTS_MESH_MESH_SUPPORT_H

#include <string>
#include <vector>

#include <ox/core/ox_list.h>
#include <ox/mesh/ox_triangle_set.h>

#include "../reference/mesh_welding.h"

/// Fixtures of the mesh tests: files as strings, meshes, and the log.
namespace mesh_support {

using ox::ox_3dvector;
using reference::plain_mesh;

/// The bytes of a 32-bit number as files hold them.
std::string bytes_of(unsigned int number);

/// The bytes of a vector as files hold them.
std::string bytes_of(const ox_3dvector& v);

/// A binary STL file of all triangles of `mesh` whose count says `count`.
std::string stl_bytes(const plain_mesh& mesh, unsigned int count);
std::string stl_bytes(const plain_mesh& mesh);

/// A raw file of `mesh` whose counts say what is given.
std::string raw_bytes(const plain_mesh& mesh, unsigned int nb_vertices, unsigned int nb_triangles);
std::string raw_bytes(const plain_mesh& mesh);

void write_file(const std::string& path, const std::string& bytes);
std::string read_file(const std::string& path);

/// A file of this test process that is removed with the object.
class temporary_file {
public:
    explicit temporary_file(const std::string& bytes);
    ~temporary_file();
    temporary_file(const temporary_file&) = delete;
    temporary_file& operator=(const temporary_file&) = delete;

    const std::string path;
};

/// Sends the log to a file of its own while it lives.
class log_capture {
public:
    log_capture();
    ~log_capture();
    log_capture(const log_capture&) = delete;
    log_capture& operator=(const log_capture&) = delete;

    /// The lines logged so far.
    std::vector<std::string> lines() const;

private:
    std::string path;
};

/// The cube [0, 1]^3 of 8 vertices and 12 triangles whose normals point outwards.
plain_mesh cube();

/// A field of n x n squares of unit edge, two triangles each, with hills.
plain_mesh height_field(unsigned int n);

/// The mesh in a set of its own.
ox::ox_triangle_set set_of(const plain_mesh& mesh);

/// The contents of a set.
plain_mesh contents_of(const ox::ox_triangle_set& set);

template <typename T>
ox::ox_list<T> list_of(const std::vector<T>& values) {
    ox::ox_list<T> list;
    for (const T& value : values) {
        list.push_right(value);
    }
    return list;
}

template <typename T>
std::vector<T> vector_of(const ox::ox_list<T>& list) {
    return std::vector<T>(list.begin(), list.end());
}

/// Equal to the last bit, NaN included.
bool same_bits(const std::vector<ox_3dvector>& a, const std::vector<ox_3dvector>& b);

} // namespace mesh_support

#endif
