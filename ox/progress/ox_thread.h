#ifndef OX_PROGRESS_OX_THREAD_H
#define OX_PROGRESS_OX_THREAD_H

#include <atomic>

#include <ox/core/ox_export.h>
#include <ox/core/ox_mutex.h>

namespace ox {

class ox_progress_manager;
struct ox_thread_team;

/// A computation made of numbered steps that can run on several threads at once.
///
/// A derived class does step number `step` in `run`, which also says whether there was such a step.
/// `start` hands out the numbers 0, 1, 2, ... to the threads, first come first served, until `run`
/// finds no more work or somebody asks to stop. `run` must be ready for numbers beyond the end of
/// the work: every thread but the first to meet the end is given one. Results that the threads
/// share are guarded with `mutex`.
///
/// Progress: with a manager and a positive `get_last_step`, every step `s` that the calling thread
/// finishes reports `min + (max - min) * compute_phase_progress(s / last)`. `progress` and the
/// manager are only ever called by the thread that called `start`.
///
/// Exceptions: one that leaves `run`, `progress` or the manager stops the computation. When every
/// worker has stopped, the first one is rethrown to the caller of `start`.
///
/// Ownership: the manager belongs to the caller, who keeps it until `start` has returned. A copy
/// takes the counter, the flags, the manager and the share; its lock is its own. One object runs
/// one `start` at a time.
///
/// \code
/// class squares : public ox::ox_thread {
///     int get_last_step() override { return 1000; }
///     bool run(unsigned int step, unsigned int) override {
///         if (step >= 1000) {
///             return false;
///         }
///         values[step] = step * step;
///         return true;
///     }
///     unsigned int values[1000];
/// };
///
/// squares work;
/// work.set_progress_manager(&bar, 0.0, 1.0);
/// bool finished = work.start(4);
/// \endcode
class OX_EXPORT ox_thread {
public:
    /// No progress manager; the share is the whole bar.
    ox_thread();

    /// Copies everything but the lock.
    ox_thread(const ox_thread& other);

    /// Copies everything but the lock, which stays as it is.
    ox_thread& operator=(const ox_thread& other);

    /// Ends no work: `start` has returned by then.
    virtual ~ox_thread();

    // To be overridden

    /// How many steps are expected; only used to compute progress. This one returns 0: no progress
    /// is reported.
    virtual int get_last_step();

    /// Does step `step` on the thread numbered `thread` (from 0; the caller of `start` is thread
    /// 0). Returns false when the work has no such step. This one always does.
    virtual bool run(unsigned int step, unsigned int thread);

    /// Called after a step of thread 0. False asks to stop. This one returns true.
    virtual bool progress(unsigned int step);

    // Running

    /// Runs the computation on `thread_count` threads and returns when all of them have stopped.
    /// With 0 or 1 everything runs on the calling thread, and a request to stop takes effect at
    /// once; the result is then true when the work ran to its end. With more, every thread finishes
    /// the step it is at, and the result is true when one of them met the end of the work.
    ///
    /// A team has at most 256 threads, or one for each processor where there are more; the OpenMP
    /// runtime may give fewer still. The work is completed by however many there are.
    virtual bool start(unsigned int thread_count);

    /// True if `progress` or the manager asked the last `start` to stop.
    bool was_interrupted() const;

    // Progress

    /// Sets the manager to report to (null for none) and the share `[min, max]` of its bar.
    void set_progress_manager(ox_progress_manager* manager, double min, double max);

    /// The manager to report to, null for none.
    ox_progress_manager* get_progress_manager() const;

    /// Where the share of the bar begins.
    double get_progress_min() const;

    /// Where the share of the bar ends.
    double get_progress_max() const;

private:
    bool run_alone(int last);
    bool run_in_team(unsigned int thread_count, int last);
    void work(ox_thread_team& team, unsigned int thread, int last);
    bool report(unsigned int step, int last);

    std::atomic<unsigned int> next_step{0};

protected:
    /// For derived classes: guards what their threads share.
    ox_mutex mutex;

private:
    std::atomic<bool> finished{false};
    std::atomic<bool> interrupted{false};
    ox_progress_manager* manager = nullptr;
    double progress_min = 0.0;
    double progress_max = 1.0;
};

} // namespace ox

#endif
