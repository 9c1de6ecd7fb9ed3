#ifndef OX_EXAMPLES_SUPPORT_PROGRESS_H
#define OX_EXAMPLES_SUPPORT_PROGRESS_H

#include <string>

namespace ox_examples {

/// Tells on standard error how far the work is: a bar on a terminal, otherwise a line per step.
class progress {
public:
    /// Work of `total` steps.
    explicit progress(int total);

    /// Takes the bar away, also when the work is given up.
    ~progress();

    progress(const progress&) = delete;
    progress& operator=(const progress&) = delete;

    /// Begins the next step.
    void advance(const std::string& step);

    /// Takes the bar away; nothing happens when there is none.
    void end();

private:
    int done = 0;
    int total;
    bool terminal;
};

} // namespace ox_examples

#endif
