// Work on all cores under a bar, which Ctrl-C ends without a loss.
#include <ox/progress/ox_progress_manager.h>
#include <ox/progress/ox_thread.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <thread>

namespace {

std::atomic<bool> stopped{false};

void note_interruption(int) {
    stopped = true;
}

class bar : public ox::ox_progress_manager {
    bool set_progress(double progress) override {
        std::fprintf(stderr, "\r%3.0f %%", 100 * progress);
        return !stopped; // false asks the work to stop
    }
};

/// Counts primes, a thousand numbers a step.
class prime_count : public ox::ox_thread {
public:
    std::atomic<int> primes{0};

private:
    int get_last_step() override { return 100; }
    bool run(unsigned int step, unsigned int) override {
        if (step >= 100) {
            return false; // no such step: the work is done
        }
        for (unsigned int n = 1000 * step; n < 1000 * (step + 1); ++n) {
            bool prime = n > 1;
            for (unsigned int d = 2; prime && d * d <= n; ++d) {
                prime = n % d != 0;
            }
            primes += prime ? 1 : 0;
        }
        return true;
    }
};

} // namespace

int main() {
    std::signal(SIGINT, note_interruption);
    bar progress;
    prime_count work;
    work.set_progress_manager(&progress, 0.0, 1.0);
    const bool finished = work.start(std::thread::hardware_concurrency());
    std::printf("%s: %d primes below 100000\n", finished ? "finished" : "stopped",
                work.primes.load());
    return finished ? 0 : 130;
}
