#ifndef TESTS_RELIABILITY_MIXED_WORK_H
#define TESTS_RELIABILITY_MIXED_WORK_H

#include <string>

namespace mixed_work {

/// The number of kinds of operations: together they use every class.
extern const int kind_count;

/// Does one operation of kind `kind` on objects of its own and tells what came of it, floats to
/// their last bit. Equal numbers give equal texts.
std::string run(int kind, int number);

} // namespace mixed_work

#endif
