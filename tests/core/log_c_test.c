/* Compiled as C: shows that a C program can include the log's header and call all of it. */

#include <ox/core/ox_log.h>

bool log_from_c(const char* path, const char* message);

bool log_from_c(const char* path, const char* message) {
    ox_set_log_file(path);
    ox_log_std_output(false);
    ox_log_set(true);
    ox_log(message);
    ox_log_thread_safe(message);
    return ox_log_get();
}
