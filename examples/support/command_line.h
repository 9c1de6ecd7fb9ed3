#ifndef OX_EXAMPLES_SUPPORT_COMMAND_LINE_H
#define OX_EXAMPLES_SUPPORT_COMMAND_LINE_H

#include <string>

namespace CLI { // whoever declares more than these includes its header
class App;
class Option;
class Validator;
} // namespace CLI

namespace ox_examples {

/// Accepts numbers from `lowest` to `highest`; anything else is no `wanted`.
CLI::Validator number_between(double lowest, double highest, const std::string& wanted);

/// Accepts whole numbers from 1 to `highest`; anything else is no `wanted`.
CLI::Validator count_up_to(int highest, const std::string& wanted);

/// Declares the option `--out FOLDER`, which changes `folder`.
CLI::Option* add_output_folder(CLI::App& line, std::string& folder, const std::string& explanation);

/// What the command line `DESCRIPTION [--out FOLDER]` asks for.
struct single_input {
    std::string file;
    std::string folder = "."; ///< for the files that are written
};

/// Declares such a command line, which changes `wanted`.
void add_single_input(CLI::App& line, single_input& wanted);

} // namespace ox_examples

#endif
