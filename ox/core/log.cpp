#include <cstddef>
#include <cstdio>
#include <cstring>
#include <new>
#include <ox/core/ox_log.h>
#include <ox/core/ox_mutex.h>

namespace {

const char* const default_file_name = "ox_log.txt";

bool log_enabled = true;
bool echo_enabled = false;
bool first_write_pending = true;

// Null until a name is chosen. Never released at the end of the process: destructors of static
// objects may still log.
char* chosen_file_name = nullptr;

/// A copy of `text` on the heap, null when there is no memory for it.
char* copy_of(const char* text) {
    const std::size_t bytes = std::strlen(text) + 1;
    char* copy = new (std::nothrow) char[bytes];
    if (copy != nullptr) {
        std::memcpy(copy, text, bytes);
    }
    return copy;
}

/// Prints `format` as the formatter would, given that there are no arguments to convert.
void print_without_arguments(const char* format) {
    while (const char* pair = std::strstr(format, "%%")) {
        std::fwrite(format, 1, static_cast<std::size_t>(pair + 1 - format), stdout);
        format = pair + 2;
    }
    std::fputs(format, stdout);
}

void write_line(const char* message) {
    const char* const name = chosen_file_name != nullptr ? chosen_file_name : default_file_name;
    std::FILE* const file = std::fopen(name, first_write_pending ? "w" : "a");
    if (file == nullptr) {
        return;
    }
    first_write_pending = false;
    std::fprintf(file, "%s\n", message);
    std::fclose(file);
}

} // namespace

void ox_log(const char* message) {
    const char* const text = message != nullptr ? message : "";
    if (echo_enabled) {
        print_without_arguments(text);
    }
    if (log_enabled) {
        write_line(text);
    }
}

bool ox_log_get(void) {
    return log_enabled;
}

void ox_log_set(bool enabled) {
    log_enabled = enabled;
}

void ox_log_std_output(bool enabled) {
    echo_enabled = enabled;
}

void ox_log_thread_safe(const char* message) {
    // Created by the first call, which the language keeps free of races, and never destroyed:
    // threads may log until the process ends.
    static ox::ox_mutex* const log_lock = new (std::nothrow) ox::ox_mutex;
    if (log_lock == nullptr) {
        return;
    }
    log_lock->lock();
    ox_log(message);
    log_lock->unlock();
}

void ox_set_log_file(const char* path) {
    char* const name = path != nullptr ? copy_of(path) : nullptr;
    if (path != nullptr && name == nullptr) {
        return;
    }
    delete[] chosen_file_name;
    chosen_file_name = name;
}
