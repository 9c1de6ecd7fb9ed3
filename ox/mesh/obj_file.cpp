#include <ox/mesh/ox_triangle_set.h>

#include <cstdarg>
#include <cstdio>

#include <ox/internal/plain_numbers.h>
#include <ox/mesh/internal/files/mesh_file.h>

namespace ox {

using namespace internal;

namespace {

/// Enough for three numbers of any value.
constexpr std::size_t longest_line = 128;

bool write_line(mesh_file& file, const char* format, ...) {
    char line[longest_line];
    std::va_list numbers;
    va_start(numbers, format);
    const int length = std::vsnprintf(line, sizeof line, format, numbers);
    va_end(numbers);
    return length > 0 && file.write(line, static_cast<std::size_t>(length));
}

bool write_vertex(mesh_file& file, const ox_3dvector& v) {
    return write_line(file, "v %.9g %.9g %.9g\n", static_cast<double>(v.x),
                      static_cast<double>(v.y), static_cast<double>(v.z));
}

/// The indices, counted from 1: in 64 bits, as the last of them does not fit into 32.
bool write_triangle(mesh_file& file, const unsigned int* corners) {
    return write_line(file, "f %llu %llu %llu\n", corners[0] + 1ull, corners[1] + 1ull,
                      corners[2] + 1ull);
}

} // namespace

bool ox_triangle_set::write_obj(const char* path) const {
    if (!has_valid_triangles()) {
        return false;
    }
    const plain_numbers points_not_commas;
    mesh_file file(path, "wb");
    bool written = file.is_open();
    for (unsigned int i = 0; written && i < nb_vertices; ++i) {
        written = write_vertex(file, vertices[i]);
    }
    const unsigned int* corners = triangles.get();
    for (unsigned int i = 0; written && i < nb_triangles; ++i, corners += 3) {
        written = write_triangle(file, corners);
    }
    return written && file.finish_writing();
}

} // namespace ox
