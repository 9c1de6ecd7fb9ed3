// Reads the bytes as mesh files and drives what was read, or a mesh made from the bytes, through
// every operation.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include <fuzz/byte_reader.h>
#include <ox/core/ox_log.h>
#include <ox/mesh/ox_mesh.h>
#include <ox/mesh/ox_triangle_set.h>
#include <ox/mesh/ox_vertex_optimizer.h>

namespace {

using fuzz::byte_reader;
using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_triangle_set;

/// A file of this process that is rewritten for each input and removed at its end.
class scratch_file {
public:
    scratch_file() {
        std::string pattern = (std::filesystem::temp_directory_path() / "ox_fuzz_XXXXXX").string();
        const int descriptor = mkstemp(pattern.data());
        if (descriptor < 0 || fclose(fdopen(descriptor, "wb")) != 0) {
            std::abort();
        }
        path = pattern;
    }
    ~scratch_file() { std::remove(path.c_str()); }
    scratch_file(const scratch_file&) = delete;
    scratch_file& operator=(const scratch_file&) = delete;

    void write(const std::uint8_t* data, std::size_t size) const {
        std::FILE* const file = std::fopen(path.c_str(), "wb");
        if (file == nullptr || std::fwrite(data, 1, size, file) != size || std::fclose(file) != 0) {
            std::abort();
        }
    }

    std::string path;
};

/// A set of few vertices, so that sides and places are shared; an index may be one too large.
ox_triangle_set set_of(byte_reader& bytes) {
    const unsigned int nb_vertices = bytes.byte() % 32;
    const unsigned int nb_triangles = bytes.byte() % 64;
    ox_triangle_set set(nb_vertices, nb_triangles);
    for (unsigned int i = 0; i < nb_vertices; ++i) {
        set.get_vertices()[i] = bytes.vector();
    }
    for (unsigned int i = 0; i < 3 * nb_triangles; ++i) {
        const unsigned int index = bytes.byte();
        set.get_triangles()[i] = index == 255 ? nb_vertices : index % (nb_vertices + 1);
    }
    return set;
}

void build_mesh(const ox_triangle_set& set) {
    ox_list<ox_3dvector> vertices;
    for (unsigned int i = 0; i < set.get_nb_vertices(); ++i) {
        vertices.push_right(set.get_vertices()[i]);
    }
    ox_list<unsigned int> triangles;
    for (unsigned int i = 0; i < 3 * set.get_nb_triangles(); ++i) {
        triangles.push_right(set.get_triangles()[i]);
    }
    ox::ox_mesh mesh;
    mesh.set_vertices(vertices);
    mesh.set_triangles(triangles);
    mesh.build_half_edges();
}

void weld_stream(byte_reader& bytes, const ox_triangle_set& set) {
    const float position_tolerance = bytes.coordinate();
    const float normal_tolerance = bytes.coordinate();
    ox::ox_vertex_optimizer optimizer(position_tolerance, normal_tolerance);
    for (unsigned int i = 0; i < set.get_nb_vertices(); i += 4) {
        ox_list<ox_3dvector> few;
        for (unsigned int k = i; k < i + 4 && k < set.get_nb_vertices(); ++k) {
            few.push_right(set.get_vertices()[k]);
        }
        optimizer.add_vertices(few, bytes.vector());
    }
    optimizer.add_vertices(optimizer.get_optimized_vertices());
}

void work_on(byte_reader& bytes, ox_triangle_set& set) {
    weld_stream(bytes, set);
    build_mesh(set);
    for (int step = 0; step < 2; ++step) {
        const float position_tolerance = bytes.coordinate();
        const float normal_tolerance = bytes.coordinate();
        set.subdivide();
        set.optimize(position_tolerance, normal_tolerance);
    }
    build_mesh(set);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const scratch_file file;
    ox_log_set(false);
    byte_reader bytes(data, size);
    ox_triangle_set made = set_of(bytes);
    work_on(bytes, made);
    file.write(data, size);
    ox_triangle_set read;
    if (read.read_binary_stl(file.path.c_str())) {
        work_on(bytes, read);
    }
    if (read.read_binary_raw(file.path.c_str())) {
        work_on(bytes, read);
        read.write_binary_raw(file.path.c_str());
    }
    return 0;
}
