#ifndef OX_EXAMPLES_SUPPORT_PROGRESS_H
#define OX_EXAMPLES_SUPPORT_PROGRESS_H

#include <examples/support/progress_bar.h>

#include <string>

namespace ox_examples {

/// Tells on standard error how far work of a known number of steps is.
class progress {
public:
    /// Work of `total` steps.
    explicit progress(int nb_steps) : total(nb_steps) {}

    /// Begins the next step.
    void advance(const std::string& step) {
        bar.show(total > 0 ? static_cast<double>(begun) / total : 1.0, step);
        ++begun;
    }

    /// Takes the bar away; nothing happens when there is none.
    void end() { bar.end(); }

private:
    progress_bar bar;
    int begun = 0;
    int total;
};

} // namespace ox_examples

#endif
