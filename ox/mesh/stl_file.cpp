#include <ox/mesh/ox_triangle_set.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

#include <ox/internal/log_line.h>
#include <ox/mesh/internal/files/mesh_file.h>

namespace ox {

using namespace internal;

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

/// What a file begins with: no text that begins with "solid", by which readers tell text files.
constexpr char header_text[header_bytes] = "binary STL";

/// A record as files hold it: normal, corners, and no attributes.
std::array<unsigned char, record_bytes> record_of(const ox_3dvector& a, const ox_3dvector& b,
                                                  const ox_3dvector& c) {
    ox_3dvector normal = ox_cross(b - a, c - a);
    normal.normalize();
    const ox_3dvector vectors[] = {normal, a, b, c};
    std::array<unsigned char, record_bytes> record = {};
    std::memcpy(record.data(), vectors, sizeof vectors);
    return record;
}

/// Room for `record_count` records, or as many as are decoded at a time.
std::vector<unsigned char> block_for(std::size_t record_count) {
    return std::vector<unsigned char>(std::min(record_count, block_records) * record_bytes);
}

/// Reads `record_count` records into three vertices each; false at the first block cut short.
bool read_corners(mesh_file& file, std::vector<unsigned char>& block, std::size_t record_count,
                  ox_3dvector* vertices) {
    while (record_count > 0) {
        const std::size_t in_block = std::min(record_count, block_records);
        if (!file.read(block.data(), in_block * record_bytes)) {
            return false;
        }
        for (std::size_t i = 0; i < in_block; ++i, vertices += 3) {
            std::memcpy(static_cast<void*>(vertices),
                        block.data() + i * record_bytes + corners_offset, corners_bytes);
        }
        record_count -= in_block;
    }
    return true;
}

} // namespace

bool ox_triangle_set::read_binary_stl(const char* path) {
    ox_log_thread_safe("reading stl...");
    mesh_file file(path, "rb");
    if (!file.is_open()) {
        return false;
    }
    ox_log_thread_safe("open file ok");
    char header[header_bytes];
    if (!file.read(header, sizeof header)) {
        return false;
    }
    ox_log_thread_safe("header ok");
    std::uint32_t record_count = 0;
    if (!file.read(&record_count, sizeof record_count)) {
        return false;
    }
    ox_log_thread_safe("nb of triangles ok");
    log_number("reading %d triangles...", record_count);
    log_number("triangle size : %d bytes.", logged_triangle_size);
    std::uint64_t read_count = 0;
    if (!read_stl_records(file, record_count, read_count)) {
        allocate(0, 0);
        log_number("%d read triangles...", read_count);
        return false;
    }
    return true;
}

bool ox_triangle_set::write_binary_stl(const char* path) const {
    if (!has_valid_triangles()) {
        return false;
    }
    mesh_file file(path, "wb");
    bool written = file.is_open() && file.write(header_text, sizeof header_text) &&
                   file.write(&nb_triangles, sizeof nb_triangles);
    const unsigned int* corner = triangles.get();
    for (unsigned int i = 0; written && i < nb_triangles; ++i, corner += 3) {
        const auto record =
            record_of(vertices[corner[0]], vertices[corner[1]], vertices[corner[2]]);
        written = file.write(record.data(), record.size());
    }
    return written && file.finish_writing();
}

bool ox_triangle_set::read_stl_records(mesh_file& file, unsigned int record_count,
                                       std::uint64_t& read_count) {
    const std::uint64_t new_nb_vertices = std::uint64_t{3} * record_count;
    const std::uint64_t bytes_held = file.remaining();
    if (new_nb_vertices > (std::numeric_limits<std::uint32_t>::max)() ||
        record_bytes * record_count > bytes_held) {
        read_count = std::min<std::uint64_t>(record_count, bytes_held / record_bytes);
        return false;
    }
    std::vector<unsigned char> block =
        block_for(record_count); // may fail, while the set is as it was
    allocate_uninitialised(static_cast<unsigned int>(new_nb_vertices), record_count);
    const bool complete = read_corners(file, block, record_count, vertices.get());
    read_count = (bytes_held - file.remaining()) / record_bytes;
    for (unsigned int i = 0; i < nb_vertices; ++i) {
        triangles[i] = i;
    }
    return complete;
}

} // namespace ox
