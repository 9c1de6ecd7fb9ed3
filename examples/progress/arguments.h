#ifndef OX_EXAMPLES_PROGRESS_ARGUMENTS_H
#define OX_EXAMPLES_PROGRESS_ARGUMENTS_H

#include <string>

namespace CLI {
class App;
}

namespace progress_example {

/// What the command line asks for.
struct arguments {
    std::string folder;  // for the mesh and the learnt durations
    int nb_storeys = 60; // of the building
    int nb_threads = 1;
};

/// Declares the command line, which changes `wanted`.
void declare(CLI::App& line, arguments& wanted);

} // namespace progress_example

#endif
