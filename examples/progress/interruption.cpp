#include <examples/progress/interruption.h>

#include <atomic>
#include <csignal>

namespace progress_example {

namespace {

/// Whichever thread receives the signal sets it, the one that reports progress reads it.
std::atomic<bool> interrupted{false};
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may use nothing else");

void note_interruption(int number) {
    std::signal(number, note_interruption); // where a handler only lasts for one signal
    interrupted = true;
}

} // namespace

void note_interruptions() {
    std::signal(SIGINT, note_interruption);
}

bool was_interrupted() {
    return interrupted;
}

void forget_interruption() {
    interrupted = false;
}

} // namespace progress_example
