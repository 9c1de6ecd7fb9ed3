// Reads the bytes as an experience file, and learns two runs from what is in it.

#include <cmath>

#include <fuzz/require.h>
#include <fuzz/scratch_file.h>
#include <ox/core/ox_log.h>
#include <ox/progress/ox_progress_manager.h>

namespace {

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
        fuzz::require(std::isfinite(manager.compute_phase_progress(0.5)));
    }
    manager.finalize();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::scratch_file file("experience_file");
    ox_log_set(false);
    file.write(data, size);
    run(file.path);
    run(file.path);
    return 0;
}
