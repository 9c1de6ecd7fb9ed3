#ifndef OX_INTERNAL_LOG_LINE_H
#define OX_INTERNAL_LOG_LINE_H

#include <cstdio>

#include <ox/core/ox_log.h>

namespace ox {

/// Logs one line made as by `printf`, cut off after 255 characters. Objects of separate threads may
/// log at the same time.
template <typename... values>
void log_line(const char* format, values... arguments) {
    char line[256];
    std::snprintf(line, sizeof line, format, arguments...);
    ox_log_thread_safe(line);
}

} // namespace ox

#endif
