#ifndef TESTS_SUPPORT_ALLOCATION_METER_H
#define TESTS_SUPPORT_ALLOCATION_METER_H

#include <cstddef>

/// Counts what operator new hands out in this program, the library's allocations included. Unlike
/// a limit on the address space, it also works under the address sanitizer.
namespace allocation_meter {

/// Forgets the peak, which then counts from what is in use now, and refuses with std::bad_alloc
/// every request that would bring more than `limit` further bytes into use.
void start(std::size_t limit);

/// Ends the limit and returns the most bytes that were in use at once since `start`.
std::size_t stop();

} // namespace allocation_meter

#endif
