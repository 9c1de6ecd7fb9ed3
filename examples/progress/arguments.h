#ifndef OX_EXAMPLES_PROGRESS_ARGUMENTS_H
#define OX_EXAMPLES_PROGRESS_ARGUMENTS_H

#include <string>

namespace progress_example {

/// What the command line asks for.
struct arguments {
    std::string folder;  // for the mesh and the learnt durations
    int nb_storeys = 60; // of the building
    int nb_threads = 1;
};

/// The text that explains the command line.
extern const char* const usage;

/// Reads the command line. Throws `std::invalid_argument` with the reason when it makes no sense.
arguments parse(int argc, char** argv);

} // namespace progress_example

#endif
