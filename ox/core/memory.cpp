#include <ox/ox_functions.h>

#if defined(_WIN32)
// windows.h must come before psapi.h.
#include <windows.h>

#include <psapi.h>
#elif defined(__linux__)
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <ox/internal/open_path.h>
#endif

namespace ox {

namespace {

constexpr double megabytes_per_byte = 1.0 / 1048576.0;

struct process_memory {
    long long current = 0; // bytes
    long long peak = 0;    // bytes
};

#if defined(_WIN32)

process_memory query_process_memory() {
    PROCESS_MEMORY_COUNTERS counters{};
    process_memory memory;
    if (GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters) != 0) {
        memory.current = static_cast<long long>(counters.WorkingSetSize);
        memory.peak = static_cast<long long>(counters.PeakWorkingSetSize);
    }
    return memory;
}

#elif defined(__linux__)

/// Reads a line such as "VmRSS:    1234 kB" into `bytes` when it bears that name.
void read_field(const char* line, const char* name, long long& bytes) {
    const std::size_t length = std::strlen(name);
    if (std::strncmp(line, name, length) == 0) {
        bytes = std::strtoll(line + length, nullptr, 10) * 1024;
    }
}

/// Both figures come from the same reading: the kernel keeps its counters apart, and two readings
/// could show a peak below the current size.
process_memory query_process_memory() {
    process_memory memory;
    const internal::open_file file = internal::open_path("/proc/self/status", "r");
    if (file == nullptr) {
        return memory;
    }
    char line[256];
    while (std::fgets(line, sizeof line, file.get()) != nullptr) {
        read_field(line, "VmRSS:", memory.current);
        read_field(line, "VmHWM:", memory.peak);
    }
    return memory;
}

#else

process_memory query_process_memory() {
    return process_memory();
}

#endif

} // namespace

long long ox_get_memory_occupation() {
    return query_process_memory().current;
}

long long ox_get_peak_memory_occupation() {
    return query_process_memory().peak;
}

double ox_get_memory_occupation_mb() {
    return static_cast<double>(ox_get_memory_occupation()) * megabytes_per_byte;
}

} // namespace ox
