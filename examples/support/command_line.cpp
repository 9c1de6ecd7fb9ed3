#include <examples/support/command_line.h>

#include <cmath>
#include <cstdlib>
#include <stdexcept>

namespace ox_examples {

void refuse(const std::string& reason) {
    throw std::invalid_argument(reason);
}

std::string command_line::take(const std::string& wanted) {
    if (at_end()) {
        refuse("missing " + wanted);
    }
    return words[next++];
}

float command_line::take_tolerance(const std::string& wanted) {
    const std::string word = take(wanted);
    char* end = nullptr;
    const float value = std::strtof(word.c_str(), &end);
    if (word.empty() || *end != '\0' || !std::isfinite(value) || value < 0.f) {
        refuse("'" + word + "' is no " + wanted);
    }
    return value;
}

int command_line::take_count(const std::string& wanted, int highest) {
    const std::string word = take(wanted);
    char* end = nullptr;
    const long value = std::strtol(word.c_str(), &end, 10);
    if (word.empty() || *end != '\0' || value < 1 || value > highest) {
        refuse("'" + word + "' is no " + wanted + " from 1 to " + std::to_string(highest));
    }
    return static_cast<int>(value);
}

} // namespace ox_examples
