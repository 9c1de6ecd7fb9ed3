#ifndef OX_EXAMPLES_SUPPORT_PROGRAM_H
#define OX_EXAMPLES_SUPPORT_PROGRAM_H

#include <functional>
#include <string>

namespace CLI {
class App; // its header takes seconds to compile, so only who declares a command line includes it
}

namespace ox_examples {

/// The exit statuses of all programs.
enum exit_status {
    all_well = 0,
    failed = 1,   ///< files or pictures cannot be made, or the work cannot be done
    refused = 2,  ///< the command line or an input file is wrong
    off = 3,      ///< the files are written, but what was computed does not add up
    stopped = 130 ///< Ctrl-C ended the work early; what shells expect then
};

/// What `--help` says of a program.
struct program_title {
    std::string name;
    std::string purpose;
};

/// Runs a program to its exit status: reads the command line that `declare` describes, answers
/// `--help` and `--version`, and does the `work`, with the library's log switched off, so that the
/// working folder stays as it is. What is thrown is told on standard error: a `CLI::ParseError` and
/// an `input_error` are refused, everything else has failed, and so has standard output that cannot
/// be written.
int run_program(const program_title& title, int argc, char** argv,
                const std::function<void(CLI::App&)>& declare, const std::function<int()>& work);

} // namespace ox_examples

#endif
