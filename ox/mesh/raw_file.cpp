#include <ox/mesh/ox_triangle_set.h>

#include <cstdint>
#include <cstring>

#include <ox/internal/log_line.h>
#include <ox/mesh/internal/files/mesh_file.h>

namespace ox {

using namespace internal;

namespace {

constexpr char magic[] = {'b', 'i', 'n', 'a', 'r', 'y', 'r', 'a'};

constexpr std::uint64_t bytes_per_vertex = 12;
constexpr std::uint64_t bytes_per_triangle = 12;
static_assert(sizeof(ox_3dvector) == bytes_per_vertex, "vertices are stored as they lie");

bool read_magic(mesh_file& file) {
    char found[sizeof magic];
    return file.read(found, sizeof found) && std::memcmp(found, magic, sizeof magic) == 0;
}

void log_counts(unsigned int nb_vertices, unsigned int nb_triangles) {
    log_line("reading %d vertices and %d triangles", static_cast<int>(nb_vertices),
             static_cast<int>(nb_triangles));
}

} // namespace

bool ox_triangle_set::write_binary_raw(const char* path) {
    ox_log_thread_safe("writing binary_raw...");
    mesh_file file(path, "wb");
    if (!file.is_open()) {
        return false;
    }
    ox_log_thread_safe("open file ok");
    if (!file.write(magic, sizeof magic)) {
        return false;
    }
    ox_log_thread_safe("header ok");
    if (!file.write(&nb_vertices, sizeof nb_vertices) ||
        !file.write(&nb_triangles, sizeof nb_triangles)) {
        return false;
    }
    if (!file.write(vertices.get(), nb_vertices * bytes_per_vertex) ||
        !file.write(triangles.get(), nb_triangles * bytes_per_triangle) || !file.finish_writing()) {
        allocate(0, 0);
        ox_log_thread_safe("Error writing file");
        return false;
    }
    return true;
}

bool ox_triangle_set::read_binary_raw(const char* path) {
    ox_log_thread_safe("reading binary_raw...");
    mesh_file file(path, "rb");
    if (!file.is_open()) {
        return false;
    }
    ox_log_thread_safe("open file ok");
    if (!read_magic(file)) {
        return false;
    }
    ox_log_thread_safe("header ok");
    std::uint32_t counts[2];
    if (!file.read(counts, sizeof counts)) {
        return false;
    }
    log_counts(counts[0], counts[1]);
    if (!read_raw_arrays(file, counts[0], counts[1])) {
        allocate(0, 0);
        ox_log_thread_safe("Error reading file");
        return false;
    }
    return true;
}

bool ox_triangle_set::read_raw_arrays(mesh_file& file, unsigned int new_nb_vertices,
                                      unsigned int new_nb_triangles) {
    const std::uint64_t vertex_bytes = new_nb_vertices * bytes_per_vertex;
    const std::uint64_t triangle_bytes = new_nb_triangles * bytes_per_triangle;
    if (vertex_bytes + triangle_bytes > file.remaining()) {
        return false;
    }
    allocate_uninitialised(new_nb_vertices, new_nb_triangles);
    return file.read(vertices.get(), vertex_bytes) && file.read(triangles.get(), triangle_bytes);
}

} // namespace ox
