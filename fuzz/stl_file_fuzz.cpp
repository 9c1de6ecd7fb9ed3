// Reads the bytes as a binary STL file, and works on the triangles that come of it.

#include <fuzz/require.h>
#include <fuzz/scratch_file.h>
#include <ox/core/ox_log.h>
#include <ox/mesh/ox_triangle_set.h>

namespace {

constexpr std::size_t header_size = 84;
constexpr std::size_t record_size = 50;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::scratch_file file("stl_file");
    ox_log_set(false);
    file.write(data, size);
    ox::ox_triangle_set set;
    const bool is_read = set.read_binary_stl(file.path.c_str());
    const unsigned int triangles = set.get_nb_triangles();
    fuzz::require(is_read || triangles == 0);
    fuzz::require(set.get_nb_vertices() == 3 * triangles);
    fuzz::require(!is_read || size >= header_size + triangles * record_size);
    for (unsigned int i = 0; i < 3 * triangles; ++i) {
        fuzz::require(set.get_triangles()[i] == i);
    }
    set.optimize(0.001f, 10.0f);
    set.subdivide();
    fuzz::require(set.get_nb_triangles() == 4 * triangles);
    return 0;
}
