#ifndef OX_EXAMPLES_SUPPORT_PROGRESS_BAR_H
#define OX_EXAMPLES_SUPPORT_PROGRESS_BAR_H

#include <string>

namespace ox_examples {

/// Shows on standard error how far long work is: on a terminal as a bar that always fits its width,
/// elsewhere as a plain line for each label and each further tenth of the work.
class progress_bar {
public:
    progress_bar();

    /// Takes the bar away, also when the work is given up.
    ~progress_bar();

    progress_bar(const progress_bar&) = delete;
    progress_bar& operator=(const progress_bar&) = delete;

    /// Shows `fraction` (0 to 1; taken to the nearer end outside) and what is being done, in UTF-8.
    void show(double fraction, const std::string& label);

    /// Takes the bar away; nothing happens when there is none.
    void end();

private:
    void draw(double fraction, const std::string& label);
    void print(double fraction, const std::string& label);

    bool terminal;
    std::string shown; // on a terminal the bar, elsewhere the label of the last line
    int shown_tenth = -1;
};

/// The bar as a line of at most `columns` characters: `[####      ]  42% label`. Where there is no
/// room for a bar only the percentage is left.
std::string bar_line(double fraction, const std::string& label, int columns);

} // namespace ox_examples

#endif
