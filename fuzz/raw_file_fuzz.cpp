// Reads the bytes as a raw triangle file. What was read is written as it stood in the bytes.

#include <string>

#include <fuzz/require.h>
#include <fuzz/scratch_file.h>
#include <ox/core/ox_log.h>
#include <ox/mesh/ox_triangle_set.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::scratch_file given("raw_file");
    static const fuzz::scratch_file written("raw_file_written");
    ox_log_set(false);
    given.write(data, size);
    ox::ox_triangle_set set(3, 1);
    if (set.read_binary_raw(given.path.c_str())) {
        fuzz::require(set.write_binary_raw(written.path.c_str()));
        const std::string bytes = written.read();
        fuzz::require(bytes.size() == 16 + 12 * std::size_t{set.get_nb_vertices()} +
                                          12 * std::size_t{set.get_nb_triangles()});
        fuzz::require(std::string(data, data + size).compare(0, bytes.size(), bytes) == 0);
    } else {
        const bool is_emptied = set.get_nb_vertices() == 0 && set.get_nb_triangles() == 0;
        fuzz::require(is_emptied || (set.get_nb_vertices() == 3 && set.get_nb_triangles() == 1));
    }
    set.optimize(0.001f, 0.1f);
    return 0;
}
