#ifndef OX_INTERNAL_OPEN_FILE_H
#define OX_INTERNAL_OPEN_FILE_H

#include <cstdio>
#include <memory>

namespace ox {

struct file_closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// A file that is closed on every way out; null when it could not be opened.
using open_file = std::unique_ptr<std::FILE, file_closer>;

} // namespace ox

#endif
