#ifndef TESTS_RELIABILITY_FAILING_FILES_H
#define TESTS_RELIABILITY_FAILING_FILES_H

#include <string>

// Makes a chosen call of the C library on one file fail: to open, read, write, flush or close it.

namespace failing_files {

/// Lets call number `failing` on the file `path` fail, counted from 1; the others do as usual.
void start(const std::string& path, int failing);

/// Lets no call fail any more. True if one has failed since `start`.
bool stop();

} // namespace failing_files

#endif
