#ifndef OX_EXAMPLES_BUILDING_PROGRESS_H
#define OX_EXAMPLES_BUILDING_PROGRESS_H

#include <string>

namespace building {

/// Tells on standard error how far the work is: a bar on a terminal, otherwise a line per step.
class progress {
public:
    /// Work of `total` steps.
    explicit progress(int total);

    /// Ends the bar, also when the work is given up.
    ~progress();

    progress(const progress&) = delete;
    progress& operator=(const progress&) = delete;

    /// Begins the next step.
    void advance(const std::string& step);

private:
    int done = 0;
    int total;
    bool terminal;
};

} // namespace building

#endif
