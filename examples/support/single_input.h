#ifndef OX_EXAMPLES_SUPPORT_SINGLE_INPUT_H
#define OX_EXAMPLES_SUPPORT_SINGLE_INPUT_H

#include <string>

namespace ox_examples {

/// What the command line `FILE [--out DIR]` asks for.
struct single_input {
    std::string file;
    std::string folder = "."; ///< for the files that are written
};

/// Reads such a command line. Throws `std::invalid_argument` when it is something else.
single_input parse_single_input(int argc, char** argv);

} // namespace ox_examples

#endif
