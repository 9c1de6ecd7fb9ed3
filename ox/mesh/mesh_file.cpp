#include <ox/mesh/internal/mesh_file.h>

#include <filesystem>
#include <system_error>

namespace ox {

namespace {

/// Tells whether a path may be opened for reading. To open a pipe that nobody writes to would wait
/// for ever, and a device may never end. What does not exist is left to fopen to refuse.
bool is_readable_kind(const char* path) {
    std::error_code error;
    const std::filesystem::file_type type = std::filesystem::status(path, error).type();
    return type != std::filesystem::file_type::fifo &&
           type != std::filesystem::file_type::character &&
           type != std::filesystem::file_type::block && type != std::filesystem::file_type::socket;
}

open_file open(const char* path, const char* mode) {
    if (path == nullptr || (mode[0] == 'r' && !is_readable_kind(path))) {
        return nullptr;
    }
    return open_file(std::fopen(path, mode));
}

std::uint64_t size_of_file(const char* path) {
    std::error_code error;
    const std::uintmax_t bytes = std::filesystem::file_size(path, error);
    return error ? 0 : static_cast<std::uint64_t>(bytes);
}

} // namespace

oxp_mesh_file::oxp_mesh_file(const char* path, const char* mode) : stream(open(path, mode)) {
    if (is_open()) {
        size = size_of_file(path);
    }
}

bool oxp_mesh_file::read(void* data, std::size_t bytes) {
    const std::size_t done = bytes == 0 ? 0 : std::fread(data, 1, bytes, stream.get());
    position += done;
    return done == bytes;
}

bool oxp_mesh_file::write(const void* data, std::size_t bytes) {
    return bytes == 0 || std::fwrite(data, 1, bytes, stream.get()) == bytes;
}

} // namespace ox
