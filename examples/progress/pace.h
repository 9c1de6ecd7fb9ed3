#ifndef OX_EXAMPLES_PROGRESS_PACE_H
#define OX_EXAMPLES_PROGRESS_PACE_H

#include <string>
#include <vector>

namespace progress_example {

/// How evenly a progress bar moved: what it showed, and when.
class pace {
public:
    /// A phase begins at `seconds` after the start, with its part of the bar.
    void begin_phase(const std::string& name, double part_of_bar, double seconds);

    /// The bar shows `progress` (0 to 1) from `seconds` after the start.
    void note(double progress, double seconds);

    /// The text that compares the bar with the clock: each phase's part of both, and how far they
    /// ever were apart. The run ended with the last note.
    std::string text() const;

private:
    struct phase {
        std::string name;
        double part_of_bar;
        double start; // seconds
    };

    struct reading {
        double progress;
        double seconds;
    };

    double largest_difference(double duration) const;

    std::vector<phase> phases;
    std::vector<reading> readings;
};

} // namespace progress_example

#endif
