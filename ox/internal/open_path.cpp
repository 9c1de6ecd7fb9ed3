#include <ox/internal/open_path.h>

#include <filesystem>
#include <system_error>

#if !defined(_WIN32)
#include <fcntl.h>
#include <unistd.h>
#endif

namespace ox::internal {

namespace {

bool is_regular_file(const char* path) {
    std::error_code error;
    return std::filesystem::is_regular_file(path, error);
}

bool has_nul(const std::string& path) {
    return path.find('\0') != std::string::npos;
}

#if defined(_WIN32)

open_file open_for_writing(const char* path, const char* mode) {
    return open_file(std::fopen(path, mode));
}

#else

/// A pipe without a reader refuses to be opened at once instead of waiting for one. Once open,
/// everything takes the time it takes.
open_file open_for_writing(const char* path, const char* mode) {
    const int start = mode[0] == 'a' ? O_APPEND : O_TRUNC;
    const int descriptor =
        open(path, O_WRONLY | O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | start, 0666);
    if (descriptor < 0) {
        return nullptr;
    }
    const int flags = fcntl(descriptor, F_GETFL);
    open_file file(fcntl(descriptor, F_SETFL, flags & ~O_NONBLOCK) == 0 ? fdopen(descriptor, mode)
                                                                        : nullptr);
    if (file == nullptr) {
        close(descriptor);
    }
    return file;
}

#endif

} // namespace

open_file open_path(const char* path, const char* mode) {
    if (path == nullptr) {
        return nullptr;
    }
    if (mode[0] != 'r') {
        return open_for_writing(path, mode);
    }
    return is_regular_file(path) ? open_file(std::fopen(path, mode)) : nullptr;
}

open_file open_path(const std::string& path, const char* mode) {
    return has_nul(path) ? nullptr : open_path(path.c_str(), mode);
}

open_file open_stream(const std::string& path) {
    return has_nul(path) ? nullptr : open_file(std::fopen(path.c_str(), "rb"));
}

} // namespace ox::internal
