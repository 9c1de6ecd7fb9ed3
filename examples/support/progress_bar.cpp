#include <examples/support/progress_bar.h>

#include <examples/support/utf8.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#ifdef _WIN32
#define NOMINMAX
#include <io.h>
#include <windows.h>
#else
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace ox_examples {

namespace {

/// Characters.
constexpr int usual_columns = 80;
constexpr int widest_label = 30;
constexpr int percent_width = 4;
constexpr int narrowest_bar = 5;

/// Left free at the right: room for the ^C that terminals echo, and for the last column, behind
/// which many begin a new line.
constexpr int free_columns = 3;

#ifdef _WIN32

bool is_terminal() {
    return _isatty(_fileno(stderr)) != 0;
}

int terminal_columns() {
    CONSOLE_SCREEN_BUFFER_INFO console;
    const bool known = GetConsoleScreenBufferInfo(GetStdHandle(STD_ERROR_HANDLE), &console) != 0;
    return known ? console.srWindow.Right - console.srWindow.Left + 1 : usual_columns;
}

#else

bool is_terminal() {
    return isatty(STDERR_FILENO) != 0;
}

int terminal_columns() {
    winsize size{};
    const bool known = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : usual_columns;
}

#endif

int percent_of(double fraction) {
    return static_cast<int>(100.0 * fraction);
}

} // namespace

std::string bar_line(double fraction, const std::string& label, int columns) {
    char percent[percent_width + 1];
    std::snprintf(percent, sizeof percent, "%3d%%", std::clamp(percent_of(fraction), 0, 100));
    const int label_width = std::min(widest_label, columns / 3);
    const int bar_width = columns - label_width - percent_width - 4; // "[", "] " and " "
    if (bar_width < narrowest_bar) {
        return std::string(percent).substr(0, static_cast<std::size_t>(std::max(columns, 0)));
    }
    std::string bar(static_cast<std::size_t>(bar_width), ' ');
    std::fill_n(bar.begin(), static_cast<int>(fraction * bar_width), '#');
    const auto width = static_cast<std::size_t>(label_width);
    return "[" + bar + "] " + percent + " " + padded(first_characters(label, width), width);
}

progress_bar::progress_bar() : terminal(is_terminal()) {}

progress_bar::~progress_bar() {
    end();
}

void progress_bar::show(double fraction, const std::string& label) {
    // Written so that NaN counts as 0.
    const double bounded = fraction > 0.0 ? std::min(fraction, 1.0) : 0.0;
    if (terminal) {
        draw(bounded, label);
    } else {
        print(bounded, label);
    }
}

/// The terminal is asked for its width each time: the user may change it.
void progress_bar::draw(double fraction, const std::string& label) {
    const std::string line = bar_line(fraction, label, terminal_columns() - free_columns);
    if (line != shown) {
        std::fprintf(stderr, "\r%s", line.c_str());
        std::fflush(stderr);
        shown = line;
    }
}

void progress_bar::print(double fraction, const std::string& label) {
    const int tenth = percent_of(fraction) / 10;
    if (label != shown || tenth > shown_tenth) {
        std::fprintf(stderr, "%3d%% %s\n", percent_of(fraction), label.c_str());
        shown = label;
        shown_tenth = tenth;
    }
}

void progress_bar::end() {
    if (terminal && !shown.empty()) {
        std::fprintf(stderr, "\r%*s\r", terminal_columns() - 1, "");
        std::fflush(stderr);
    }
    shown.clear();
    shown_tenth = -1;
}

} // namespace ox_examples
