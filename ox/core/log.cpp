#include <ox/core/ox_log.h>

#include <atomic>
#include <cstdio>
#include <cstring>
#include <new>
#include <set>
#include <string>

#include <ox/core/ox_mutex.h>
#include <ox/internal/open_path.h>

namespace {

const char* const default_file_name = "ox_log.txt";

bool log_enabled = true;
bool echo_enabled = false;
bool first_write_pending = true;

/// Null until a name is chosen.
std::atomic<const char*> chosen_file_name = nullptr;

/// Created by the first call, which the language keeps free of races, and never destroyed: threads
/// may log until the process ends. Null when there is no memory for it.
ox::ox_mutex* log_lock() {
    static ox::ox_mutex* const lock = new (std::nothrow) ox::ox_mutex;
    return lock;
}

/// A copy of `name` that is never released: a thread may be writing to that file, and destructors
/// of static objects may still log. A name given again is the same copy. Null without memory.
const char* kept_name(const char* name) {
    try {
        static std::set<std::string>* const names = new std::set<std::string>;
        return names->emplace(name).first->c_str();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
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
    const char* const chosen = chosen_file_name;
    const ox::internal::open_file file = ox::internal::open_path(
        chosen != nullptr ? chosen : default_file_name, first_write_pending ? "w" : "a");
    if (file == nullptr) {
        return;
    }
    first_write_pending = false;
    std::fprintf(file.get(), "%s\n", message);
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
    ox::ox_mutex* const lock = log_lock();
    if (lock == nullptr) {
        return;
    }
    lock->lock();
    ox_log(message);
    lock->unlock();
}

void ox_set_log_file(const char* path) {
    ox::ox_mutex* const lock = log_lock();
    if (lock == nullptr) {
        return;
    }
    lock->lock();
    const char* const name = path != nullptr ? kept_name(path) : nullptr;
    if (path == nullptr || name != nullptr) {
        chosen_file_name = name;
    }
    lock->unlock();
}
