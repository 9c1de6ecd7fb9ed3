#ifndef OX_INTERNAL_OPEN_PATH_H
#define OX_INTERNAL_OPEN_PATH_H

#include <cstdio>
#include <memory>
#include <string>

namespace ox::internal {

struct file_closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// A file that is closed on every way out; null when it could not be opened.
using open_file = std::unique_ptr<std::FILE, file_closer>;

/// Opens `path` as fopen does with `mode`, but never waits: only regular files are opened for
/// reading, and no pipe that nobody reads is opened for writing. Null opens nothing.
open_file open_path(const char* path, const char* mode);

/// The same; a path with a NUL in it opens nothing, as the system would take what precedes it.
open_file open_path(const std::string& path, const char* mode);

/// Opens for reading what may also be a pipe, and waits for whoever writes to it, or a device.
open_file open_stream(const std::string& path);

} // namespace ox::internal

#endif
