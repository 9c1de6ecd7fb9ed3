#include <ox/progress/ox_thread.h>

#include <algorithm>
#include <exception>
#include <mutex>

#include <omp.h>

#include <ox/progress/ox_progress_manager.h>

namespace ox {

namespace {

/// Enough for any machine the steps could keep busy, and few enough that the runtime, which ends
/// the process when it cannot create a thread, gets them.
constexpr unsigned int largest_team = 256;

int bounded_team_size(unsigned int thread_count) {
    const int limit = omp_get_thread_limit();
    const unsigned int processors = static_cast<unsigned int>(std::max(omp_get_num_procs(), 1));
    const unsigned int bound = std::max(largest_team, processors);
    const int wanted = static_cast<int>(std::min(thread_count, bound));
    return limit > 0 ? std::min(wanted, limit) : wanted;
}

} // namespace

/// What the threads of one `start` have in common.
struct ox_thread_team {
    /// Keeps the exception being handled when it is the first one, and stops the others.
    void fail() noexcept {
        const std::lock_guard<std::mutex> guard(mutex);
        if (first_exception == nullptr) {
            first_exception = std::current_exception();
        }
        failed = true;
    }

    std::mutex mutex;
    std::exception_ptr first_exception;
    std::atomic<bool> failed{false};
};

ox_thread::ox_thread() = default;

ox_thread::ox_thread(const ox_thread& other)
    : next_step(other.next_step.load()), mutex(other.mutex), finished(other.finished.load()),
      interrupted(other.interrupted.load()), manager(other.manager),
      progress_min(other.progress_min), progress_max(other.progress_max) {}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment): each value may be given to itself
ox_thread& ox_thread::operator=(const ox_thread& other) {
    next_step = other.next_step.load();
    mutex = other.mutex;
    finished = other.finished.load();
    interrupted = other.interrupted.load();
    manager = other.manager;
    progress_min = other.progress_min;
    progress_max = other.progress_max;
    return *this;
}

ox_thread::~ox_thread() = default;

int ox_thread::get_last_step() {
    return 0;
}

bool ox_thread::run(unsigned int, unsigned int) {
    return false;
}

bool ox_thread::progress(unsigned int) {
    return true;
}

bool ox_thread::start(unsigned int thread_count) {
    next_step = 0;
    finished = false;
    interrupted = false;
    const int last = get_last_step();
    report(0, last);
    return thread_count > 1 ? run_in_team(thread_count, last) : run_alone(last);
}

/// Reports that `step` is done. False when the manager asks to stop.
bool ox_thread::report(unsigned int step, int last) {
    if (manager == nullptr || last <= 0) {
        return true;
    }
    const double fraction = static_cast<double>(step) / last;
    return manager->set_progress(progress_min + (progress_max - progress_min) *
                                                    manager->compute_phase_progress(fraction));
}

bool ox_thread::run_alone(int last) {
    while (run(next_step, 0)) {
        if (!progress(next_step) || !report(next_step, last)) {
            interrupted = true;
            return false;
        }
        ++next_step;
    }
    return true;
}

bool ox_thread::run_in_team(unsigned int thread_count, int last) {
    ox_thread_team team;
#pragma omp parallel num_threads(bounded_team_size(thread_count))
    {
        try {
            work(team, static_cast<unsigned int>(omp_get_thread_num()), last);
        } catch (...) {
            team.fail(); // no exception may leave a parallel region
        }
    }
    if (team.first_exception != nullptr) {
        std::rethrow_exception(team.first_exception);
    }
    return finished;
}

/// The loop of one thread. Taking a number from an atomic counter gives each number out once, in
/// ascending order, without a lock that all computations of the process would share.
void ox_thread::work(ox_thread_team& team, unsigned int thread, int last) {
    while (!interrupted && !team.failed) {
        const unsigned int step = next_step++;
        if (!run(step, thread)) {
            finished = true;
            return;
        }
        if (thread != 0) {
            continue;
        }
        if (!progress(step)) {
            interrupted = true;
        }
        if (!report(step, last)) {
            interrupted = true;
        }
    }
}

bool ox_thread::was_interrupted() const {
    return interrupted;
}

void ox_thread::set_progress_manager(ox_progress_manager* new_manager, double min, double max) {
    manager = new_manager;
    progress_min = min;
    progress_max = max;
}

ox_progress_manager* ox_thread::get_progress_manager() const {
    return manager;
}

double ox_thread::get_progress_min() const {
    return progress_min;
}

double ox_thread::get_progress_max() const {
    return progress_max;
}

} // namespace ox
