#ifndef OX_EXAMPLES_SUPPORT_SINGLE_INPUT_H
#define OX_EXAMPLES_SUPPORT_SINGLE_INPUT_H

#include <string>

namespace ox_examples {

/// What the command line `FILE [--out DIR]` asks for.
struct single_input {
    std::string file;
    std::string folder = "."; ///< for the files that are written
};

/// Reads such a command line. Returns false when it is something else.
bool parse(int argc, char** argv, single_input& result);

} // namespace ox_examples

#endif
