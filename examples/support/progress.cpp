#include <examples/support/progress.h>

#include <cstdio>

#ifdef _WIN32
#include <io.h>
#define isatty _isatty
#define fileno _fileno
#else
#include <unistd.h>
#endif

namespace ox_examples {

namespace {

/// Characters.
constexpr int bar_width = 40;
constexpr int step_width = 30;

} // namespace

progress::progress(int nb_steps)
    : total(nb_steps), terminal(isatty(fileno(stdout)) != 0 && isatty(fileno(stderr)) != 0) {}

progress::~progress() {
    end();
}

void progress::end() {
    if (terminal && done > 0) {
        std::fprintf(stderr, "\r%*s\r", bar_width + step_width + 9, "");
        done = 0;
    }
}

void progress::advance(const std::string& step) {
    ++done;
    if (!terminal) {
        std::fprintf(stderr, "%d/%d %s\n", done, total, step.c_str());
        return;
    }
    const int filled = total > 0 ? bar_width * done / total : bar_width;
    const std::string bar(static_cast<std::size_t>(filled), '#');
    const int percent = total > 0 ? 100 * done / total : 100;
    std::fprintf(stderr, "\r[%-*s] %3d%% %-*.*s", bar_width, bar.c_str(), percent, step_width,
                 step_width, step.c_str());
    std::fflush(stderr);
}

} // namespace ox_examples
