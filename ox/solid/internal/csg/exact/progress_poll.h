#ifndef OX_SOLID_INTERNAL_CSG_EXACT_PROGRESS_POLL_H
#define OX_SOLID_INTERNAL_CSG_EXACT_PROGRESS_POLL_H

#include <ox/solid/internal/csg/arrangement.h>

namespace ox::internal::csg::exact {

/// Thrown where a report ended the work; never leaves the stage of the work that reports.
struct work_ended {};

/// Reports progress every few thousand steps of the work.
class progress_poll {
public:
    explicit progress_poll(const progress_report& receiver) : report(receiver) {}

    /// Enters a phase that begins when this much of the work is done.
    void begin(double done) {
        share_done = done;
        ask();
    }

    /// Counts a step of at most some microseconds.
    void step() {
        if (++steps >= steps_per_report) {
            ask();
        }
    }

private:
    static constexpr int steps_per_report = 2048;

    void ask() {
        steps = 0;
        if (report && !report(share_done)) {
            throw work_ended();
        }
    }

    const progress_report& report;
    double share_done = 0.0;
    int steps = 0;
};

} // namespace ox::internal::csg::exact

#endif
