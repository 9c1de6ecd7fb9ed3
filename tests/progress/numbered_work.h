#ifndef OX_TESTS_PROGRESS_NUMBERED_WORK_H
#define OX_TESTS_PROGRESS_NUMBERED_WORK_H

#include <ox/progress/ox_thread.h>
#include <vector>

/// Work of a given number of steps that counts how often each was done.
class numbered_work : public ox::ox_thread {
public:
    explicit numbered_work(int nb_steps) : times(static_cast<std::size_t>(nb_steps), 0) {}

    int get_last_step() override { return static_cast<int>(times.size()); }

    bool run(unsigned int step, unsigned int) override {
        if (step >= times.size()) {
            return false;
        }
        mutex.lock();
        ++times[step];
        mutex.unlock();
        return true;
    }

    bool progress(unsigned int step) override {
        progressed.push_back(step);
        return static_cast<int>(step) != stop_at;
    }

    /// How many steps were done once.
    int count_done() const {
        int done = 0;
        for (int n : times) {
            done += n == 1 ? 1 : 0;
        }
        return done;
    }

    std::vector<int> times;
    std::vector<unsigned int> progressed;
    int stop_at = -1;
};

#endif
