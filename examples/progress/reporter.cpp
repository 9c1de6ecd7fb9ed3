#include <examples/progress/interruption.h>
#include <examples/progress/reporter.h>

namespace progress_example {

reporter::reporter(const std::string& experience_file) {
    set_experience_learning_file(experience_file);
    clock.start();
}

bool reporter::set_progress(double progress) {
    measured.note(progress, clock.elapsed());
    bar.show(progress, get_current_phase());
    return !was_interrupted();
}

void reporter::begin(const std::string& phase) {
    const double start = clock.elapsed();
    set_current_phase(phase);
    measured.begin_phase(phase, compute_phase_progress(1.0) - compute_phase_progress(0.0), start);
}

void reporter::accept_stop() {
    if (stopped_phase.empty()) {
        stopped_phase = get_current_phase();
    }
    forget_interruption();
}

void reporter::finish() {
    if (stopped_phase.empty()) {
        finalize();
    }
    bar.end();
}

} // namespace progress_example
