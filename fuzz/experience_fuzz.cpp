// Reads the bytes as an experience file, and learns two runs from what is in it.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <ox/core/ox_log.h>
#include <ox/progress/ox_progress_manager.h>

#ifdef _WIN32
#include <process.h>
#define getpid _getpid
#else
#include <unistd.h>
#endif

namespace {

/// A file of this process's own.
std::string own_path() {
    return "experience_fuzz." + std::to_string(getpid()) + ".txt";
}

void write_bytes(const std::string& path, const std::uint8_t* data, std::size_t size) {
    if (std::FILE* const file = std::fopen(path.c_str(), "wb")) {
        std::fwrite(data, 1, size, file);
        std::fclose(file);
    }
}

/// Phases named as the corpus has them, in a tree.
void run(const std::string& path) {
    ox::ox_progress_manager manager;
    manager.set_experience_learning_file(path);
    manager.add_phase("load", "", 1.0);
    manager.add_phase("read", "load", 1.0);
    manager.add_phase("parse", "load", 2.0);
    manager.add_phase("save", "", 1.0);
    for (const char* phase : {"read", "parse", "save"}) {
        manager.set_current_phase(phase);
        if (std::isnan(manager.compute_phase_progress(0.5))) {
            std::abort();
        }
    }
    manager.finalize();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ox_log_set(false);
    const std::string path = own_path();
    write_bytes(path, data, size);
    run(path);
    run(path);
    std::remove(path.c_str());
    return 0;
}
