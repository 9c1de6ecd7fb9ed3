#ifndef OX_INTERNAL_LOG_LINE_H
#define OX_INTERNAL_LOG_LINE_H

#include <cstdio>

#include <ox/core/ox_log.h>
#include <ox/internal/plain_numbers.h>

namespace ox::internal {

/// Logs one line made as by `printf`, with decimal points whatever the locale, cut off after 255
/// characters. Objects of separate threads may log at the same time.
template <typename... values>
void log_line(const char* format, values... arguments) {
    char line[256];
    const plain_numbers with_a_point;
    std::snprintf(line, sizeof line, format, arguments...);
    ox_log_thread_safe(line);
}

} // namespace ox::internal

#endif
