#ifndef TESTS_SUPPORT_FAILING_MEMORY_H
#define TESTS_SUPPORT_FAILING_MEMORY_H

// Makes chosen allocations of the process fail. Where nothing else replaces the allocator, every
// `malloc` counts, those inside the libraries that are called too; under a sanitizer only
// `operator new` does.

namespace failing_memory {

/// Lets the allocation number `failing` from now on fail (1 is the next one), once, or with
/// `for_good` every one from it on.
void start(int failing, bool for_good);

/// The blocks that were handed out and not taken back. A block counts wherever it was asked for by
/// the functions that can fail here.
long count_live_blocks();

/// The bytes of these blocks.
long count_live_bytes();

/// Lets no allocation fail any more. True if one was refused since `start`.
bool stop();

} // namespace failing_memory

#endif
