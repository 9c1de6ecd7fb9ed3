#include <tests/reliability/failing_files.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>

#include <dlfcn.h>
#include <fcntl.h>

namespace {

std::string watched_path;
std::FILE* watched_stream = nullptr;
int watched_descriptor = -1;
int calls_left = 0;
bool has_failed = false;

bool refuses_next() {
    if (calls_left == 0 || --calls_left > 0) {
        return false;
    }
    has_failed = true;
    errno = EIO;
    return true;
}

bool refuses(const std::FILE* stream) {
    return stream != nullptr && stream == watched_stream && refuses_next();
}

bool is_watched(const char* path) {
    return !watched_path.empty() && watched_path == path;
}

/// The C library's own function of that name.
template <typename Function>
Function* real(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

int scan(std::FILE* stream, const char* format, va_list arguments) {
    return refuses(stream) ? EOF : std::vfscanf(stream, format, arguments);
}

} // namespace

namespace failing_files {

void start(const std::string& path, int failing) {
    watched_path = path;
    watched_stream = nullptr;
    watched_descriptor = -1;
    has_failed = false;
    calls_left = failing;
}

bool stop() {
    watched_path.clear();
    watched_stream = nullptr;
    calls_left = 0;
    return has_failed;
}

} // namespace failing_files

extern "C" {

std::FILE* fopen(const char* path, const char* mode) {
    const bool watches = is_watched(path);
    if (watches && refuses_next()) {
        return nullptr;
    }
    std::FILE* const stream = real<std::FILE*(const char*, const char*)>("fopen")(path, mode);
    watched_stream = watches ? stream : watched_stream;
    return stream;
}

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const int mode = (flags & O_CREAT) != 0 ? va_arg(arguments, int) : 0;
    va_end(arguments);
    const bool watches = is_watched(path);
    if (watches && refuses_next()) {
        return -1;
    }
    const int descriptor = real<int(const char*, int, ...)>("open")(path, flags, mode);
    watched_descriptor = watches ? descriptor : watched_descriptor;
    return descriptor;
}

std::FILE* fdopen(int descriptor, const char* mode) noexcept {
    const bool watches = descriptor >= 0 && descriptor == watched_descriptor;
    if (watches && refuses_next()) {
        return nullptr;
    }
    std::FILE* const stream = real<std::FILE*(int, const char*)>("fdopen")(descriptor, mode);
    watched_stream = watches ? stream : watched_stream;
    return stream;
}

std::size_t fread(void* data, std::size_t size, std::size_t count, std::FILE* stream) {
    using function = std::size_t(void*, std::size_t, std::size_t, std::FILE*);
    return refuses(stream) ? 0 : real<function>("fread")(data, size, count, stream);
}

std::size_t fwrite(const void* data, std::size_t size, std::size_t count, std::FILE* stream) {
    using function = std::size_t(const void*, std::size_t, std::size_t, std::FILE*);
    return refuses(stream) ? 0 : real<function>("fwrite")(data, size, count, stream);
}

int ferror(std::FILE* stream) noexcept {
    const bool is_refused = stream != nullptr && stream == watched_stream && has_failed;
    return is_refused ? 1 : real<int(std::FILE*)>("ferror")(stream);
}

int fputs(const char* text, std::FILE* stream) {
    return refuses(stream) ? EOF : real<int(const char*, std::FILE*)>("fputs")(text, stream);
}

int fprintf(std::FILE* stream, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const int written = refuses(stream) ? -1 : std::vfprintf(stream, format, arguments);
    va_end(arguments);
    return written;
}

// What fscanf is called in the C library depends on its version.
int __isoc99_fscanf(std::FILE* stream, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const int read = scan(stream, format, arguments);
    va_end(arguments);
    return read;
}

int __isoc23_fscanf(std::FILE* stream, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const int read = scan(stream, format, arguments);
    va_end(arguments);
    return read;
}

int fflush(std::FILE* stream) {
    return refuses(stream) ? EOF : real<int(std::FILE*)>("fflush")(stream);
}

int fclose(std::FILE* stream) {
    const bool is_refused = refuses(stream);
    const int closed = real<int(std::FILE*)>("fclose")(stream);
    return is_refused ? EOF : closed;
}

} // extern "C"
