#include <ox/mesh/ox_triangle_set.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

#include <ox/internal/log_line.h>
#include <ox/mesh/internal/mesh_file.h>

namespace ox {

namespace {

constexpr std::size_t header_bytes = 80;

/// A record: the normal, three corners, and a 16-bit attribute count.
constexpr std::size_t record_bytes = 50;
constexpr std::size_t corners_offset = 12;
constexpr std::size_t corners_bytes = 36;

/// The size that the log has always stated, although records have 50 bytes: programs read it.
constexpr int logged_triangle_size = 52;

/// Records decoded at a time: a block that fits the processor's second-level cache.
constexpr std::size_t block_records = 4096;

static_assert(3 * sizeof(ox_3dvector) == corners_bytes, "corners are stored as they lie");

void log_number(const char* format, std::uint64_t number) {
    log_line(format, static_cast<int>(static_cast<std::uint32_t>(number)));
}

/// Reads `nb_records` records into three vertices each; false at the first block cut short.
bool read_corners(oxp_mesh_file& file, std::size_t nb_records, ox_3dvector* vertices) {
    std::vector<unsigned char> block(std::min(nb_records, block_records) * record_bytes);
    while (nb_records > 0) {
        const std::size_t in_block = std::min(nb_records, block_records);
        if (!file.read(block.data(), in_block * record_bytes)) {
            return false;
        }
        for (std::size_t i = 0; i < in_block; ++i, vertices += 3) {
            std::memcpy(static_cast<void*>(vertices),
                        block.data() + i * record_bytes + corners_offset, corners_bytes);
        }
        nb_records -= in_block;
    }
    return true;
}

} // namespace

bool ox_triangle_set::read_binary_stl(const char* path) {
    ox_log_thread_safe("reading stl...");
    oxp_mesh_file file(path, "rb");
    if (!file.is_open()) {
        return false;
    }
    ox_log_thread_safe("open file ok");
    char header[header_bytes];
    if (!file.read(header, sizeof header)) {
        return false;
    }
    ox_log_thread_safe("header ok");
    std::uint32_t nb_records = 0;
    if (!file.read(&nb_records, sizeof nb_records)) {
        return false;
    }
    ox_log_thread_safe("nb of triangles ok");
    log_number("reading %d triangles...", nb_records);
    log_number("triangle size : %d bytes.", logged_triangle_size);
    std::uint64_t nb_read = 0;
    if (!read_stl_records(file, nb_records, nb_read)) {
        allocate(0, 0);
        log_number("%d read triangles...", nb_read);
        return false;
    }
    return true;
}

bool ox_triangle_set::read_stl_records(oxp_mesh_file& file, unsigned int nb_records,
                                       std::uint64_t& nb_read) {
    const std::uint64_t new_nb_vertices = std::uint64_t{3} * nb_records;
    const std::uint64_t bytes_held = file.remaining();
    if (new_nb_vertices > (std::numeric_limits<std::uint32_t>::max)() ||
        record_bytes * nb_records > bytes_held) {
        nb_read = std::min<std::uint64_t>(nb_records, bytes_held / record_bytes);
        return false;
    }
    allocate_uninitialised(static_cast<unsigned int>(new_nb_vertices), nb_records);
    const bool complete = read_corners(file, nb_records, vertices.get());
    nb_read = (bytes_held - file.remaining()) / record_bytes;
    for (unsigned int i = 0; i < nb_vertices; ++i) {
        triangles[i] = i;
    }
    return complete;
}

} // namespace ox
