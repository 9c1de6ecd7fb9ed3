#include <examples/progress/pace.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace progress_example {

namespace {

std::string phase_line(const std::string& name, double part_of_bar, double part_of_time) {
    char line[128];
    std::snprintf(line, sizeof line, "%-12.40s %7.2f %% %7.2f %%\n", name.c_str(),
                  100.0 * part_of_bar, 100.0 * part_of_time);
    return line;
}

} // namespace

void pace::begin_phase(const std::string& name, double part_of_bar, double seconds) {
    phases.push_back({name, part_of_bar, seconds});
}

void pace::note(double progress, double seconds) {
    readings.push_back({progress, seconds});
}

double pace::largest_difference(double duration) const {
    double largest = 0.0;
    for (const reading& r : readings) {
        largest = std::max(largest, std::abs(r.progress - r.seconds / duration));
    }
    return largest;
}

std::string pace::text() const {
    const double duration = readings.empty() ? 0.0 : readings.back().seconds;
    if (!(duration > 0.0)) {
        return "";
    }
    std::string lines = "phase              bar      time\n";
    for (std::size_t i = 0; i < phases.size(); ++i) {
        const double end = i + 1 < phases.size() ? phases[i + 1].start : duration;
        lines +=
            phase_line(phases[i].name, phases[i].part_of_bar, (end - phases[i].start) / duration);
    }
    char line[128];
    std::snprintf(line, sizeof line, "The bar was at most %.0f %% off the clock.\n",
                  100.0 * largest_difference(duration));
    return lines + line;
}

} // namespace progress_example
