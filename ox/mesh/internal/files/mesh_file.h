#ifndef OX_MESH_INTERNAL_FILES_MESH_FILE_H
#define OX_MESH_INTERNAL_FILES_MESH_FILE_H

#include <cstddef>
#include <cstdint>
#include <cstdio>

#include <ox/internal/open_path.h>

namespace ox::internal {

/// An open file of plain little-endian items, closed with the object. Items are transferred as
/// they lie in memory: all platforms of the library are little-endian.
class mesh_file {
public:
    /// Opens `path` as `open_path` does: nothing but regular files for reading.
    mesh_file(const char* path, const char* mode);

    /// True if the file was opened.
    bool is_open() const { return stream != nullptr; }

    /// Reads `bytes` bytes; false when fewer are left.
    bool read(void* data, std::size_t bytes);

    /// Writes `bytes` bytes; false when that fails at once. What is still buffered may fail later,
    /// in `finish_writing`.
    bool write(const void* data, std::size_t bytes);

    /// Hands everything written to the system; false when there is no room for it.
    bool finish_writing() { return std::fflush(stream.get()) == 0; }

    /// The bytes between the place of reading and the end of the file as it was opened.
    std::uint64_t remaining() const { return size > position ? size - position : 0; }

private:
    open_file stream;
    std::uint64_t size = 0;
    std::uint64_t position = 0;
};

} // namespace ox::internal

#endif
