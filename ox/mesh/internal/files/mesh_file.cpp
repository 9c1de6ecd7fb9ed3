#include <ox/mesh/internal/files/mesh_file.h>

#include <filesystem>
#include <system_error>

namespace ox::internal {

namespace {

std::uint64_t size_of_file(const char* path) {
    std::error_code error;
    const std::uintmax_t bytes = std::filesystem::file_size(path, error);
    return error ? 0 : static_cast<std::uint64_t>(bytes);
}

} // namespace

mesh_file::mesh_file(const char* path, const char* mode) : stream(open_path(path, mode)) {
    if (is_open()) {
        size = size_of_file(path);
    }
}

bool mesh_file::read(void* data, std::size_t bytes) {
    const std::size_t done = bytes == 0 ? 0 : std::fread(data, 1, bytes, stream.get());
    position += done;
    return done == bytes;
}

bool mesh_file::write(const void* data, std::size_t bytes) {
    return bytes == 0 || std::fwrite(data, 1, bytes, stream.get()) == bytes;
}

} // namespace ox::internal
