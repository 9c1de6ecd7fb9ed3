#ifndef OX_EXAMPLES_SUPPORT_COMMAND_LINE_H
#define OX_EXAMPLES_SUPPORT_COMMAND_LINE_H

#include <string>

namespace ox_examples {

/// Says that the command line makes no sense: throws `std::invalid_argument` with the reason.
[[noreturn]] void refuse(const std::string& reason);

/// The words of a command line, taken one after the other. What is missing or unfit is refused.
class command_line {
public:
    command_line(int argc, char** argv) : count(argc), words(argv) {}

    bool at_end() const { return next >= count; }

    /// The next word; `wanted` names it for the message when there is none.
    std::string take(const std::string& wanted);

    /// The next word as a finite number from 0 up.
    float take_tolerance(const std::string& wanted);

    /// The next word as a whole number from 1 to `highest`.
    int take_count(const std::string& wanted, int highest);

private:
    int next = 1;
    int count;
    char** words;
};

} // namespace ox_examples

#endif
