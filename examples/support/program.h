#ifndef OX_EXAMPLES_SUPPORT_PROGRAM_H
#define OX_EXAMPLES_SUPPORT_PROGRAM_H

#include <functional>

namespace ox_examples {

/// The exit statuses that programs with a description share.
enum exit_status {
    all_well = 0,
    failed = 1, ///< files cannot be written, or the work cannot be done
    refused = 2 ///< the description or the command line is wrong
};

/// Runs a program to its exit status, with the library's log switched off: the working folder stays
/// as it is. What `work` throws is told on standard error: a `description_error` is refused, a
/// `std::invalid_argument` as well, with the `usage` after it; everything else has failed.
int run_program(const char* usage, const std::function<int()>& work);

} // namespace ox_examples

#endif
